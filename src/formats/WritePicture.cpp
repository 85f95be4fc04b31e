// From the lines of a map to a text picture: which objects the rows can show, with which marks, and
// what the heading must say beside them so that every object keeps its turn.
#include "formats/LongestRising.h"
#include "formats/MapText.h"
#include "formats/MarkMaker.h"
#include "formats/TextPicture.h"
#include "world/Cell.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace tumbledeep {

namespace {

/// A cell of the rows, from 0.
struct Place {
    int Row;
    int Col;
    friend bool operator<(const Place& a, const Place& b) {
        return std::tie(a.Row, a.Col) < std::tie(b.Row, b.Col);
    }
};

/// The place that a position in twips is drawn at; none between two cells and outside.
std::optional<Place> PlaceOf(float top, float left) {
    const auto index = [](float twips) -> int {
        const float whole = twips / Pitch;
        const bool drawn = whole >= 0 && whole < GridSize - 1 && !std::signbit(twips);
        return drawn && whole == std::floor(whole) && whole * Pitch == twips
                   ? static_cast<int>(whole)
                   : -1;
    };
    const Place place{index(top), index(left)};
    if (place.Row < 0 || place.Col < 0) return std::nullopt;
    return place;
}

/// An object of the map.
struct Item {
    std::string Text; ///< its line
    std::string Tag;
    std::optional<Place> Where; ///< where the rows show it; none if they don't
    bool Listed = false;        ///< the heading has a line for it
};

using Items = std::vector<Item>;

/// The place of an object in a kind's order of turns.
int TurnOf(Place place, RowOrder order) {
    return (order == RowOrder::Down ? place.Row : -place.Row) * GridSize + place.Col;
}

/// The items, by index, that the rows give in this order without one of the heading's lines; as
/// many as can be.
std::vector<std::size_t> InOrder(const Items& items, RowOrder order) {
    std::vector<std::optional<int>> turns;
    for (const Item& item : items) {
        const bool counts = item.Where && !item.Listed;
        turns.push_back(counts ? std::optional(TurnOf(*item.Where, order)) : std::nullopt);
    }
    return LongestRising(turns);
}

/// A text of the map as a line of a heading: what stands behind a line end goes on below.
std::string HeadingText(std::string_view text) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == "\r\n") continue;
        const bool ends = text[i] == '\n' || text[i] == '\r';
        ends ? line.append("\n| ") : line.append(1, text[i]);
    }
    return line += '\n';
}

class PictureWriter {
  public:
    PictureWriter(const std::string& name, const std::vector<Record>& map) {
        for (const Record& record : map) Take(name, record);
        Items& players = Of(Kind::You);
        if (players.size() > 1) players.erase(players.begin(), players.end() - 1);
        for (const Kind kind : Kinds()) PlaceItems(kind);
        MarkCells();
    }

    std::string Text(Turns wanted) {
        std::string turns;
        for (const Kind kind : Kinds()) {
            turns += wanted == Turns::Kept ? TurnsOf(kind) : NotShown(kind);
        }
        std::string legend;
        for (const auto& [mark, cell] : marks.Made()) legend += LegendLine(mark, cell);
        std::string text;
        for (const std::string& part : {talk, legend, turns}) {
            if (!part.empty()) text.append(part) += '\n';
        }
        return text + "board\n" + Rows();
    }

  private:
    static std::array<Kind, KindCount - 1> Kinds() {
        std::array<Kind, KindCount - 1> kinds{Kind::You};
        std::ranges::transform(PoolKinds(), kinds.begin() + 1, &KindRow::Which);
        return kinds;
    }

    Items& Of(Kind kind) { return items[static_cast<std::size_t>(kind)]; }

