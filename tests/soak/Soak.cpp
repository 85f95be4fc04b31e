// The hands draw from a generator of their own, apart from the game's.
#include "soak/Soak.h"

#include "platform/Random.h"
#include "shell/frmMain.h"
#include "soak/RandomMap.h"
#include "support/FakePlatform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

/// What does not hold after a tick, or "".
std::string FaultOf(frmDocument& board) {
    if (board.TickCount < 0 || board.TickCount > 300) return "TickCount leaves its cycle";
    // Between two columns, where a map may put the player, each step rounds anew.
    if (std::abs(board.YouCol - (board.You.Left / Pitch + 1.0F)) > 0.001F ||
        std::abs(board.YouRow - (board.You.Top / Pitch + 1.0)) > 0.501) {
        return "YouCol and YouRow are not the player's";
    }
    const auto& cells = board.Area.Cells();
    if (board.TickCount % 50 == 0 && *std::max_element(cells.begin(), cells.end()) > Kind::Bang) {
        return "a cell holds no kind";
    }
    for (int kind = 0; kind <= static_cast<int>(Kind::Bang); ++kind) {
        const Pool* const pool = board.PoolOf(static_cast<Kind>(kind));
        if (pool != nullptr && pool->Count() > Pool::Limit) return "a pool is beyond its limit";
    }
    return "";
}

/// One random act of the player, now and then.
void Play(frmMain& game, FakePlatform& platform, Random& hands) {
    static constexpr std::array<const char*, 7> Keys{"w", "a", "s", "d", "p", "W", "dd"};
    static constexpr std::array<const char*, 4> Entries{"MnuOff", "MnuMode1", "MnuMode2",
                                                        "MnuMode3"};
    frmDocument& board = game.ActiveChild;
    const float act = hands.Next();
    const auto pick = [&](auto count) {
        return static_cast<decltype(count)>(hands.Next() * static_cast<float>(count));
    };
    if (act < 0.3F) {
        board.Input_Box.Text = Keys[pick(Keys.size())];
        board.Input_Box_Change();
    } else if (act < 0.5F) {
        const int key = 37 + pick(4);
        if (!platform.KeysDown.erase(key)) platform.KeysDown.insert(key);
    } else if (act < 0.51F) {
        game.MenuClick(Entries[pick(Entries.size())]);
    } else {
        board.Form_GotFocus();
    }
}

} // namespace

std::string Soak(std::uint32_t seed, int ticks) {
    FakePlatform platform;
    Random hands;
    Random chance;
    hands.Seed(seed + 1);
    chance.Seed(seed);
    platform.FurtherDraws = [&chance] { return chance.Next(); };
    platform.CommandLine = "soak.TBM";
    platform.Files[std::string(FakePlatform::Directory) + "\\soak.TBM"] = RandomMap(seed);
    for (int i = 0; i < 6; ++i) platform.Answers.emplace_back(hands.Next() < 0.5F ? "yes" : "no");
    frmMain game(platform);
    game.Form.Width = 20000.0F * hands.Next();
    game.Form.Height = 20000.0F * hands.Next();
    try {
        game.MDIForm_Activate();
        for (int tick = 0; tick < ticks; ++tick) {
            Play(game, platform, hands);
            if (!game.ActiveChild.Interval100Timer.Enabled) continue;
            game.ActiveChild.Interval100Timer_Timer();
            const std::string fault = FaultOf(game.ActiveChild);
            if (!fault.empty()) return fault + ", seed " + std::to_string(seed);
        }
    } catch (const ProgramEnd&) {
        // Won or dead, and most likely with a box; the run is over.
    }
    return "";
}

} // namespace tumbledeep
