// How a pattern becomes the lines of a map. The character of a cell is looked up in one table.
#include "Pattern.h"

#include "Boards.h"
#include "formats/LoadMap.h"

#include <array>
#include <string_view>

namespace tumbledeep {

namespace {

/// In the order of the pools.
constexpr std::string_view Letters = "#.*OTLRFPQf";

/// The lines of a map, and how many there are of each kind.
class Lines {
  public:
    explicit Lines(const Pattern& pattern) : of(pattern) {}

    void Wall(int col, int row) { Put(Kind::HardDirt, "", col, row, 0); }

    void Cell(int col, int row) {
        const Kind kind = KindAt(static_cast<std::size_t>(col), static_cast<std::size_t>(row));
        if (kind == Kind::Empty) return;
        const bool factory = kind == Kind::Factory;
        const TagUse use = RowOf(kind).Tag;
        Put(kind, factory ? of.Recipe : (use == TagUse::Heading ? of.Tag : ""), col + 1, row + 1,
            factory ? 0 : of.Aside);
    }

    std::string Text = Endless;

  private:
    Kind KindAt(std::size_t col, std::size_t row) const {
        const std::string& cells = of.Picture[row % of.Picture.size()];
        return KindOf(cells[col % cells.size()]);
    }

    void Put(Kind kind, const std::string& tag, int col, int row, float aside) {
        int& count = counts[static_cast<std::size_t>(kind)];
        const int endless = kind == Kind::Gem1Type ? 1 : 0;
        if (count >= Full - endless) return;
        ++count;
        Text += LineOf({std::string(KindText(kind)), tag}, static_cast<float>(col) * Pitch + aside,
                       static_cast<float>(row) * Pitch);
    }

    const Pattern& of;
    std::array<int, KindCount> counts{};
};

} // namespace

Kind KindOf(char letter) {
    const std::size_t found = Letters.find(letter);
    return found < Letters.size() ? PoolKinds()[found].Which : Kind::Empty;
}

std::string MapOf(const Pattern& pattern) {
    Lines lines(pattern);
    const int bottom = pattern.Rows + pattern.FreeRows + 1;
    for (int col = 0; col <= pattern.Cols + 1; ++col) {
        lines.Wall(col, 0);
        lines.Wall(col, bottom);
    }
    for (int row = 1; row < bottom; ++row) {
        lines.Wall(0, row);
        lines.Wall(pattern.Cols + 1, row);
    }
    for (int i = 0; i < pattern.Rows; ++i) {
        const int row = pattern.LowestFirst ? pattern.Rows - 1 - i : i;
        for (int col = 0; col < pattern.Cols; ++col) lines.Cell(col, row);
    }
    return lines.Text;
}

Board BoardOf(const Pattern& pattern) {
    Board board = LoadMap(MapOf(pattern), 1);
    board.Stamp(Kind::MovingMinePP);
    return board;
}

} // namespace tumbledeep
