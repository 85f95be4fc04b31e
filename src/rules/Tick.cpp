// One tick of the clock: a table says which routines are due and in which order. The order is a
// rule of the game, since a routine sees the board as those before it on the same tick have left
// it. Who calls Tick, and how often, is the front end's; what shows in the window is frmDocument's.
#include "world/Board.h"

#include <bit>

namespace tumbledeep {

namespace {

/// A routine and the multiples of the counter at which it is due.
struct Due {
    int Multiple;
    void (*Run)(Board& board, HeldKeys held);
};

template <auto Routine> void Plain(Board& board, HeldKeys /*held*/) { (board.*Routine)(); }

void PollUnlessDead(Board& board, HeldKeys held) {
    if (!board.YouDead) board.PollArrowKeys(held);
}

constexpr std::array<Due, 13> Clock{{
    {RecountPeriod, Plain<&Board::CheckGameEnd>},
    {10, Plain<&Board::FactoryTick>},
    {10, Plain<&Board::MineLTick>},
    {10, Plain<&Board::MineFLTick>},
    {10, Plain<&Board::MineRTick>},
    {10, Plain<&Board::MineTTick>},
    {6, Plain<&Board::RockTick>},
    {6, Plain<&Board::GemTick>},
    {6, Plain<&Board::BangTick>},
    {6, PollUnlessDead},
    {StatusPeriod, Plain<&Board::ShowGemsRemaining>},
    {30, Plain<&Board::MinePPTick>},
    {20, Plain<&Board::MinePTick>},
}};

/// By the value of the counter, the rows of the clock that are due, a bit for each: most ticks have
/// none, and a map at rest should cost no more than asking that.
constexpr auto DueRows = []() {
    std::array<unsigned, LastTick + 1> rows{};
    for (std::size_t tick = 0; tick < rows.size(); ++tick) {
        for (std::size_t row = 0; row < Clock.size(); ++row) {
            const bool due = static_cast<int>(tick) % Clock.at(row).Multiple == 0;
            rows.at(tick) |= due ? 1U << row : 0U;
        }
    }
    return rows;
}();

} // namespace

Outcome Board::Tick(HeldKeys held) {
    Result = Outcome::Running;
    Walks.Clear();
    TickCount = NextTick();
    for (unsigned due = DueRows.at(static_cast<std::size_t>(TickCount)); due != 0; due &= due - 1) {
        Clock.at(static_cast<std::size_t>(std::countr_zero(due))).Run(*this, held);
        if (Result != Outcome::Running) return Result;
    }
    MoveReady = true;
    return Result;
}

Outcome Board::Period(std::string_view letters, HeldKeys held) {
    for (const char& letter : letters) MoveYou({&letter, 1});
    return Interval100Timer.Enabled ? Tick(held) : Outcome::Running;
}

void Board::Die(Outcome road) {
    YouDead = true;
    Result = road;
}

} // namespace tumbledeep
