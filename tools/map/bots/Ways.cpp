// Cells are taken in the order of their distance: a queue for each distance of the next few.
#include "map/bots/Ways.h"

#include "rules/player/StepKeys.h"

#include <array>
#include <cmath>

namespace tumbledeep {

namespace {

/// What a step into a cell costs, 0 for no way at all.
int Price(const Board& board, Cell to, Heading way, Ways::Through rule) {
    const Kind kind = board.Area(to);
    if (kind == Kind::Empty || kind == Kind::Dirt || kind == Kind::Gem1Type) return 1;
    const bool isPushed = kind == Kind::RoundRock || kind == Kind::MovingMineT;
    if (isPushed && !IsVertical(way) && board.Area(to + Ahead(way)) == Kind::Empty) return 1;
    if (rule == Ways::Through::Free || kind == Kind::HardDirt) return 0;
    constexpr int heavy = 7;
    constexpr int passing = 4;
    return isPushed ? heavy : passing;
}

constexpr std::size_t Queues = 8; ///< more than the highest price

} // namespace

Cell PlayerCell(const Board& board) {
    return {GridIndex(board.YouCol), GridIndex(static_cast<float>(board.YouRow))};
}

Ways::Ways(const Board& board, Through rule, int gemsWanted)
    : marks(static_cast<std::size_t>(Cell::RowLength) *
            static_cast<std::size_t>(board.Area.UsedRows() + 2 * Cell::Margin + 1)) {
    Spread(board, PlayerCell(board), rule, gemsWanted);
}

void Ways::Spread(const Board& board, Cell from, Through rule, int gemsWanted) {
    if (from.Number() >= marks.size()) return;
    std::array<std::vector<Cell>, Queues> queues;
    marks[from.Number()].Far = 0;
    queues[0].push_back(from);
    std::size_t waiting = 1;
    const int farthest = None - static_cast<int>(Queues);
    for (int far = 0; waiting > 0 && gemsWanted > 0 && far < farthest; ++far) {
        std::vector<Cell>& queue = queues.at(static_cast<std::size_t>(far) % Queues);
        waiting -= queue.size();
        for (const Cell cell : queue) {
            if (marks[cell.Number()].Far != far) continue;
            if (board.Area(cell) == Kind::Gem1Type) --gemsWanted;
            for (const Heading way : Headings) {
                const Cell next = cell + Ahead(way);
                if (next.Number() >= marks.size()) continue;
                const int price = Price(board, next, way, rule);
                Mark& mark = marks[next.Number()];
                if (price == 0 || mark.Far <= far + price) continue;
                mark = {static_cast<std::int16_t>(far + price), way};
                queues.at(static_cast<std::size_t>(far + price) % Queues).push_back(next);
                ++waiting;
            }
        }
        queue.clear();
    }
}

int Ways::To(Cell cell) const {
    return cell.Number() < marks.size() ? marks[cell.Number()].Far : None;
}

char Ways::FirstKey(Cell cell) const {
    Heading way = Heading::Up;
    while (marks[cell.Number()].Far > 0) {
        way = marks[cell.Number()].Came;
        cell = cell + Ahead(Opposite(way));
    }
    return KeyOf(way).front();
}

} // namespace tumbledeep
