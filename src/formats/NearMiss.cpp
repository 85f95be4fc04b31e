// How near two words are: the letters to be put in, left out or exchanged, whatever their case.
#include "formats/NearMiss.h"

#include "base/Text.h"
#include "world/Kind.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace tumbledeep {

namespace {

/// What things are called by those who do not know their names yet.
constexpr std::array<std::array<std::string_view, 2>, 12> Usual{{{"wall", "harddirt"},
                                                                 {"rock", "roundrock"},
                                                                 {"boulder", "roundrock"},
                                                                 {"stone", "roundrock"},
                                                                 {"gem", "gem1type"},
                                                                 {"diamond", "gem1type"},
                                                                 {"earth", "dirt"},
                                                                 {"player", "you"},
                                                                 {"start", "you"},
                                                                 {"bomb", "movingmineT"},
                                                                 {"mine", "movingmineT"},
                                                                 {"blast", "bang"}}};

std::size_t Edits(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t same = AsciiLower(a[i]) == AsciiLower(b[j]) ? 0 : 1;
            const std::size_t best = std::min({row[j] + 1, row[j + 1] + 1, diagonal + same});
            diagonal = std::exchange(row[j + 1], best);
        }
    }
    return row.back();
}

} // namespace

std::string_view NearMiss(std::string_view word, std::span<const std::string_view> names) {
    const auto has = [&](std::string_view name) {
        return std::ranges::find(names, name) != names.end();
    };
    for (const std::string_view name : names) {
        if (SameButCase(word, name)) return name;
    }
    for (const auto& [usual, name] : Usual) {
        if (SameButCase(word, usual) && has(name)) return name;
    }
    constexpr std::size_t shortWord = 4; // in which two letters off are another word
    std::string_view nearest;
    std::size_t fewest = word.size() > shortWord ? 3 : 2;
    for (const std::string_view name : names) {
        if (word.size() > name.size() + 2 || name.size() > word.size() + 2) continue;
        const std::size_t edits = Edits(word, name);
        if (edits >= std::min(fewest, name.size() > shortWord ? fewest : 2)) continue;
        nearest = name;
        fewest = edits;
    }
    return nearest;
}

std::string Listed(std::span<const std::string_view> names) {
    std::string text;
    for (const std::string_view name : names) text.append(text.empty() ? "" : " ").append(name);
    return text;
}

std::vector<std::string_view> Keywords() {
    std::vector<std::string_view> names{"title", KindText(Kind::You)};
    for (const KindRow& row : PoolKinds()) {
        if (row.Which != Kind::Bang) names.push_back(row.Text);
    }
    return names;
}

std::vector<std::string_view> Products() {
    std::vector<std::string_view> names;
    for (const KindRow& row : PoolKinds()) {
        if (row.Which != Kind::Factory) names.push_back(row.Text);
    }
    return names;
}

} // namespace tumbledeep
