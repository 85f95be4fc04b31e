// The table of kinds, a row for each kind that has a pool, and look-ups in it. Whoever adds a kind
// adds its row here, its pictures in world/Picture.h and pictures/, and its routine in rules/.
#include "world/Kind.h"

#include <algorithm>
#include <array>

namespace tumbledeep {

namespace {

/// In twips, left and top: where the templates of kinds with pictures stand, far from every board.
constexpr float Away = -100000;

/// The two names of a kind, as in KindRow.
struct Names {
    std::string_view Text;
    std::string_view PoolName;
};

/// A kind drawn as a filled square. Its template stands at a place of its own, which shows in the
/// trace and in a sprite whose line could not be read.
constexpr KindRow Shape(Kind kind, Names names, int stamped, float left, float top) {
    return {kind,    names.Text, names.PoolName, TagUse::None, Picture::None, Picture::None, 0,
            stamped, true,       left,           top};
}

/// A kind whose sprites each draw one of `members` pictures, the first being `first`.
constexpr KindRow Drawn(Kind kind, Names names, int stamped, Picture first, int members) {
    return {kind,    names.Text, names.PoolName, TagUse::None, first, Picture::None,
            members, stamped,    false,          Away,         Away};
}

/// A mine with a heading. It shows one of the four pictures from `up` on, or `bare` until set-up or
/// its first turn has given it one of those.
constexpr KindRow Headed(Kind kind, Names names, int stamped, Picture bare, Picture up) {
    return {kind, names.Text, names.PoolName, TagUse::Heading, bare, up, 0, stamped, false,
            Away, Away};
}

/// A kind that shows one picture for good.
constexpr KindRow Plain(Kind kind, Names names, int stamped, Picture look,
                        TagUse tag = TagUse::None) {
    return {kind, names.Text, names.PoolName, tag,  look, Picture::None,
            0,    stamped,    false,          Away, Away};
}

// The numbers from 1 to 9 are the order in which kinds are written into the grid at a map's start:
// of objects that share a cell the last one owns it. PP mines and factories have 0 and are not
// written, so that a PP mine's cell reads empty until its first step. tests/films/SetUpTest.cpp
// pins both.
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

bool HasTag(Kind kind) { return kind != Kind::You && RowOf(kind).Tag != TagUse::None; }

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
