// The parent window: the menu, the status bar, the start-up and the map loader. It owns the board,
// so that one object is a whole game.
#pragma once

#include "board/frmDocument.h"
#include "platform/FieldInput.h"
#include "platform/Window.h"

#include <string>
#include <string_view>
#include <vector>

namespace tumbledeep {

class frmMain {
  public:
    explicit frmMain(Platform& services);

    // The window and what stands in it.

    Platform& Services;
    Window Form; ///< the outer size is the front end's to keep up to date
    StatusBar Info{"Gems Remaining:"};
    CommonDialog dlgCommonDialog;
    std::vector<MenuEntry> Menu; ///< the whole tree, in the order in which it is shown

    // The loader and the start-up.

    std::string MapLine; ///< the record just read
    FieldInput MapFile;  ///< the map being loaded
    std::string MapDir;  ///< where the map file is opened; "" until set
    std::string CommandArg;
    std::string CurrentMap;  ///< file name of the running map
    std::string MapListFile; ///< file name of the map list, with ".TBL"
    bool IsMapList = false;  ///< the command line named a map list

    /// The board, the one child window.
    frmDocument ActiveChild;

    // maps/: start-up, the loader, the list's start.

    /// The window has come up for the first time: shows the board and starts a map.
    void MDIForm_Activate();
    /// Settles which map this process plays, and plays it.
    void StartupLoad();
    /// Reads `MapFile` to its end and sets the board up. Throws Failure on a malformed line, or
    /// when a pool is full; what was made before stays.
    void LoadNewMap();
    void MnuBeginagain_Click();
    /// The list in use, with its extension.
    std::string ListInUse();
    /// Opens a map list in a directory; tells the player and ends the process if it can't.
    FieldInput OpenMapList(const std::string& directory, const std::string& name);
    /// The first record of a map list; tells the player and ends the process if there is none.
    std::string FirstOfMapList(const std::string& directory, const std::string& name);
    /// Starts the program anew, with an argument if there is one, and ends this process.
    [[noreturn]] void Relaunch(const std::string& argument);

    // shell/: the menu.

    /// Carries out the entry of that name; false if there is none or it is a submenu.
    bool MenuClick(std::string_view name);
    MenuEntry& Entry(std::string_view name);
    void MnuLoadMap_Click();
    void MnuMapList_Click();
    void MnuRestart_Click();
    void MnuStartLastMap_Click();
    /// Shows the open dialog; true if a file was chosen.
    bool ChooseFile(const std::string& filter);

  private:
    // maps/StartupLoad.cpp
    bool ChooseAtStart();
    void TakeFromCommandLine();
    void SettleMap(const std::string& lastMap);
    bool OpenAndLoad(bool lastTry);

    // maps/LoadNewMap.cpp
    void LoadLine();
};

/// True for the name of a menu entry that can be chosen.
bool IsMenuHandler(std::string_view name);

} // namespace tumbledeep
