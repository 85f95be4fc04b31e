// Children of a beat are played once to be judged and thrown away again; those that are chosen are
// played anew from their parents. So a beam costs the memory of two generations, whatever its
// width.
#include "map/solve/Search.h"

#include "map/bots/Parallel.h"
#include "map/solve/Team.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>

namespace tumbledeep {

namespace {

constexpr std::array<char, 5> Choices{'w', 'a', 's', 'd', ' '};

/// A team that a key has made of one of the last generation, as it is judged.
struct Child {
    int Parent = 0;
    char Key = ' ';
    bool IsWon = false;
    int GemsLeft = 0;
    float Hope = 0;
    std::uint64_t Likeness = 0;
    std::uint64_t Stock = 0;
};

class Beam {
  public:
    Beam(const Board& start, const SearchOptions& how) : options(how) {
        Team first(start, options.Games, options.Before);
        if (first.IsLost()) throw std::runtime_error("the script to go on from loses the map");
        best.GemsLeft = first.GemsLeft();
        best.IsWon = first.IsWon();
        generation.push_back({std::move(first), ""});
    }

    SearchEnd Run(const SearchNews& news) {
        // Beats in which nothing was won: behind them there is seldom anything to come.
        constexpr int patience = 250;
        int sinceGain = 0;
        while (!generation.empty() && !best.IsWon && sinceGain < patience) {
            if (std::chrono::steady_clock::now() > options.Until) {
                best.TimeIsOver = true;
                break;
            }
            const int gemsBefore = best.GemsLeft;
            std::vector<Child> children = Children();
            Note(children);
            Choose(children);
            Advance(children);
            sinceGain = best.GemsLeft < gemsBefore ? 0 : sinceGain + 1;
            ++beats;
            news(best.GemsLeft, beats);
        }
        return best;
    }

  private:
    struct Node {
        Team Games;
        std::string Keys;
    };

    std::vector<Child> Children() {
        std::vector<std::vector<Child>> byParent(generation.size());
        ForAll(static_cast<int>(generation.size()), [&](int parent) {
            const auto place = static_cast<std::size_t>(parent);
            for (const char key : Choices) {
                Team team = generation[place].Games;
                if (!team.Play(key)) continue;
                byParent[place].push_back({parent, key, team.IsWon(), team.GemsLeft(), team.Hope(),
                                           team.Likeness(), team.Stock()});
            }
        });
        std::vector<Child> all;
        std::unordered_set<std::uint64_t> alike;
        for (const std::vector<Child>& some : byParent) {
            for (const Child& child : some) {
                if (alike.insert(child.Likeness).second) all.push_back(child);
            }
        }
        return all;
    }

    /// Keeps the keys of the best child, if there is none better yet.
    void Note(const std::vector<Child>& children) {
        for (const Child& child : children) {
            if (!child.IsWon && child.GemsLeft >= best.GemsLeft) continue;
            best.IsWon = child.IsWon;
            best.GemsLeft = child.GemsLeft;
            best.Keys = generation[static_cast<std::size_t>(child.Parent)].Keys + child.Key;
            if (child.IsWon) return;
        }
    }

    /// Leaves the children that go on: half of the places to the most hopeful, half to those whose
    /// stock has seldom been met, and to one stock only a part of either.
    void Choose(std::vector<Child>& children) {
        const auto width = static_cast<std::size_t>(options.Width);
        if (children.size() <= width) return;
        std::vector<Child> chosen;
        Take(children, chosen, width / 2);
        constexpr float forgetting = 60;
        for (Child& child : children) {
            child.Hope += forgetting * std::log2(1.0F + static_cast<float>(met[child.Stock]));
        }
        Take(children, chosen, width);
        for (const Child& child : chosen) ++met[child.Stock];
        children = std::move(chosen);
    }

    /// Moves the best children over until `chosen` has so many.
    void Take(std::vector<Child>& children, std::vector<Child>& chosen, std::size_t count) const {
        std::ranges::stable_sort(children, {}, &Child::Hope);
        const int most = std::max(3, options.Width / 8);
        std::unordered_map<std::uint64_t, int> taken;
        std::vector<Child> rest;
        for (const Child& child : children) {
            const bool hasRoom = chosen.size() < count && taken[child.Stock]++ < most;
            (hasRoom ? chosen : rest).push_back(child);
        }
        children = std::move(rest);
    }

    void Advance(const std::vector<Child>& children) {
        std::vector<Node> next(children.size());
        ForAll(static_cast<int>(children.size()), [&](int i) {
            const Child& child = children[static_cast<std::size_t>(i)];
            Node& node = next[static_cast<std::size_t>(i)];
            node = generation[static_cast<std::size_t>(child.Parent)];
            node.Games.Play(child.Key);
            node.Keys += child.Key;
        });
        generation = std::move(next);
    }

    const SearchOptions& options;
    std::vector<Node> generation;
    std::unordered_map<std::uint64_t, int> met; ///< how often a stock has gone on
    SearchEnd best;
    int beats = 0;
};

bool Wins(const Team& start, const std::string& keys) {
    Team team = start;
    for (const char key : keys) {
        if (!team.Play(key)) return false;
    }
    // The gems are counted every ten ticks only.
    return team.IsWon() || (team.Play(' ') && team.IsWon());
}

} // namespace

int FirstWidth(const Board& start) {
    constexpr int usual = 50;
    constexpr int narrow = 10;
    constexpr int many = 3000;
    int sprites = 0;
    for (const KindRow& row : PoolKinds()) sprites += start.Pools[row.Which].Count();
    return sprites < many ? usual : narrow;
}

SearchEnd Search(const Board& start, const SearchOptions& options, const SearchNews& news) {
    return Beam(start, options).Run(news);
}

std::string Shorten(const Board& start, std::string keys, const SearchOptions& options) {
    const Team team(start, options.Games, options.Before);
    for (std::size_t i = 0; i < keys.size();) {
        if (std::chrono::steady_clock::now() > options.Until) break;
        std::string shorter = keys;
        shorter.erase(i, 1);
        if (Wins(team, shorter)) {
            keys = std::move(shorter);
        } else {
            ++i;
        }
    }
    return keys;
}

} // namespace tumbledeep
