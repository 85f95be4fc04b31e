// A push is decided by the grid alone, once for rocks and then once for T mines. Pools are only
// searched for the sprites to move.
#include "rules/player/Push.h"

#include <cmath>

namespace tumbledeep {

namespace {

/// Whether a sprite stands in the player's row. Between two rows a T mine belongs to the upper one
/// and a rock to the nearer one; tests/films/PlayerTest.cpp pins it.
bool InRow(Kind kind, const Sprite& sprite, double youRow) {
    const float row = GridPlace(sprite.Top);
    return (kind == Kind::RoundRock ? RoundToEven(row) : std::trunc(row)) == youRow;
}

void PushKind(Board& board, Kind kind, Heading way) {
    const Offset step = Ahead(way);
    const float targetCol = board.YouCol + static_cast<float>(step.Col);
    const int row = GridIndex(static_cast<float>(board.YouRow));
    const int beyond = GridIndex(board.YouCol + 2.0F * static_cast<float>(step.Col));
    if (board.Area(beyond, row) != Kind::Empty) return;
    if (board.Area(GridIndex(targetCol), row) != kind) return;

    Pool& pool = board.Pools[kind];
    for (const int index : pool.InTurn()) {
        const Sprite& sprite = pool[index];
        const bool inColumn = std::trunc(GridPlace(sprite.Left)) == std::trunc(targetCol);
        if (!inColumn || !InRow(kind, sprite, board.YouRow)) continue;
        // The new cell first: rounding can give a sprite between two cells one and the same for
        // both, and then it reads empty.
        board.Area.Set(pool.CellOf(index, step), kind);
        board.Area.Set(pool.CellOf(index), Kind::Empty);
        pool.Move(index, step);
    }
    // Even when no sprite was there; tests/films/PlayerTest.cpp pins it.
    board.MoveReady = false;
}

} // namespace

void Push(Board& board, Heading way) {
    if (IsVertical(way)) return;
    PushKind(board, Kind::RoundRock, way);
    PushKind(board, Kind::MovingMineT, way);
}

} // namespace tumbledeep
