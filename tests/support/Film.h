// Film strips: a rule of the game as a row of pictures. The first picture is loaded as a map; then
// a routine of the clock runs, or ticks and keys, and the board has to show the next picture.
//
//     = a rock falls, then rolls off the gem to the drawn side | draw:RL
//         .O.   ...   ...     # wall   : dirt   * gem   O rock   @ player   X Bang   ^ factory
//         ...   .O.   O..     T L R F P Q the mines, Q for PP    . nothing
//         .*.   .*.   .*.     a digit: so many sprites in one cell, factories aside
//
// A picture shows the visible sprites, which the grid must confirm. Where its cell reads empty, a
// sprite is drawn as % ; + or a small letter; ? is a cell that tells of anything else.
//
// Words stand behind the title's bar, or on a line of their own that begins with one. "F:D" gives
// all F that tag (mines head right without one), "a=F:D" makes a mark of one's own; a mark with
// several looks stands for as many sprites in its cells. "a=O!" is a hidden sprite, "a=O?" one
// whose cell still reads as if it were there, "a=x" a Bang whose cell says nothing of it. Sprites
// stand in the pools as they are named, then as drawn, Bangs from the template on. A film without a
// gem or a player has one far away.
//     draw:LR     the sides of the first rolls      key:w,.d!    by frame: keys, "." a tick and
//     tick:30     the number of the first tick                   "!" the routine
//     held:UL     arrow keys that are down          ready:no     MoveReady in the end
//     at:0,1      the cell at the top left          ends:dies    or untold, or wins: how the last
//     heads:DR,D-   after each frame, the headings               frame ends; the others run on
//                   of all mines by kind and index, "-" for another tag, "/" before one whose
//                   picture is another heading's
#pragma once

#include "world/Board.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tumbledeep {

using Routine = void (Board::*)();

/// Plays films. Without keys a frame is one call of the routine or, if there is none, a tick.
void PlayFilms(std::string_view films, Routine routine = nullptr);

} // namespace tumbledeep