    void Take(const std::string& name, const Record& record) {
        const MapLine line = ReadMapLine(record);
        if (line.Fault) {
            throw PictureFault(name + ":" + std::to_string(line.Line) + ": " +
                               FaultText(*line.Fault) + ", and the map can't be loaded");
        }
        if (line.What == MapLine::Is::Object) {
            Of(line.Which)
                .push_back({ObjectLine(line.Which, *line.Top, *line.Left, line.Text), line.Text,
                            PlaceOf(*line.Top, *line.Left)});
        } else if (line.What == MapLine::Is::Title || WordAt(record.Text, 1) == "rem") {
            talk += HeadingText(record.Text);
        } else if (!record.Text.empty()) {
            talk += "+ ";
            talk += HeadingText(record.Text);
        }
    }

    /// Puts a kind's objects into the cells, one of the kind to a cell. The others are not shown;
    /// where one of these is the same as what is shown, both need a line.
    void PlaceItems(Kind kind) {
        std::map<Place, Item*> shown;
        for (Item& item : Of(kind)) {
            if (HasTag(kind) && !IsPlainTag(item.Tag)) item.Where.reset();
            if (!item.Where) continue;
            const auto [there, isFirst] = shown.emplace(*item.Where, &item);
            if (isFirst) continue;
            if (there->second->Text == item.Text) there->second->Listed = true;
            item.Where.reset();
        }
        for (const auto& [place, item] : shown) cells[place].push_back({kind, item->Tag});
    }

    /// Finds the marks. Cells for which none is left are not shown.
    void MarkCells() {
        std::map<Place, char> found;
        for (const auto& [place, cell] : cells) {
            if (const auto mark = marks.MarkOf(cell)) found.emplace(place, *mark);
        }
        for (Items& kind : items) {
            for (Item& item : kind) {
                if (item.Where && !found.contains(*item.Where)) item.Where.reset();
            }
        }
        rows = std::move(found);
    }

    /// The heading's lines about the turns of a kind: how its rows are taken, if in another way
    /// than always, and the objects that the rows do not show in their turn.
    std::string TurnsOf(Kind kind) {
        Items& all = Of(kind);
        const RowOrder usual = DefaultOrder(kind);
        const RowOrder other = usual == RowOrder::Down ? RowOrder::Up : RowOrder::Down;
        std::vector<std::size_t> kept = InOrder(all, usual);
        const std::vector<std::size_t> otherKept = InOrder(all, other);
        std::string lines;
        if (otherKept.size() > kept.size()) {
            kept = otherKept;
            lines.append("order ").append(KindText(kind));
            lines += other == RowOrder::Up ? " up\n" : " down\n";
        }
        for (Item& item : all) item.Listed = true;
        for (const std::size_t i : kept) all[i].Listed = false;
        const std::size_t behind = kept.empty() ? 0 : kept.back() + 1;
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (!all[i].Listed) continue;
            lines += '+';
            if (i < behind) lines += std::to_string(i + 1);
            lines += ' ';
            lines += HeadingText(all[i].Text);
        }
        return lines;
    }

    std::string NotShown(Kind kind) {
        std::string lines;
        for (const Item& item : Of(kind)) {
            if (!item.Where) lines.append("+ ").append(HeadingText(item.Text));
        }
        return lines;
    }

    static std::string LegendLine(char mark, const MarkedCell& cell) {
        std::string line{mark};
        line += " = ";
        for (const MarkedObject& object : cell) {
            if (&object != &cell.front()) line += ", ";
            line += KindText(object.Which);
            if (!object.Tag.empty()) line.append(" ").append(object.Tag);
        }
        return line += '\n';
    }

    std::string Rows() const {
        std::string text;
        Place here{0, 0};
        for (const auto& [place, mark] : rows) {
            for (; here.Row < place.Row; ++here.Row, here.Col = 0) text += '\n';
            text.append(static_cast<std::size_t>(place.Col - here.Col), ' ') += mark;
            here.Col = place.Col + 1;
        }
        return text += '\n';
    }

    std::string talk; ///< titles, comments, and what the game passes over
    std::array<Items, KindCount> items;
    std::map<Place, MarkedCell> cells;
    std::map<Place, char> rows; ///< the marks
    MarkMaker marks;
};

} // namespace

std::string WritePicture(const std::string& name, const std::vector<Record>& map, Turns turns) {
    return PictureWriter(name, map).Text(turns);
}

} // namespace tumbledeep
