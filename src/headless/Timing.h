// How long the load and each tick of a run take, in processor time of the thread, which no other
// program on the machine stretches. It serves map authors and whoever measures the game from
// outside; nothing that is played depends on it.
#pragma once

#include <cstdint>
#include <string>

namespace tumbledeep {

class Timing {
  public:
    /// The start-up is over, which began when this was made.
    void LoadEnds();
    void TickBegins() { begun = Now(); }
    /// The tick that began last is over. `step` is its place in the run, counted from 1.
    void TickEnds(std::int64_t step);

    /// "load MS worst MS (tick STEP) second MS mean US over N of TICKS": milliseconds, but
    /// microseconds for the mean, over the ticks that ran of those the run was to have. Before the
    /// first tick all that is told of ticks is 0.
    std::string Line(std::int64_t ticks) const;

    /// In milliseconds: the start-up, and the longest tick.
    double LoadTime() const { return Milliseconds(load); }
    double WorstTime() const { return Milliseconds(worst); }
    /// The step of the longest tick, 0 before the first.
    std::int64_t WorstStep() const { return worstStep; }

  private:
    using Nanoseconds = std::int64_t;
    static Nanoseconds Now();
    static double Milliseconds(Nanoseconds time) { return static_cast<double>(time) / 1e6; }

    Nanoseconds begun = Now();
    Nanoseconds load = 0;
    Nanoseconds worst = 0;
    Nanoseconds second = 0;
    Nanoseconds sum = 0;
    std::int64_t worstStep = 0;
    std::int64_t count = 0;
};

} // namespace tumbledeep
