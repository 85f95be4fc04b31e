// A key becomes a step of the player, or a pause. A step is whole in one call; a key that finds the
// player not ready is lost. The grid alone decides whether a step happens; pools are only searched
// for the sprites to take. Pushing is Push.cpp's, the arrow keys come by PollArrowKeys.cpp.
#include "rules/player/Push.h"
#include "rules/player/StepKeys.h"

#include <algorithm>

namespace tumbledeep {

namespace {

Cell CellOfYou(const Board& board) {
    return {GridIndex(board.YouCol), GridIndex(static_cast<float>(board.YouRow))};
}

void Advance(Board& board, Heading way) {
    const Offset step = Ahead(way);
    const Cell left = CellOfYou(board);
    board.YouCol += static_cast<float>(step.Col);
    board.YouRow += step.Row;
    ShiftByCells(board.You, step);
    board.Area.Set(CellOfYou(board), Kind::You);
    board.Area.Set(left, Kind::Empty);
    board.Walks.Add({way, board.You.Left, board.You.Top});
}

/// Whether a player who has just walked that way takes a sprite. To the left the test is a cell
/// wider than to the right: what lies in the cell that the player has come from is taken as well.
/// tests/films/PlayerTest.cpp pins it.
bool Takes(const Sprite& sprite, Heading way, const Sprite& you) {
    switch (way) {
    case Heading::Left:
        return sprite.Top == you.Top && sprite.Left + 1 > you.Left &&
               you.Left + Pitch > sprite.Left - 1;
    case Heading::Right:
        return sprite.Top == you.Top && sprite.Left - 1 < you.Left && sprite.Left + 1 > you.Left;
    default: return sprite.Left == you.Left && sprite.Top - 1 < you.Top && sprite.Top + 1 > you.Top;
    }
}

/// Hides the sprites of a kind that the player has walked onto. Sprites that are hidden already
/// count too. A step up or down ends at the first one and leaves the player ready, so that a column
/// that was once dirt can be run along; all other steps cost the tick. tests/films/PlayerTest.cpp
/// pins all of it.
void TakeFrom(Board& board, Kind kind, Heading way) {
    Pool& pool = board.Pools[kind];
    for (int i = 0; i < pool.Count(); ++i) {
        if (!Takes(pool[i], way, board.You)) continue;
        pool.Hide(i);
        if (IsVertical(way)) return;
    }
    board.MoveReady = false;
}

} // namespace

void Board::MoveYou(std::string_view key) {
    Walks.Clear();
    Step(key);
}

void Board::Step(std::string_view key) {
    if (key == "p") {
        Interval100Timer.Enabled = !Interval100Timer.Enabled;
        if (!Interval100Timer.Enabled) MoveReady = false;
    }
    if (!MoveReady) return;
    // Any key brings back gems whose cells something has overwritten;
    // tests/films/PlayerTest.cpp pins it.
    Stamp(Kind::Gem1Type);

    const auto* const found = std::find(StepKeys.begin(), StepKeys.end(), key);
    if (found == StepKeys.end()) return;
    const Heading way = Headings[static_cast<std::size_t>(found - StepKeys.begin())];
    Push(*this, way);

    const Offset step = Ahead(way);
    const Kind target = Area(GridIndex(YouCol + static_cast<float>(step.Col)),
                             GridIndex(static_cast<float>(YouRow + step.Row)));
    if (target != Kind::Empty && target != Kind::Dirt && target != Kind::Gem1Type) return;
    Advance(*this, way);
    TakeFrom(*this, target == Kind::Gem1Type ? Kind::Gem1Type : Kind::Dirt, way);
}

} // namespace tumbledeep
