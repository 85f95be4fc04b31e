// How far it is from the player to anywhere on a board as it stands at this moment. Where to go is
// the bots' to decide.
#pragma once

#include "world/Board.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace tumbledeep {

class Ways {
  public:
    enum class Through : std::uint8_t {
        Free,   ///< what a step enters: empty cells, dirt, gems, and what can be pushed now
        Hopeful ///< rocks, mines and blasts too, at a price, as they may move away
    };
    static constexpr int None = std::numeric_limits<std::int16_t>::max();

    /// Looks no farther than to so many gems.
    Ways(const Board& board, Through rule, int gemsWanted = std::numeric_limits<int>::max());

    /// Steps to a cell of the grid, those through what is in the way counted several times; None
    /// without a way.
    int To(Cell cell) const;
    /// The key of the first step on the way to a cell that has one, and is not the player's own.
    char FirstKey(Cell cell) const;

  private:
    void Spread(const Board& board, Cell from, Through rule, int gemsWanted);

    struct Mark {
        std::int16_t Far = None;
        Heading Came = Heading::Up;
    };
    std::vector<Mark> marks; ///< by the number of the cell
};

/// The player's cell.
Cell PlayerCell(const Board& board);

} // namespace tumbledeep
