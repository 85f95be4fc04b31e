// `Area` decides whether a push happens, once for rocks and then for T mines; the pools are only
// scanned for the sprites.
#include "rules/player/Push.h"

#include <cmath>

namespace tumbledeep {

namespace {

/// Whether a sprite stands in the player's row. A T mine between two rows counts for the upper
/// one, a rock for the nearer one; tests/films/PlayerTest.cpp pins it.
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
        // The new cell first: a sprite between two cells may name one and the same for both.
        board.Area.Set(CellOf(sprite, step), kind);
        board.Area.Set(CellOf(sprite), Kind::Empty);
        pool.Move(index, step);
    }
    board.MoveReady = false; // even when no sprite was there
}

} // namespace

void Push(Board& board, Heading way) {
    if (IsVertical(way)) return;
    PushKind(board, Kind::RoundRock, way);
    PushKind(board, Kind::MovingMineT, way);
}

} // namespace tumbledeep
