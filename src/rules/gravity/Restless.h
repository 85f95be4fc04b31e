// The turns of rocks, gems and T mines, without those in which nothing can happen: most of what can
// fall lies still, and tens of thousands that do must cost next to nothing. What the others do is
// each kind's own routine's.
#pragma once

#include "world/Board.h"

namespace tumbledeep {

/// The turns of Pool::InTurn, less the sprites that rest: those on a cell from which nothing falls
/// or rolls, and those that could roll but have no room on that side. Asked when the index comes
/// up.
class Restless {
  public:
    Restless(const Board& on, Kind kind, RollSide side)
        : board(on), pool(on.Pools[kind]), way(WayOf(side)), count(pool.Count()) {}

    class Iterator {
      public:
        Iterator(const Restless& turns, int at) : of(turns), index(at) {}
        int operator*() const { return index; }
        Iterator& operator++() {
            index = of.Next(index + 1);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return index != other.index; }

      private:
        const Restless& of;
        int index;
    };
    Iterator begin() const { return {*this, Next(0)}; }
    Iterator end() const { return {*this, count}; }

  private:
    int Next(int from) const;

    const Board& board;
    const Pool& pool;
    Offset way;
    int count;
};

} // namespace tumbledeep
