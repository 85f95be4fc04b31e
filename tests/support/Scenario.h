// A small board drawn as a film strip: what stands there first, and what each next frame expects.
//
//     #O#   #.#   #.#        # wall   : dirt   * gem   O rock   @ player   X Bang   ^ factory
//     #.#   #O#   #.#        T L R F P Q the mines, Q for PP     . nothing
//     ###   ###   #O#        a digit: so many sprites in one cell, factories aside
#pragma once

#include "board/frmDocument.h"
#include "shell/frmMain.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

class Scenario {
  public:
    using Routine = void (frmDocument::*)();

    /// Loads the first frame; its top left cell is `origin`. A frame without a gem or a player has
    /// one far away, so that nothing is won. The cast gives marks a look or a tag, "a=L:U b=O F:D",
    /// and stands in the pools in its order and in front of all that it does not name.
    explicit Scenario(std::string_view strip, std::string_view cast = "", Cell origin = {1, 1});

    FakePlatform Services;
    frmMain Game{Services};
    frmDocument& Board = Game.ActiveChild;
    bool Ended = false; ///< the process has ended itself

    /// Runs ticks until the process ends.
    void Ticks(int count);
    /// Runs the tick of that number in the cycle.
    void TickNumber(int tickCount);
    /// Types keys one after the other, without a tick between them.
    void Type(std::string_view keys);
    /// Runs a routine of the board.
    void Run(Routine routine);

    /// Whether `Area` and the visible sprites agree with the next frame, or one of them alone.
    testing::AssertionResult Next() { return Compare(true, true); }
    testing::AssertionResult NextArea() { return Compare(true, false); }
    testing::AssertionResult NextSprites() { return Compare(false, true); }
    std::size_t FramesLeft() const { return frames.size() - shown - 1; }

    Kind AreaAt(int col, int row) { return Board.Area(col, row); }

  private:
    std::string MapText(std::string_view cast) const;
    template <class Do> void ForEach(char mark, Do act) const;
    char LookOfSprites(Cell cell);
    testing::AssertionResult Compare(bool area, bool sprites);

    std::vector<std::vector<std::string>> frames;
    std::size_t shown = 0;
    Cell topLeft;
};

/// Plays strips from frame to frame, by default with one routine. Each stands under a header,
/// "= what it shows | words"; beside the cast the words are
///     draw:LR        the sides of the rolls         tick:30    one tick, beginning with that one
///     key:w,.d       keys by frame, "." a tick      held:UL    arrow keys that are down
///     at:0,1         the top left cell              dies       the process ends, and only then
///     ready  busy    MoveReady in the end           sprites    `Area` is not compared
void PlayFilms(std::string_view films, Scenario::Routine routine = nullptr);

} // namespace tumbledeep
