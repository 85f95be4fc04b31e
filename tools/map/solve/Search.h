// A search for keys that win a map: a beam of boards that play on side by side, beat by beat, of
// which only the most promising and the least alike go on. A start goes in, keys come out. It
// gathers well with danger about; a long plan that shows no gain before its end it seldom finds.
#pragma once

#include "formats/Script.h"
#include "world/Board.h"

#include <chrono>
#include <functional>
#include <string>

namespace tumbledeep {

struct SearchOptions {
    int Width = 50; ///< boards that go on from a beat to the next
    /// Games that one plan has to win at once, each with a seed and lateness of its own, so that it
    /// holds without luck and without perfect timing. The first has the seed 1 and is never late.
    int Games = 1;
    std::chrono::steady_clock::time_point Until{}; ///< when to give up
    Script Before;                                 ///< what has been settled and comes first
};

struct SearchEnd {
    bool IsWon = false;
    bool TimeIsOver = false;
    int GemsLeft = 0; ///< of the best board met
    /// One sign a beat, a letter or a blank: those that win, or those of the best board met.
    std::string Keys;
};

/// What a search tells now and then: gems left at best, and beats played.
using SearchNews = std::function<void(int gemsLeft, int beats)>;

/// A width to begin with: less for maps of many objects, whose boards take long to copy.
int FirstWidth(const Board& start);

/// Searches from a map's start. All cores take part. Throws std::runtime_error if `Before` loses
/// the map with the seed 1.
SearchEnd Search(const Board& start, const SearchOptions& options, const SearchNews& news);

/// Leaves out beats that a plan can do without, one after the other, as long as the games of the
/// search are still won.
std::string Shorten(const Board& start, std::string keys, const SearchOptions& options);

} // namespace tumbledeep
