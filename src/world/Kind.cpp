// The table. Whoever adds a kind adds its row here, its picture in pictures/ and its routine in
// rules/.
#include "world/Kind.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

/// Where the templates of picture pools stand: far from every board.
constexpr float Away = -100000;

struct Names {
    std::string_view Text;
    std::string_view Pool;
};

/// A filled square; the layout has its template at a place of its own.
constexpr KindRow Shape(Kind kind, Names names, int stamped, float left, float top) {
    return {kind,    names.Text, names.Pool, TagUse::None, Picture::None, Picture::None, 0,
            stamped, true,       left,       top};
}

/// Each sprite draws one of `members` pictures; nobody reads its tag.
constexpr KindRow Drawn(Kind kind, Names names, int stamped, Picture first, int members) {
    return {kind,    names.Text, names.Pool, TagUse::None, first, Picture::None,
            members, stamped,    false,      Away,         Away};
}

/// A mine that shows its heading, from the store of heading "U" on, once it has turned.
constexpr KindRow Headed(Kind kind, Names names, int stamped, Picture bare, Picture up) {
    return {kind, names.Text, names.Pool, TagUse::Heading, bare, up, 0, stamped, false, Away, Away};
}

/// One look for good.
constexpr KindRow Plain(Kind kind, Names names, int stamped, Picture look,
                        TagUse tag = TagUse::None) {
    return {kind, names.Text, names.Pool, tag, look, Picture::None, 0, stamped, false, Away, Away};
}

// The places among the stamps decide who owns a cell that several objects share: the last. A PP
// mine has none, so its cell reads empty until its first step; tests/films/SetUpTest.cpp pins it.
constexpr std::array<KindRow, PoolCount> Rows{
    Shape(Kind::HardDirt, {"harddirt", "HardDirt"}, 2, 2760, 4560),
    Shape(Kind::Dirt, {"dirt", "Dirt"}, 3, 3240, 4560),
    Drawn(Kind::Gem1Type, {"gem1type", "Gem1Type"}, 1, Picture::GemTypePic, GemTypePicCount),
    Drawn(Kind::RoundRock, {"roundrock", "RoundRock"}, 4, Picture::RoundRockPic, RoundRockPicCount),
    Plain(Kind::MovingMineT, {"movingmineT", "MovingMineT"}, 5, Picture::MovingMineT),
    Headed(Kind::MovingMineL, {"movingmineL", "MovingMineL"}, 7, Picture::MovingMineL,
           Picture::MovingMineLUpPic),
    Headed(Kind::MovingMineR, {"movingmineR", "MovingMineR"}, 6, Picture::MovingMineR,
           Picture::MovingMineRUpPic),
    Headed(Kind::MovingMineFL, {"movingmineFL", "MovingMineFL"}, 8, Picture::MovingMineFL,
           Picture::MovingMineFLUpPic),
    Headed(Kind::MovingMineP, {"movingmineP", "MovingMineP"}, 9, Picture::MovingMineP,
           Picture::MovingMinePUpPic),
    Headed(Kind::MovingMinePP, {"movingminePP", "MovingMinePP"}, 0, Picture::MovingMinePP,
           Picture::MovingMinePPUpPic),
    Plain(Kind::Factory, {"factory", "Factory"}, 0, Picture::Factory, TagUse::Recipe),
    Plain(Kind::Bang, {"bang", "Bang"}, 0, Picture::Bang),
};

} // namespace

std::span<const KindRow, PoolCount> PoolKinds() { return Rows; }

const KindRow& RowOf(Kind kind) { return Rows.at(static_cast<std::size_t>(kind) - FirstPool); }

std::string_view KindText(Kind kind) {
    if (kind == Kind::Empty) return "";
    return kind == Kind::You ? "you" : RowOf(kind).Text;
}

std::optional<Kind> KindNamed(std::string_view text) {
    if (text == KindText(Kind::You)) return Kind::You;
    const auto found = std::find_if(Rows.begin(), Rows.end(),
                                    [text](const KindRow& row) { return row.Text == text; });
    return found == Rows.end() ? std::nullopt : std::optional(found->Which);
}

} // namespace tumbledeep
