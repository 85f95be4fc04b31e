// Any bytes as a map list: a start from it, and wins from map to map. Every map of the list is
// there, and is won by one step.
#include "Target.h"

#include "formats/MapList.h"
#include "formats/Profile.h"
#include "host/MemoryPlatform.h"
#include "windows/frmMain.h"

#include <algorithm>

namespace tumbledeep {

namespace {

constexpr const char* ListPath = "Z:\\game\\all.TBL";
constexpr int MostMaps = 3;

void Furnish(MemoryPlatform& system, std::string_view bytes, const std::vector<Record>& list) {
    system.Files[ListPath] = bytes;
    system.Settings() = "[AutoMove]\nMOVE=False\n";
    constexpr std::size_t most = 20;
    for (std::size_t i = 0; i < std::min(list.size(), most); ++i) {
        system.Files[std::string(MemoryPlatform::Directory) + "\\" + list[i].Text + ".TBM"] =
            "you 0 0\ngem1type 0 360\n";
    }
}

/// One process, which wins its map if it has one. The name of that map, "" without one.
std::string PlayOne(MemoryPlatform& system) {
    system.Log.clear();
    system.Answers = {"yes", "no"};
    frmMain game(system);
    try {
        game.MDIForm_Activate();
        game.Take({PlayerAct::Do::Type, "d"});
        for (int i = 0; i < RecountPeriod; ++i) game.TimerPeriod();
    } catch (const ProgramEnd&) {
    }
    return game.ActiveChild.LevelName;
}

void LawsOfSearch(std::string_view bytes, const std::vector<Record>& list) {
    for (const Record& record : list) {
        const ListSearch search = FindNext(FieldInput(std::string(bytes)), record.Text);
        Hold(search.Found, "what stands in a list is found");
        const bool known =
            !search.Next || std::ranges::any_of(list, [&search](const Record& other) {
                return other.Text == *search.Next;
            });
        Hold(known, "what follows stands in the list");
    }
}

} // namespace

void Fuzz(std::string_view bytes) {
    const std::vector<Record> list = ReadMapList(std::string(bytes));
    if (list.size() <= 50) LawsOfSearch(bytes, list);
    const std::vector<Record> again = ReadMapList(WriteRecords(list));
    Hold(std::ranges::equal(list, again, {}, &Record::Text, &Record::Text),
         "records that are written are read again");

    MemoryPlatform system;
    Furnish(system, bytes, list);
    system.CommandLine = "all.TBL";
    for (int map = 0; map < MostMaps; ++map) {
        const std::string won = PlayOne(system);
        if (won.empty() || !system.Log.ends_with("; end")) return;
        const ListSearch search = FindNext(FieldInput(std::string(bytes)), won);
        const bool goesOn = system.Log.ends_with("start .\\tumbledeep; end");
        Hold(goesOn == (search.Next.has_value()), "a won map goes on to the next one of its list");
        if (!goesOn) return;
        const std::string load = ProfileValue(system.Settings(), "Level", "LOAD");
        const std::string next = *search.Next + ".TBM";
        Hold(load == next.substr(0, next.find_first_of("\r\n")), "the next map is written");
        system.CommandLine.clear();
    }
}

} // namespace tumbledeep
