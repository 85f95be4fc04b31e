// The parent window: the menu, the status bar, the start-up and the map loader. It owns the board's
// window, so that one object is a whole game, and takes all that the player does.
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
    explicit frmMain(Platform& services);
    /// The board's window points back here.
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    Platform& Services;
    Window Form; ///< the outer size is the front end's to keep up to date, by Resize
    StatusBar Info{"Gems Remaining:"};
    std::vector<MenuEntry> Menu; ///< the whole tree, in the order in which it is shown
    std::string MapDir;          ///< where the map file is opened; "" until set
    std::string CommandArg;
    std::string CurrentMap; ///< file name of the running map
    bool IsMapList = false; ///< the command line named a map list

    /// The board's window, the one child.
    frmDocument ActiveChild;

    /// The one road by which anything that a player does comes in, typed, held and clicked alike.
    void Take(const PlayerAct& act);
    /// A period of the timer, for as long as the clock runs.
    void TimerPeriod();

    // flow/: start-up, the loader, map lists.

    /// The window has come up for the first time: shows the board and starts a map.
    void MDIForm_Activate();
    /// Settles which map this process plays, and plays it.
    void StartupLoad();
    /// Reads a map to its end and sets the board up. Throws Failure on a malformed line, or when a
    /// pool is full; what was made before stays.
    void LoadNewMap(FieldInput map);
    void MnuBeginagain_Click();
    /// The list in use, with its extension.
    std::string ListInUse();
    /// The records of a map list in a directory; tells the player and ends the process if the list
    /// can't be opened.
    std::vector<Record> OpenMapList(const std::string& directory, const std::string& name);
    /// The first record of a map list; tells the player and ends the process if there is none.
    std::string FirstOfMapList(const std::string& directory, const std::string& name);
    /// Starts the program anew, with an argument if there is one, and ends this process.
    [[noreturn]] void Relaunch(const std::string& argument);
    /// Writes the map that the next process plays, and starts it.
    [[noreturn]] void PlayNext(const std::string& map);

    // The menu.

    MenuEntry& Entry(std::string_view name);
    void MnuLoadMap_Click();
    void MnuMapList_Click();
    void MnuRestart_Click();
    void MnuStartLastMap_Click();
    /// Shows the open dialog; the path chosen, "" when cancelled.
    std::string ChooseFile(const std::string& filter);

  private:
    // flow/StartupLoad.cpp
    bool ChooseAtStart();
    void TakeFromCommandLine();
    void SettleMap(const std::string& lastMap);
    bool OpenAndLoad(bool lastTry);
};

/// True for the name of a menu entry that can be chosen.
bool IsMenuHandler(std::string_view name);

/// Carries out a menu entry; nothing for a submenu or a name that there is not.
void RunMenuHandler(frmMain& main, std::string_view name);

} // namespace tumbledeep
