// How P and PP mines step and aim. The aim goes by positions in twips, not by cells, and does not
// ask whether there is room that way.
#include "rules/mines/Hunter.h"

namespace tumbledeep {

namespace {

/// The next heading towards the player: up or down after a level one, left or right after an
/// upright one. On a tie it is up or left; tests/films/MinesTest.cpp pins it.
Heading Aim(Heading present, const Sprite& mine, const Sprite& you) {
    const Heading upright = you.Top > mine.Top ? Heading::Down : Heading::Up;
    const Heading level = you.Left > mine.Left ? Heading::Right : Heading::Left;
    return IsVertical(present) ? level : upright;
}

} // namespace

void HunterBlock(Board& board, Kind kind, int mine, Heading heading, Aims aims) {
    Pool& mines = board.Pools[kind];
    const bool free = board.Area(mines.CellOf(mine, Ahead(heading))) == Kind::Empty;
    if (free) board.MoveSprite(kind, mine, Ahead(heading));
    if (!free || aims == Aims::Always) mines.Turn(mine, Aim(heading, mines[mine], board.You));
}

} // namespace tumbledeep
