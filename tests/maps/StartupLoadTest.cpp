// All roads into a map: the dialogs shown, the settings written, the files opened, the captions.
#include "shell/frmMain.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>

namespace tumbledeep {

namespace {

struct Start {
    const char* What;
    const char* Settings; ///< of [Level]
    const char* Command;
    const char* Answer;  ///< to the dialog, "" cancels
    const char* Log;     ///< lines with "; " between them, "LOAD=" being a write of [Level]
    const char* Caption; ///< behind "Tumble Deep"
    const char* BoardCaption;
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
    {"mixed case keeps both extensions", "LOAD=one.Tbm", "", "",
     "LOAD=one.Tbm.tbm; read .\\one.Tbm.tbm; ask", " - one.Tbm", "one.Tbm.tbm"},
    {"argument with a drive", "LOAD=low.tbm", "Z:\\maps\\one.TBM", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\maps\\one.TBM", " - one", "one.TBM"},
    {"argument in quotes", "", "\"Z:\\my maps\\one.TBM\"", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\my maps\\one.TBM", " - one", "one.TBM"},
    {"list as argument", "", "all.TBL", "",
     "MAPLIST=all; LOAD=all.TBL.tbm; read .\\all.TBL; LOAD=one.TBM; read .\\one.TBM", " - all.TBL",
     "one.TBM"},
    {"argument that names nothing", "LOAD=one.TBM", "low.tbm", "Z:\\game\\one.TBM",
     "LOAD=.tbm; read .\\.tbm; ask; LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", " -  - one",
     "one.TBM"},
    {"start map off: the argument is ignored", "LOAD=low.tbm\nSTARTMAP= False ",
     "Z:\\maps\\one.TBM", "Z:\\game\\low.tbm", "ask; LOAD=low.tbm; LOAD=low.tbm; read .\\low.tbm",
     " - low", "low.tbm"},
    {"not found twice", "LOAD=gone.TBM", "", "Z:\\maps\\lost.TBM",
     "LOAD=gone.TBM; LOAD=gone.TBM; read .\\gone.TBM; ask; LOAD=lost.TBM; LOAD=lost.TBM; "
     "read Z:\\maps\\lost.TBM; box 16 The map lost.TBM can't be opened.; end",
     " - lost", "lost.TBM"},
    {"a list as argument stays one behind the dialog", "", "stale.TBL", "Z:\\maps\\one.TBM",
     "MAPLIST=stale; LOAD=stale.TBL.tbm; read .\\stale.TBL; LOAD=gone.TBM; read .\\gone.TBM; ask; "
     "LOAD=one.TBM; read Z:\\maps\\one; box 16 The map list one can't be opened.; end",
     " - stale.TBL - one", "gone.TBM"},
    {"empty list from the dialog", "", "", "Z:\\game\\empty.TBL",
     "ask; MAPLIST=empty; read .\\empty.TBL; box 16 The map list empty.TBL is empty.; end", "",
     "Area"},
    {"malformed map", "LOAD=bad.TBM", "", "",
     "LOAD=bad.TBM; LOAD=bad.TBM; read .\\bad.TBM; box 0 An unknown error occured13", "",
     "bad.TBM"},
};

/// The log with a short name for the dialog at start, and writes of [Level] by their key.
std::string Brief(std::string told) {
    for (const auto& [from, to] :
         {std::pair<std::string, const char*>{"[Level] ", ""},
          {"open .; Open; Tumbledeep map or maplist (*.TBM , *.TBL)|*.TBM;*.TBL", "ask"}}) {
        for (std::size_t at = 0; (at = told.find(from)) != std::string::npos;)
            told.replace(at, from.size(), to);
    }
    return told;
}

TEST(StartupLoad, RoadsIntoAMap) {
    for (const Start& start : Starts) {
        SCOPED_TRACE(start.What);
        FakePlatform services;
        for (const char* map : {"Z:\\maps\\one.TBM", "Z:\\my maps\\one.TBM", "Z:\\game\\one.TBM",
                                "Z:\\game\\low.tbm"}) {
            services.Files[map] = "you 0 0\ngem1type 0 360\n";
        }
        services.Files["Z:\\game\\all.TBL"] = "one\ntwo\n";
        services.Files["Z:\\maps\\all.TBL"] = "one\n";
        services.Files["Z:\\game\\stale.TBL"] = "gone\n";
        services.Files["Z:\\game\\empty.TBL"] = "";
        services.Files["Z:\\game\\bad.TBM"] = "dirt x 0\n";
        services.Settings() =
            std::string("[Level]\n") + start.Settings + "\n[AutoMove]\nMOVE=False\n";
        services.CommandLine = start.Command;
        services.Answers = {start.Answer};
        frmMain game(services);
        bool ended = false;
        try {
            game.MDIForm_Activate();
        } catch (const ProgramEnd&) {
            ended = true;
        }
        EXPECT_EQ(Brief(services.Told()), start.Log);
        EXPECT_EQ(ended, services.Log.back() == "end");
        EXPECT_EQ(game.Form.Caption, std::string("Tumble Deep") + start.Caption);
        EXPECT_EQ(game.ActiveChild.Form.Caption, start.BoardCaption);
        const bool off = std::string_view(start.Settings).find("False") != std::string::npos;
        EXPECT_EQ(game.Entry("MnuStartLastMap").Checked, !off);
        EXPECT_TRUE(game.ActiveChild.Interval100Timer.Enabled);
        EXPECT_EQ(game.ActiveChild.GemTotal, services.Log.back().starts_with("read") ? 2 : 0);
    }
}

} // namespace

} // namespace tumbledeep
