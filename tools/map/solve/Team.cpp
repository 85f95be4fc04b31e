// How a team plays, and how its standing is put into numbers.
#include "map/solve/Team.h"

#include "base/Hash.h"
#include "map/bots/Replay.h"
#include "map/bots/Ways.h"

#include <algorithm>

namespace tumbledeep {

namespace {

int GemsOf(const Board& board) {
    return board.GemTotal - board.Pools[Kind::Gem1Type].HiddenCount();
}

/// By how many ticks a game's key is late at a beat.
int LatenessOf(std::size_t game, int beat) {
    if (game == 0) return 0;
    Hash hash;
    hash.Add(game);
    hash.Add(beat);
    constexpr int fineBits = 32;
    return static_cast<int>((hash.Value() >> fineBits) % (LatestTicks + 1));
}

/// What there is most of, and what never moves.
bool IsScenery(Kind kind) { return kind == Kind::HardDirt || kind == Kind::Dirt; }

float HopeOf(const Board& board) {
    constexpr float aGem = 1000;
    constexpr float lost = 1000;
    constexpr float nearestWeight = 5;
    // Those farther away are for later; a flood over all of a giant would take most of the time.
    constexpr int gemsWanted = 12;
    const Ways ways(board, Ways::Through::Hopeful, gemsWanted);
    const Pool& gems = board.Pools[Kind::Gem1Type];
    float nearest = lost;
    float sum = 0;
    int count = 0;
    for (const int gem : gems.InTurn()) {
        const int far = ways.To(gems.CellOf(gem));
        if (far == Ways::None) continue;
        nearest = std::min(nearest, static_cast<float>(far));
        sum += static_cast<float>(far);
        ++count;
    }
    const float mean = count == 0 ? lost : sum / static_cast<float>(count);
    return aGem * static_cast<float>(GemsOf(board)) + nearestWeight * nearest + mean;
}

} // namespace

Team::Team(const Board& start, int count, const Script& before) {
    for (int i = 0; i < count; ++i) {
        const auto seed = static_cast<std::uint32_t>(i + 1);
        // A script that does not hold for every seed and hand goes on where it does.
        if (i > 0 && (Join(start, seed, Late(before, seed)) || Join(start, seed, before))) continue;
        isLost = !Join(start, 1, before);
    }
}

bool Team::Join(const Board& start, std::uint32_t seed, const Script& before) {
    Game game{start};
    game.Now.Randomize(seed);
    const RunEnd run = PlayScript(game.Now, before, RestBeforePlan(before));
    game.IsWon = run.IsWon();
    if (run.IsOver() && !run.IsWon()) return false;
    games.push_back(std::move(game));
    return true;
}

bool Team::Play(char key) {
    for (std::size_t i = 0; i < games.size(); ++i) {
        Game& game = games[i];
        if (game.IsWon) continue;
        const RunEnd run = PlayBeat(game.Now, key, BeatTicks, LatenessOf(i, beat));
        game.IsWon = run.IsWon();
        isLost = run.IsOver() && !run.IsWon();
        if (isLost) return false;
    }
    ++beat;
    return true;
}

bool Team::IsWon() const { return std::ranges::all_of(games, &Game::IsWon); }

int Team::GemsLeft() const {
    int most = 0;
    for (const Game& game : games) most = std::max(most, game.IsWon ? 0 : GemsOf(game.Now));
    return most;
}

float Team::Hope() const {
    float worst = 0;
    for (const Game& game : games) {
        if (!game.IsWon) worst = std::max(worst, HopeOf(game.Now));
    }
    return worst;
}

std::uint64_t Team::Likeness() const {
    Hash hash;
    for (const Game& game : games) {
        hash.Add(game.IsWon);
        if (game.IsWon) continue;
        hash.Add(PlayerCell(game.Now).Number());
        hash.Add(game.Now.Pools[Kind::Dirt].HiddenCount());
        for (const KindRow& row : PoolKinds()) {
            if (IsScenery(row.Which)) continue;
            const Pool& pool = game.Now.Pools[row.Which];
            for (const int index : pool.InTurn()) {
                hash.Add(index);
                hash.Add(pool.CellOf(index).Number());
                hash.Add(static_cast<int>(pool[index].Tag));
            }
        }
    }
    return hash.Value();
}

std::uint64_t Team::Stock() const {
    Hash hash;
    for (const PoolSet& pools = games.front().Now.Pools; const KindRow& row : PoolKinds()) {
        if (IsScenery(row.Which) || row.Which == Kind::Bang) continue;
        const Pool& pool = pools[row.Which];
        for (const int index : pool.InTurn()) {
            hash.Add(index);
            if (row.Which == Kind::RoundRock) hash.Add(pool.CellOf(index).Number());
        }
        hash.Add(-1);
    }
    return hash.Value();
}

} // namespace tumbledeep
