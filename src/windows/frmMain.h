// The parent window: menu, status bar, start-up and map loader. It owns the board's window, so that
// one object is a whole game. All that a player does goes in by Take, periods of the timer by
// TimerPeriod; what the game asks goes out to its Platform. A front end shows the fields and keeps
// the loop.
#pragma once

#include "formats/FieldInput.h"
#include "formats/PlayerAct.h"
#include "windows/Window.h"
#include "windows/frmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

class frmMain {
  public:
    /// The windows before anything has started. The platform must outlive them.
    explicit frmMain(Platform& services);
    /// No copies: the board's window points back here.
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    Platform& Services;
    Window Form; ///< its size comes from the front end, by PlayerAct::Do::Resize
    StatusBar Info{"Gems Remaining:"};
    std::vector<MenuEntry> Menu; ///< the whole tree, in the order in which it is shown
    std::string MapDir;          ///< the folder in which the map is opened; "" until set
    std::string CommandArg;      ///< the text of the command line, quotes round it taken off
    std::string CurrentMap;      ///< file name of the running map
    bool IsMapList = false;      ///< the command line named a map list

    /// The board's window, the one child.
    frmDocument ActiveChild;

    /// Carries out one thing that the player does. All of it comes in here, typed, held and
    /// clicked, so that it can be recorded and played back. Throws ProgramEnd when the process is
    /// to end.
    void Take(const PlayerAct& act);
    /// One period of the timer: a tick if the clock runs. Throws ProgramEnd likewise.
    void TimerPeriod();

    // flow/: start-up, the loader, map lists.

    /// The window has come up for the first time: shows the board and starts a map.
    void MDIForm_Activate();
    /// Settles which map this process plays, and loads it. Without one the board stays empty.
    void StartupLoad();
    /// Reads a map to its end, titles shown, and sets the board up. Throws Failure on a malformed
    /// line or when a pool is full; what was made before stays.
    void LoadNewMap(FieldInput map);
    /// Starts the first map of the list in use, in a new process.
    void MnuBeginagain_Click();
    /// The file name of the list in use.
    std::string ListInUse() const;
    /// The records of a map list in a directory; tells the player and ends the process if the list
    /// can't be opened.
    FieldInput OpenMapList(const std::string& directory, const std::string& name) const;
    /// The first record of a map list; tells the player and ends the process if there is none.
    std::string FirstOfMapList(const std::string& directory, const std::string& name) const;
    /// Starts the program anew and ends this process. `argument` is put right behind the program's
    /// name: "", or a text that begins with a blank.
    [[noreturn]] void Relaunch(const std::string& argument);
    /// Writes the map that the next process plays into the settings, and starts that process.
    [[noreturn]] void PlayNext(const std::string& map);

    // The menu.

    /// The entry of a name. Throws std::out_of_range if there is none.
    MenuEntry& Entry(std::string_view name);
    /// Asks for a map and plays it in a new process.
    void MnuLoadMap_Click();
    /// Asks for a map list, which counts from the next win on.
    void MnuMapList_Click();
    /// Asks whether to, and plays the running map from its start in a new process.
    void MnuRestart_Click();
    /// Turns the entry's check mark over, and the setting behind it.
    void MnuStartLastMap_Click();
    /// Shows the open dialog; the path chosen, "" when cancelled.
    std::string ChooseFile(const std::string& filter) const;

  private:
    // The parts of StartupLoad; their bodies are in flow/StartupLoad.cpp.
    bool ChooseAtStart();
    void TakeFromCommandLine();
    void SettleMap(const std::string& lastMap);
    bool OpenAndLoad(bool lastTry);
};

/// Whether a menu entry of this name can be chosen: false for a submenu and for an unknown name.
bool IsMenuHandler(std::string_view name);

/// Carries out the menu entry of a name. Does nothing where IsMenuHandler is false.
void RunMenuHandler(frmMain& main, std::string_view name);

} // namespace tumbledeep
