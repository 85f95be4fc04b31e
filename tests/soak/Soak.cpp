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

class Watch {
  public:
    explicit Watch(frmDocument& watched) : board(watched) {}

    /// "" while all holds.
    std::string Fault() {
        if (board.TickCount < 0 || board.TickCount > 300) return "TickCount leaves its cycle";
        // Between two columns, where a map may put the player, each step rounds anew.
        if (std::abs(board.YouCol - (board.You.Left / Pitch + 1.0F)) > 0.001F) {
            return "YouCol is not the player's";
        }
        if (std::abs(board.YouRow - (board.You.Top / Pitch + 1.0)) > 0.501) {
            return "YouRow is not the player's";
        }
        const auto& cells = board.Area.Cells();
        if (board.TickCount % 50 == 0 &&
            std::any_of(cells.begin(), cells.end(), [](Kind kind) { return kind > Kind::Bang; })) {
            return "a cell holds no kind";
        }
        for (std::size_t i = 0; i < pools.size(); ++i) {
            const Pool& pool = *pools[i];
            const int count = pool.Count();
            if (count < lastCounts[i]) return "a pool has shrunk";
            if (count > Pool::Limit) return "a pool is beyond its limit";
            lastCounts[i] = count;
        }
        return "";
    }

  private:
    frmDocument& board;
    std::array<Pool*, 12> pools{&board.HardDirt,     &board.Dirt,         &board.Gem1Type,
                                &board.RoundRock,    &board.MovingMineT,  &board.MovingMineL,
                                &board.MovingMineR,  &board.MovingMineFL, &board.MovingMineP,
                                &board.MovingMinePP, &board.Factory,      &board.Bang};
    std::array<int, 12> lastCounts{};
};

/// One random act of the player, now and then.
void Play(frmMain& game, FakePlatform& platform, Random& hands) {
    static constexpr std::array<const char*, 7> Keys{"w", "a", "s", "d", "p", "W", "dd"};
    static constexpr std::array<const char*, 4> Entries{"MnuOff", "MnuMode1", "MnuMode2",
                                                        "MnuMode3"};
    frmDocument& board = game.ActiveChild;
    const auto pick = [&](std::size_t count) {
        return static_cast<std::size_t>(hands.Next() * static_cast<float>(count));
    };
    const float act = hands.Next();
    if (act < 0.3F) {
        board.Input_Box.Text = Keys[pick(Keys.size())];
        board.Input_Box_Change();
    } else if (act < 0.5F) {
        const int key = 37 + static_cast<int>(pick(4));
        if (!platform.KeysDown.erase(key)) platform.KeysDown.insert(key);
    } else if (act < 0.52F) {
        board.Form_MouseDown(1);
    } else if (act < 0.53F) {
        game.MenuClick(Entries[pick(Entries.size())]);
    } else if (act < 0.54F) {
        game.Form.Width = 20000.0F * hands.Next();
        game.Form.Height = 20000.0F * hands.Next();
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
    game.Form.Width = 15360;
    game.Form.Height = 11520;
    try {
        game.MDIForm_Activate();
        Watch watch(game.ActiveChild);
        for (int tick = 0; tick < ticks; ++tick) {
            Play(game, platform, hands);
            if (!game.ActiveChild.Interval100Timer.Enabled) continue;
            game.ActiveChild.Interval100Timer_Timer();
            if (const std::string fault = watch.Fault(); !fault.empty()) {
                return "seed " + std::to_string(seed) + ", tick " + std::to_string(tick) + ": " +
                       fault;
            }
        }
    } catch (const ProgramEnd&) {
        // Won or dead, and most likely with a box; the run is over.
    }
    return "";
}

} // namespace tumbledeep
