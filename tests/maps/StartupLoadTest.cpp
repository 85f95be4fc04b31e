// All roads into a map: the dialogs shown, the settings written, the files opened, the captions.
#include "shell/frmMain.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>

namespace tumbledeep {

namespace {

/// Stands for the log line of the dialog at start.
const std::string Ask = "open .; Open; Tumbledeep map or maplist (*.TBM , *.TBL)|*.TBM;*.TBL";

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
    {"first start, cancelled", "", "", "", "ask", "", "Area"},
    {"a list from the dialog lies beside the program, its map beside the list", "", "",
     "Z:\\maps\\all.TBL",
     "ask; MAPLIST=all; read .\\all.TBL; LOAD=one; STARTMAP=True; LOAD=one.TBM; LOAD=one.TBM; "
     "read Z:\\maps\\one.TBM",
     " - one", "one.TBM"},
    {"usual start", "LOAD= one.TBM ", "", "", "LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", "",
     "one.TBM"},
    {"only False means off", "LOAD=one.TBM\nSTARTMAP=false", "", "",
     "LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", "", "one.TBM"},
    {"a bare entry of a list", "LOAD=low", "", "", "LOAD=low.tbm; read .\\low.tbm", " - low",
     "low.tbm"},
    {"lower case", "LOAD=low.tbm", "", "", "LOAD=low.tbm; LOAD=low.tbm; read .\\low.tbm", "",
     "low.tbm"},
    {"mixed case keeps both extensions", "LOAD=one.Tbm", "", "",
     "LOAD=one.Tbm.tbm; read .\\one.Tbm.tbm; ask", " - one.Tbm", "one.Tbm.tbm"},
    {"argument with a drive", "LOAD=low.tbm", "Z:\\maps\\one.TBM", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\maps\\one.TBM", " - one", "one.TBM"},
    {"argument in quotes", "", "\"Z:\\my maps\\one.TBM\"", "",
     "LOAD=one.TBM; LOAD=one.TBM; read Z:\\my maps\\one.TBM", " - one", "one.TBM"},
    {"a quote at the end alone costs the first character", "", "xone.TBM\"", "",
     "LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", " - one", "one.TBM"},
    {"argument with a folder", "", "sub\\one.TBM", "",
     "LOAD=sub\\one.TBM; LOAD=sub\\one.TBM; read .\\sub\\one.TBM", " - sub\\one", "sub\\one.TBM"},
    {"list as argument", "", "all.TBL", "",
     "MAPLIST=all; LOAD=all.TBL.tbm; read .\\all.TBL; LOAD=one.TBM; read .\\one.TBM", " - all.TBL",
     "one.TBM"},
    {"list with a drive is not kept", "", "Z:\\maps\\all.TBL", "",
     "LOAD=all.TBL.tbm; read Z:\\maps\\all.TBL; LOAD=one.TBM; read Z:\\maps\\one.TBM", " - all.TBL",
     "one.TBM"},
    {"argument that names nothing", "LOAD=one.TBM", "low.tbm", "Z:\\game\\one.TBM",
     "LOAD=.tbm; read .\\.tbm; ask; LOAD=one.TBM; LOAD=one.TBM; read .\\one.TBM", " -  - one",
     "one.TBM"},
    {"start map off: the argument is ignored", "LOAD=low.tbm\nSTARTMAP= False ",
     "Z:\\maps\\one.TBM", "Z:\\game\\low.tbm", "ask; LOAD=low.tbm; LOAD=low.tbm; read .\\low.tbm",
     " - low", "low.tbm"},
    {"not found, then cancelled", "LOAD=gone.TBM", "", "",
     "LOAD=gone.TBM; LOAD=gone.TBM; read .\\gone.TBM; ask", "", "gone.TBM"},
    {"not found twice", "LOAD=gone.TBM", "", "Z:\\maps\\lost.TBM",
     "LOAD=gone.TBM; LOAD=gone.TBM; read .\\gone.TBM; ask; LOAD=lost.TBM; LOAD=lost.TBM; "
     "read Z:\\maps\\lost.TBM; box 16 The map lost.TBM can't be opened.; end",
     " - lost", "lost.TBM"},
    {"a list as argument stays one behind the dialog", "", "stale.TBL", "Z:\\maps\\one.TBM",
     "MAPLIST=stale; LOAD=stale.TBL.tbm; read .\\stale.TBL; LOAD=gone.TBM; read .\\gone.TBM; ask; "
     "LOAD=one.TBM; read Z:\\maps\\one; box 16 The map list one can't be opened.; end",
     " - stale.TBL - one", "gone.TBM"},
    {"list that is not there", "", "Z:\\none\\lost.TBL", "",
     "LOAD=lost.TBL.tbm; read Z:\\none\\lost.TBL; box 16 The map list lost.TBL can't be opened.; "
     "end",
     " - lost.TBL", "lost.TBL.tbm"},
    {"empty list from the dialog", "", "", "Z:\\game\\empty.TBL",
     "ask; MAPLIST=empty; read .\\empty.TBL; box 16 The map list empty.TBL is empty.; end", "",
     "Area"},
    {"malformed map", "LOAD=bad.TBM", "", "",
     "LOAD=bad.TBM; LOAD=bad.TBM; read .\\bad.TBM; box 0 An unknown error occured13", "",
     "bad.TBM"},
    {"map that can't be read", "LOAD=locked.TBM", "", "",
     "LOAD=locked.TBM; LOAD=locked.TBM; read .\\locked.TBM; box 0 An unknown error occured75", "",
     "locked.TBM"},
};

std::string Joined(const std::vector<std::string>& log) {
    std::string joined;
    for (std::string line : log) {
        if (line == Ask) line = "ask";
        if (line.starts_with("[Level] ")) line.erase(0, 8);
        joined += (joined.empty() ? "" : "; ") + line;
    }
    return joined;
}

TEST(StartupLoad, RoadsIntoAMap) {
    for (const Start& start : Starts) {
        SCOPED_TRACE(start.What);
        FakePlatform services;
        for (const char* map : {"Z:\\maps\\one.TBM", "Z:\\my maps\\one.TBM", "Z:\\game\\one.TBM",
                                "Z:\\game\\low.tbm", "Z:\\game\\sub\\one.TBM"}) {
            services.Files[map] = "you 0 0\ngem1type 0 360\n";
        }
        services.Files["Z:\\game\\all.TBL"] = "one\ntwo\n";
        services.Files["Z:\\maps\\all.TBL"] = "one\n";
        services.Files["Z:\\game\\stale.TBL"] = "gone\n";
        services.Files["Z:\\game\\empty.TBL"] = "";
        services.Files["Z:\\game\\bad.TBM"] = "dirt x 0\n";
        services.Unreadable.insert("Z:\\game\\locked.TBM");
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
        ASSERT_EQ(Joined(services.Log), start.Log);
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
