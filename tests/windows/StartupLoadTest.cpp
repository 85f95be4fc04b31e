// All ways into a map: the dialogs shown, the settings written, the files opened, the captions.
// What a map holds is in formats/MapTextTest.cpp.
#include "host/MemoryPlatform.h"
#include "windows/Settings.h"
#include "windows/frmMain.h"

#include <gtest/gtest.h>

#include <string>

namespace tumbledeep {

namespace {

struct Start {
    const char *What, *Settings, *Command, *Answer; ///< settings of [Level]; the dialog's answer
    const char *Log, *Caption, *BoardCaption;       ///< the caption behind "Tumble Deep"
};

constexpr Start Starts[] = {
    {"first start, a map from elsewhere", "", "", "Z:\\maps\\one.TBM",
     "ask; LOAD=one.TBM; LOAD=one.TBM; read Z:\\maps\\one.TBM", " - one", "one.TBM"},
    {"a list from the dialog lies beside the program, its map beside the list", "", "",
     "Z:\\maps\\all.TBL",
     "ask; MAPLIST=all; read .\\all.TBL; LOAD=one; STARTMAP=True; LOAD=one.TBM; LOAD=one.TBM; "
     "read Z:\\maps\\one.TBM",
     " - one", "one.TBM"},
    {"usual start", "LOAD= one.TBM ", "", "", "LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", "",
     "one.TBM"},
    {"a bare entry of a list", "LOAD=low", "", "", "LOAD=low.tbm; read .\\low.tbm", " - low",
     "low.tbm"},
    {"one doubled extension goes, and no more", "LOAD=low.TBM.tbm.TBM", "", "",
     "LOAD=low.TBM.tbm.TBM; LOAD=low.TBM.tbm; read .\\low.TBM.tbm", "", "low.TBM.tbm"},
    {"argument with a drive", "LOAD=low.tbm", "Z:\\maps\\one.TBM", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\maps\\one.TBM", " - one", "one.TBM"},
    {"argument in quotes", "", "\"Z:\\my maps\\one.TBM\"", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\my maps\\one.TBM", " - one", "one.TBM"},
    {"list as argument", "", "all.TBL", "",
     "MAPLIST=all; LOAD=all.TBL.tbm; read .\\all.TBL; LOAD=one.TBM; read .\\one.TBM", " - all.TBL",
     "one.TBM"},
    {"start map off: the argument is ignored", "LOAD=low.tbm\nSTARTMAP= False ",
     "Z:\\maps\\one.TBM", "Z:\\game\\low.tbm", "ask; LOAD=low.tbm; LOAD=low.tbm; read .\\low.tbm",
     " - low", "low.tbm"},
    {"not found twice", "LOAD=gone.TBM", "", "Z:\\maps\\lost.TBM",
     "LOAD=gone.TBM; LOAD=gone.TBM; read .\\gone.TBM; ask; LOAD=lost.TBM; LOAD=lost.TBM; "
     "read Z:\\maps\\lost.TBM; box 16 The map lost.TBM can't be opened.; end",
     " - lost", "lost.TBM"},
    {"empty list from the dialog", "", "", "Z:\\game\\empty.TBL",
     "ask; MAPLIST=empty; read .\\empty.TBL; box 16 The map list empty.TBL is empty.; end", "",
     "Area"},
    {"an argument in small letters names nothing", "LOAD=low.tbm", "one.tbm", "Z:\\maps\\one.TBM",
     "LOAD=.tbm; read .\\.tbm; ask; LOAD=one.TBM; LOAD=one.TBM; read Z:\\maps\\one.TBM",
     " -  - one", "one.TBM"},
    {"behind a list whose map is missing the map that is picked counts as a list", "", "gone.TBL",
     "Z:\\maps\\one.TBM",
     "MAPLIST=gone; LOAD=gone.TBL.tbm; read .\\gone.TBL; LOAD=none.TBM; read .\\none.TBM; ask; "
     "LOAD=one.TBM; read Z:\\maps\\one; box 16 The map list one can't be opened.; end",
     " - gone.TBL - one", "none.TBM"},
    {"malformed map", "LOAD=bad.TBM", "", "",
     "LOAD=bad.TBM; LOAD=bad.TBM; read .\\bad.TBM; box 0 An unknown error occured13", "",
     "bad.TBM"},
};

/// The log with a short name for the dialog at start, and writes of [Level] by their key.
std::string Brief(std::string told) {
    const std::string dialog =
        "open .; Open; Tumbledeep map or maplist (*.TBM , *.TBL)|*.TBM;*.TBL";
    if (const std::size_t at = told.find(dialog); at < told.size())
        told.replace(at, dialog.size(), "ask");
    for (std::size_t at = 0; (at = told.find("[Level] ")) < told.size();) told.erase(at, 8);
    return told;
}

TEST(StartupLoad, RoadsIntoAMap) {
    for (const Start& start : Starts) {
        SCOPED_TRACE(start.What);
        MemoryPlatform services;
        for (const char* map : {"Z:\\maps\\one.TBM", "Z:\\my maps\\one.TBM", "Z:\\game\\one.TBM",
                                "Z:\\game\\low.tbm", "Z:\\game\\low.TBM.tbm"}) {
            services.Files[map] = "you 0 0\ngem1type 0 360\n";
        }
        services.Files["Z:\\game\\all.TBL"] = "one\ntwo\n";
        services.Files["Z:\\game\\empty.TBL"] = "";
        services.Files["Z:\\game\\gone.TBL"] = "none\n";
        services.Files["Z:\\game\\bad.TBM"] = "dirt x 0\n";
        services.Settings() =
            std::string("[Level]\n") + start.Settings + "\n[AutoMove]\nMOVE=False\n";
        services.CommandLine = start.Command;
        services.Answers = {start.Answer};
        frmMain game(services);
        try {
            game.MDIForm_Activate();
        } catch (const ProgramEnd&) {
            EXPECT_TRUE(services.Log.ends_with("; end"));
        }
        EXPECT_EQ(Brief(services.Log), start.Log);
        EXPECT_EQ(game.Form.Caption, std::string("Tumble Deep") + start.Caption);
        EXPECT_EQ(game.ActiveChild.Form.Caption, start.BoardCaption);
        const bool off = std::string_view(start.Settings).find("False") != std::string::npos;
        EXPECT_EQ(game.Entry("MnuStartLastMap").Checked, !off);
    }
}

TEST(StartupLoad, OfASettingsValueThe749thCharacterIsTheLast) {
    MemoryPlatform services;
    services.Settings() = "[Level]\nLOAD=" + std::string(748, 'x') + "yz\n";
    EXPECT_EQ(IniRead(services, "Level", "Load"), std::string(748, 'x') + "y");
}

TEST(StartupLoad, TitlesComeWhereTheyStandAndTheLastYouCounts) {
    MemoryPlatform services;
    services.Settings() = "[Level]\nLOAD=m.TBM\n[AutoMove]\nMOVE=False\n";
    services.Files["Z:\\game\\m.TBM"] = "you 0 0\ntitle a b\nyou 360 720\ntitle c\ndirt x 0\n";
    frmMain game(services);
    game.MDIForm_Activate();
    EXPECT_TRUE(services.Log.ends_with(
        "read .\\m.TBM; box 0 a b; box 0 c; box 0 An unknown error occured13"));
    services.Files["Z:\\game\\m.TBM"] = "you 0 0\nyou 360 720\n";
    frmMain whole(services);
    whole.MDIForm_Activate();
    EXPECT_EQ(whole.ActiveChild.Area(1, 1), Kind::Empty);
    EXPECT_EQ(whole.ActiveChild.Area(3, 2), Kind::You);
}

} // namespace

} // namespace tumbledeep
