// Bots that play a map to see whether it can be won without thought: one presses keys at random,
// one goes for the nearest gem, one does nothing at all. A board goes in, its end comes out.
#pragma once

#include "world/Board.h"

#include <cstdint>
#include <string>

namespace tumbledeep {

/// From one key of a bot to the next, in ticks: some eight keys a second, as a hand does.
inline constexpr int BeatTicks = 12;

/// How a run ended, and after how many periods of the timer.
struct RunEnd {
    Outcome End = Outcome::Running;
    std::int64_t Ticks = 0;
    bool IsWon() const { return End == Outcome::Won; }
    bool IsOver() const { return End != Outcome::Running; }
};

/// Plays one beat: a key, none if it is a blank, before the period with the number `delay`, from 0.
/// Stops when the map ends.
RunEnd PlayBeat(Board& board, char key, int ticks = BeatTicks, int delay = 0);

/// Nobody touches a key.
RunEnd RunIdle(Board board, std::int64_t ticks);
/// A step any way at each beat, drawn from the seed.
RunEnd RunRandom(Board board, std::uint32_t seed, std::int64_t ticks);
/// A step towards the nearest gem at each beat, whatever the danger; what is in the way is pushed
/// if it can be. Without a way to any gem it waits. `keys`, if given, gets a sign for each beat.
RunEnd RunGreedy(Board board, std::int64_t ticks, std::string* keys = nullptr);

} // namespace tumbledeep
