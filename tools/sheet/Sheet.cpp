// Which picture stands where on the sheet: the rows go by the table of kinds, so that a new kind
// comes by itself. Each picture has a frame of its own with white round it.
#include "Sheet.h"

#include "pictures/Catalogue.h"

#include <algorithm>
#include <vector>

namespace tumbledeep {

namespace {

constexpr Pixel Paper{255, 255, 255, 255};
constexpr Pixel Line{216, 224, 236, 255};

/// White around each picture, and one line between the frames.
constexpr int Margin = 3;
constexpr int Frame = Bitmap::Size + 2 * Margin + 1;

struct Drawing {
    const Bitmap* Look;
    bool (*Covers)(int x, int y) = nullptr; ///< none for a picture, which is opaque
};

using Row = std::vector<Drawing>;

Drawing Of(Picture picture) { return {&Catalogue()[static_cast<std::size_t>(picture)]}; }

Row PoolRow(Picture pool, int count) {
    Row row;
    for (int i = 0; i < count; ++i) row.push_back(Of(Member(pool, i)));
    return row;
}

template <Shape Which> Drawing Of() {
    return {&ShapeBitmap(Which), [](int x, int y) { return ShapeCovers(Which, x, y); }};
}

std::vector<Row> Rows() {
    std::vector<Row> rows{{Of<Shape::You>(),
                           Of<Shape::Dirt>(),
                           Of<Shape::HardDirt>(),
                           {&StatusDisc(), StatusDiscCovers},
                           {&AppIcon(), AppIconCovers}}};
    Row single;
    std::vector<Row> members;
    for (const KindRow& row : PoolKinds()) {
        if (row.UpPic != Picture::None) {
            // The stores of the headings, and the template at the end.
            rows.push_back(PoolRow(row.UpPic, 4));
            rows.back().push_back(Of(row.Template));
        } else if (row.PictureMembers > 0) {
            members.push_back(PoolRow(row.Template, row.PictureMembers));
        } else if (!row.IsShape) {
            single.push_back(Of(row.Template));
        }
    }
    rows.push_back(single);
    rows.insert(rows.end(), members.begin(), members.end());
    return rows;
}

void DrawFrames(Image& sheet) {
    for (int y = 0; y < sheet.Height; ++y) {
        for (int x = 0; x < sheet.Width; ++x) {
            if (x % Frame == 0 || y % Frame == 0) sheet.At(x, y) = Line;
        }
    }
}

void Put(Image& sheet, int column, int row, const Drawing& drawing) {
    const int left = column * Frame + 1 + Margin;
    const int top = row * Frame + 1 + Margin;
    for (int y = 0; y < Bitmap::Size; ++y) {
        for (int x = 0; x < Bitmap::Size; ++x) {
            if (drawing.Covers && !drawing.Covers(x, y)) continue;
            sheet.At(left + x, top + y) = Opaque(drawing.Look->At(x, y));
        }
    }
}

} // namespace

Image DrawSheet() {
    const std::vector<Row> rows = Rows();
    const auto longest =
        std::max_element(rows.begin(), rows.end(), [](const Row& one, const Row& other) {
            return one.size() < other.size();
        });
    Image sheet(static_cast<int>(longest->size()) * Frame + 1,
                static_cast<int>(rows.size()) * Frame + 1, Paper);
    DrawFrames(sheet);
    for (int rowIndex = 0; const Row& row : rows) {
        for (int column = 0; const Drawing& drawing : row) {
            Put(sheet, column++, rowIndex, drawing);
        }
        ++rowIndex;
    }
    return sheet;
}

} // namespace tumbledeep
