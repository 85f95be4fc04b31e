// The search in the list that is in use.
#include "desktop/MapPlace.h"

#include "base/Failure.h"
#include "formats/FieldInput.h"
#include "formats/ProgramPath.h"
#include "host/Platform.h"

namespace tumbledeep {

namespace {

/// Where a list names a map, from 1, and how many it names. 0 if it does not.
struct Position {
    int Number = 0;
    int Count = 0;
};

Position PositionIn(FieldInput list, std::string_view map) {
    Position position;
    while (!list.AtEnd()) {
        ++position.Count;
        // The game, too, goes on behind the first of equal names.
        if (list.Next().Text == map && position.Number == 0) position.Number = position.Count;
    }
    return position;
}

} // namespace

std::string MapInList(const frmMain& game, Platform& files) {
    const std::string& file = game.ActiveChild.Form.Caption;
    if (file != game.CurrentMap || file.empty()) return "";
    std::string map = WithoutExtension(file);
    const std::string list = game.ListInUse();
    const std::string listName = " in " + WithoutExtension(list);
    try {
        const Position position =
            PositionIn(FieldInput(files.OpenForInput(files.AppPath() + "\\" + list)), map);
        if (position.Number == 0) return map + ", not" + listName;
        return map + ", " + std::to_string(position.Number) + " of " +
               std::to_string(position.Count) + listName;
    } catch (const Failure&) {
        return map;
    }
}

std::string ViewName(const frmDocument& board) {
    if (!board.AutoMoveOn) return "";
    switch (board.AutoMoveMode) {
    case ViewMode::Centre: return "Centre";
    case ViewMode::GradualCentre: return "Gradual Centre";
    case ViewMode::EdgeOfScreen: return "Edge of screen";
    default: return "";
    }
}

} // namespace tumbledeep
