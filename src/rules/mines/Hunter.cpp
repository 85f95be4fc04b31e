// The aim looks at positions in twips, not at cells, and not at whether there is room that way.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

namespace {

/// A horizontal heading gives way to a vertical one and the reverse; ties go up and left.
Heading Aim(Heading present, const Sprite& mine, const Sprite& you) {
    if (!IsVertical(present)) return you.Top > mine.Top ? Heading::Down : Heading::Up;
    return you.Left > mine.Left ? Heading::Right : Heading::Left;
}

} // namespace

void HunterBlock(Board& board, Kind kind, int mine, Heading heading, Aims aims) {
    const Sprite& sprite = board.Pools[kind][mine];
    const bool free = board.Area(CellOf(sprite, Ahead(heading))) == Kind::Empty;
    if (free) board.MoveSprite(kind, mine, Ahead(heading));
    if (!free || aims == Aims::Always) board.Turn(kind, mine, Aim(heading, sprite, board.You));
}

} // namespace tumbledeep
