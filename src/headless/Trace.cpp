// How the state is compared with what was last printed, and written. The order of the lines is
// fixed, since programs read them: variables, cells, sprites, the view.
#include "headless/Trace.h"

#include "base/Number.h"

#include <utility>

namespace tumbledeep {

namespace {

/// A position of the view, in whole twips, without a sign of zero.
std::string WholeTwips(float value) {
    const float whole = RoundToEven(value);
    return FixedText(whole == 0.0F ? 0.0F : whole);
}

} // namespace

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
        {"YouRow", FixedText(board.YouRow)},
        {"AutoMoveOn", flag(board.AutoMoveOn)},
        {"AutoMoveMode", std::to_string(static_cast<int>(board.AutoMoveMode))},
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
    if (board.Area == lastArea) return;
    // A grid never gives up room that it has taken, so this one covers what was printed too.
    for (int row = 0; row < board.Area.UsedRows(); ++row) {
        for (int col = 0; col < GridSize; ++col) {
            const Kind kind = board.Area(col, row);
            if (kind == lastArea(col, row)) continue;
            Out() << "cell " << col << ' ' << row << " \"" << KindText(kind) << "\"\n";
        }
    }
    lastArea = board.Area;
}

void Trace::Sprites(const frmDocument& board) {
    for (std::size_t i = 0; i < PoolCount; ++i) {
        const KindRow& row = PoolKinds()[i];
        PoolSprites(row.PoolName, board.Pools[row.Which], lastSprites[i]);
    }
    if (first || board.You != lastYou) Line("You", 0, board.You, "");
    lastYou = board.You;
}

void Trace::PoolSprites(std::string_view name, const Pool& pool, std::vector<Sprite>& last) {
    for (int i = 0; i < pool.Count(); ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (place < last.size() && last[place] == pool[i]) continue;
        Line(name, i, pool[i], pool.TagText(i));
        if (place == last.size()) last.emplace_back();
        last[place] = pool[i];
    }
}

void Trace::Line(std::string_view poolName, int index, const Sprite& sprite, std::string_view tag) {
    Out() << "sprite " << poolName << ' ' << index << ' ' << FixedText(sprite.Left) << ' '
          << FixedText(sprite.Top) << ' ' << (sprite.Visible ? 1 : 0) << ' ' << quoted(tag) << " \""
          << PictureName(sprite.Look) << "\"\n";
}

void Trace::View(const frmDocument& board) {
    const std::string view = WholeTwips(board.Form.Left) + ' ' + WholeTwips(board.Form.Top) + ' ' +
                             WholeTwips(board.Form.Width) + ' ' + WholeTwips(board.Form.Height);
    if (view != lastView) Out() << "view " << view << '\n';
    lastView = view;
}

} // namespace tumbledeep
