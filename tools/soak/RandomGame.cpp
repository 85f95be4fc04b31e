// How maps and acts are drawn. Some maps are closed and some open, some all rocks and some all
// mines, so that many seeds together come to most of the rules.
#include "soak/RandomGame.h"

#include <cstdlib>
#include <sstream>

namespace tumbledeep {

namespace {

constexpr std::string_view Kinds = "dirt harddirt gem1type roundrock movingmineT movingmineL "
                                   "movingmineR movingmineFL movingmineP movingminePP";
constexpr std::string_view Tags = "U D L R U D L R u D2";
constexpr std::string_view Recipes =
    "0:roundrock 1:gem1type 2:movingmineT 0:movingmineL 3:movingmineR 1:movingmineFL 2:movingmineP "
    "1:movingminePP 5:dirt 4:harddirt 2:bang 0:gem1type 9:roundrock x:dirt 0:you 1:factory";
constexpr std::string_view Entries =
    "MnuLoadMap MnuBeginagain MnuMapList MnuRestart MnuOff MnuMode1 MnuStartLastMap MnuMode2 "
    "MnuMode3";
constexpr std::string_view Answers =
    "yes yes yes yes no 1 2 3 Z:\\game\\m1.TBM Z:\\game\\Default.TBL Z:\\game\\m2.tbm ";
constexpr std::string_view Letters = "w a s d w a s d p W";

/// One object, now and then between two cells.
std::string Line(Dice& dice, const std::string& keyword, int col, int row) {
    std::ostringstream line;
    const bool aside = dice.Once(40);
    line << keyword;
    for (const int cell : {row, col}) line << ' ' << cell * 360 + (aside ? dice.Below(360) : 0);
    if (keyword == "factory") {
        line << ' ' << dice.OneOf(Recipes);
    } else if (keyword.starts_with("movingmine") && keyword != "movingmineT") {
        line << ' ' << dice.OneOf(Tags);
    }
    line << '\n';
    return line.str();
}

} // namespace

std::string RandomMap(std::uint32_t seed) {
    Dice dice(seed);
    const int width = 4 + dice.Below(16);
    const int height = 4 + dice.Below(10);
    const int density = 20 + dice.Below(60);
    const bool walls = !dice.Once(4);
    const bool sheltered = dice.Once(3); // by walls all round, so that nothing that moves can kill
    const std::string favourite = dice.OneOf(Kinds);
    const int youCol = 1 + dice.Below(width - 2);
    const int youRow = 1 + dice.Below(height - 2);
    std::string text = dice.Once(3) ? "title Map " + std::to_string(seed) + "\n" : "";
    if (!dice.Once(12)) text += Line(dice, "you", youCol, youRow);
    if (dice.Below(3) > 0) text += "gem1type 108000 108000\n";
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            const bool edge = row == 0 || col == 0 || row == height - 1 || col == width - 1;
            const bool near = std::abs(col - youCol) < 2 && std::abs(row - youRow) < 2;
            if ((edge && walls) || (sheltered && near)) {
                if (col == youCol && row == youRow) continue;
                text += Line(dice, "harddirt", col, row);
            } else if (dice.Below(100) < (near ? density / 4 : density)) {
                const int draw = dice.Below(24);
                text += Line(dice,
                             draw == 0   ? "factory"
                             : draw < 8  ? favourite
                             : draw < 14 ? "dirt"
                                         : dice.OneOf(Kinds),
                             col, row);
            }
        }
    }
    return text;
}

RandomGame::RandomGame(std::uint32_t seed) : dice(seed) {
    for (int i = 0; i < 3; ++i) {
        services.Files["Z:\\game\\m" + std::to_string(i) + ".TBM"] =
            RandomMap(seed * 3 + static_cast<std::uint32_t>(i));
    }
    services.Files["Z:\\game\\Default.TBL"] = seed % 3 == 0 ? "m0\nm1\n" : "m0\nm1\nm2\nm0\n";
    // Half of the games begin with a first start, with all its questions.
    if (seed % 2 == 0) {
        services.Settings() =
            "[Level]\nLOAD=m0.TBM\n[AutoMove]\nMOVE=True\nMODE=" + std::to_string(seed / 2 % 4) +
            "\n";
    }
    Start();
}

void RandomGame::Start() {
    services.SeedNumber = static_cast<std::uint32_t>(dice.Below(1'000'000));
    while (services.Answers.size() < 8) services.Answers.push_back(dice.OneOf(Answers));
    services.CommandLine = dice.Once(10) ? "m1.TBM" : "";
    game = std::make_unique<frmMain>(services);
    game->Form.Width = static_cast<float>(3000 + 15 * dice.Below(600));
    game->Form.Height = static_cast<float>(3000 + 15 * dice.Below(600));
    try {
        game->MDIForm_Activate();
    } catch (const ProgramEnd&) {
        game = nullptr;
    }
}

void RandomGame::Act() {
    using Do = PlayerAct::Do;
    if (dice.Once(3)) game->Take({Do::Type, dice.OneOf(Letters)});
    const auto key = static_cast<Heading>(dice.Below(4));
    if (dice.Once(12)) game->Take({dice.Once(2) ? Do::Press : Do::Release, "", key});
    if (!game->ActiveChild.Interval100Timer.Enabled && dice.Once(5)) game->Take({Do::GotFocus});
    if (!dice.Once(30)) return;
    switch (dice.Below(8)) {
    case 0: return game->Take({Do::Click});
    case 1: return game->Take({Do::LostFocus});
    case 2: return game->Take({Do::Drag, "", key, 700, -400});
    case 3: return game->Take({Do::Resize, "", key, 9000, 7000});
    case 4: return game->Take({Do::Menu, dice.OneOf(Entries)});
    default: return game->Take({Do::GotFocus});
    }
}

void RandomGame::Period() {
    if (!game) return Start();
    try {
        Act();
        ticks += game->ActiveChild.Interval100Timer.Enabled ? 1 : 0;
        game->TimerPeriod();
    } catch (const ProgramEnd&) {
        game = nullptr;
    }
}

void RandomGame::AddTo(Hash& hash) {
    hash.Add(services.Settings());
    hash.Add(services.Log);
    services.Log.clear();
    if (!game) return;
    const frmDocument& board = game->ActiveChild;
    hash.Add(board.HashValue());
    for (const float place :
         {board.Form.Left, board.Form.Top, board.Form.Width, board.Form.Height, game->Form.Width}) {
        hash.Add(place);
    }
    hash.Add(board.AutoMoveOn);
    hash.Add(static_cast<int>(board.AutoMoveMode));
    hash.Add(game->Info.Panel);
    hash.Add(game->Form.Caption);
    hash.Add(board.Form.Caption);
}

} // namespace tumbledeep
