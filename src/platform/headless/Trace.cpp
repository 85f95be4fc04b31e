// The order of the lines is fixed: variables, cells, sprites, the view.
#include "platform/headless/Trace.h"

#include <charconv>
#include <utility>

namespace tumbledeep {

namespace {

template <class Number> std::string Fixed(Number value) {
    std::array<char, 512> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
    return {text.data(), end};
}

/// A position of the view, in whole twips, without a sign of zero.
std::string WholeTwips(float value) {
    const float whole = RoundToEven(value);
    return FixedText(whole == 0.0F ? 0.0F : whole);
}

} // namespace

std::string FixedText(float value) { return Fixed(value); }

Trace::Trace(std::ostream& lines, Quote quote) : out(lines), quoted(std::move(quote)) {}

void Trace::Print(const frmMain& main, std::int64_t step) {
    const frmDocument& board = main.ActiveChild;
    head = "step " + std::to_string(step) + " tick " + std::to_string(board.TickCount) + "\n";
    Vars(main);
    Cells(board);
    Sprites(board);
    View(board);
    first = false;
}

std::ostream& Trace::Out() {
    out << head;
    head.clear();
    return out;
}

void Trace::Vars(const frmMain& main) {
    const frmDocument& board = main.ActiveChild;
    const auto flag = [](bool value) { return std::string(value ? "1" : "0"); };
    const std::vector<std::pair<const char*, std::string>> vars{
        {"Enabled", flag(board.Interval100Timer.Enabled)},
        {"MoveReady", flag(board.MoveReady)},
        {"YouDead", flag(board.YouDead)},
        {"GemsLeft", std::to_string(board.GemsLeft)},
        {"GemTotal", std::to_string(board.GemTotal)},
        {"YouCol", FixedText(board.YouCol)},
        {"YouRow", Fixed(board.YouRow)},
        {"AutoMoveOn", flag(board.AutoMoveOn)},
        {"AutoMoveMode", std::to_string(board.AutoMoveMode)},
        {"Status", quoted(main.Info.Panel)},
        {"Caption", quoted(main.Form.Caption)},
        {"BoardCaption", quoted(board.Form.Caption)},
    };
    lastVars.resize(vars.size());
    for (std::size_t i = 0; i < vars.size(); ++i) {
        if (!first && lastVars[i] == vars[i].second) continue;
        lastVars[i] = vars[i].second;
        Out() << "var " << vars[i].first << ' ' << vars[i].second << '\n';
    }
}

void Trace::Cells(const frmDocument& board) {
    const auto& cells = board.Area.Cells();
    if (cells == lastArea.Cells()) return;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i] == lastArea.Cells()[i]) continue;
        Out() << "cell " << i % AreaGrid::Size << ' ' << i / AreaGrid::Size << " \""
              << KindText(cells[i]) << "\"\n";
    }
    lastArea = board.Area;
}

void Trace::Sprites(const frmDocument& board) {
    const std::array<std::pair<const char*, const Pool*>, 12> pools{{
        {"HardDirt", &board.HardDirt},
        {"Dirt", &board.Dirt},
        {"Gem1Type", &board.Gem1Type},
        {"RoundRock", &board.RoundRock},
        {"MovingMineT", &board.MovingMineT},
        {"MovingMineL", &board.MovingMineL},
        {"MovingMineR", &board.MovingMineR},
        {"MovingMineFL", &board.MovingMineFL},
        {"MovingMineP", &board.MovingMineP},
        {"MovingMinePP", &board.MovingMinePP},
        {"Factory", &board.Factory},
        {"Bang", &board.Bang},
    }};
    for (std::size_t i = 0; i < pools.size(); ++i) {
        PoolSprites(pools[i].first, *pools[i].second, lastSprites[i]);
    }
    const SpriteLook you{board.You.Left, board.You.Top, board.You.Visible, "", Picture::None};
    if (first || you != lastYou) Line("You", 0, you);
    lastYou = you;
}

void Trace::PoolSprites(std::string_view name, const Pool& pool, std::vector<SpriteLook>& last) {
    const auto count = static_cast<std::size_t>(pool.Count());
    for (std::size_t i = 0; i < count; ++i) {
        if (i < last.size() && last[i].Left == pool.Left[i] && last[i].Top == pool.Top[i] &&
            last[i].Visible == (pool.Visible[i] != 0) && last[i].Picture == pool.Picture[i] &&
            last[i].Tag == pool.Tag[i]) {
            continue;
        }
        const SpriteLook look{pool.Left[i], pool.Top[i], pool.Visible[i] != 0, pool.Tag[i],
                              pool.Picture[i]};
        Line(name, i, look);
        if (i == last.size()) {
            last.push_back(look);
        } else {
            last[i] = look;
        }
    }
}

void Trace::Line(std::string_view poolName, std::size_t index, const SpriteLook& look) {
    Out() << "sprite " << poolName << ' ' << index << ' ' << FixedText(look.Left) << ' '
          << FixedText(look.Top) << ' ' << (look.Visible ? 1 : 0) << ' ' << quoted(look.Tag)
          << " \"" << PictureName(look.Picture) << "\"\n";
}

void Trace::View(const frmDocument& board) {
    const std::string view = WholeTwips(board.Form.Left) + ' ' + WholeTwips(board.Form.Top) + ' ' +
                             WholeTwips(board.Form.Width) + ' ' + WholeTwips(board.Form.Height);
    if (view != lastView) Out() << "view " << view << '\n';
    lastView = view;
}

} // namespace tumbledeep
