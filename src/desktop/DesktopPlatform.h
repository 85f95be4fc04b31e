// The game's system on a desktop: dialogs, the next process, seeds, and files of the host. The
// window that dialogs belong to, and the clock held round them, are GameWindow's.
#pragma once

#include "desktop/Options.h"
#include "desktop/Successor.h"
#include "host/GameFolders.h"
#include "host/Platform.h"

#include <QRect>

#include <filesystem>
#include <functional>
#include <string>

class QDialog;
class QWidget;

namespace tumbledeep {

class DesktopPlatform final : public Platform {
  public:
    explicit DesktopPlatform(const Options& options);

    /// Where maps, lists and settings lie.
    const GameFolders& Folders() const { return folders; }
    /// What the player is to know at the moment, such as that settings can't be written; "" for
    /// nothing.
    std::string Notice() const;

    /// The window that dialogs belong to, and what is done just before and after one is shown. Set
    /// before the game starts.
    QWidget* DialogParent = nullptr;
    std::function<void()> BeforeDialog;
    std::function<void()> AfterDialog;
    /// Where the player and what is next to him are on the screen, in its coordinates; empty if out
    /// of sight. Boxes keep off that. None: they keep off nothing.
    std::function<QRect()> PlayerOnScreen;
    /// In milliseconds, how long a dialog is shown until it goes by itself; 0 for ever. None: 0.
    std::function<int()> Patience;
    /// What is done as a map is loaded; see Platform::Loading. None: nothing.
    std::function<void(double share)> LoadProgress;
    /// Makes the board follow the mouse until the button is released. Set before the game starts.
    std::function<void()> BeginDrag;

    /// The desktop wants the program to end: a dialog that is open returns no answer, the process
    /// ends instead.
    void Quit();
    /// Runs a dialog with the clock held round it, and rejects it after so many milliseconds; 0 for
    /// never. Returns its result. Does not return if the desktop wants the program to end.
    int Exec(QDialog& dialog, int patience);
    /// How the player has the game shown, for the next process.
    void Carry(std::optional<int> scale, bool fullScreen);
    /// Waits until the process that was started, if any, is on the screen.
    void AwaitSuccessor();

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    std::string ShowOpen(const OpenDialog& dialog) override;
    void DragBoard() override { BeginDrag(); }
    void Shell(const std::string& commandLine) override;
    std::string AppPath() const override;
    std::string Command() const override;
    std::uint32_t Seed() override;
    std::string OpenForInput(const std::string& path) override;
    void Loading(double share) override {
        if (LoadProgress) LoadProgress(share);
    }
    std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                        const std::string& path) override;
    void WritePrivateProfileString(std::string_view section, std::string_view key,
                                   std::string_view value, const std::string& path) override;

  protected:
    void Ending() override {}

  private:
    /// Runs a dialog of the game's, which does not wait longer than Patience.
    int Show(QDialog& dialog);
    /// The words for a successor that is to show the game as this process does.
    std::vector<std::string> WordsForSuccessor() const;

    Options options;
    std::filesystem::path program; ///< as it was called at the start, whatever its name is by now
    GameFolders folders;
    Successor successor;
    /// The text of the settings since a write failed. It stands in for the file until the player
    /// quits, so that a folder that can't be written is played like any other.
    std::optional<std::string> unsaved;
    /// The map that a predecessor played from elsewhere, until this process has found one.
    std::optional<std::filesystem::path> lost;
    bool quitting = false;
};

} // namespace tumbledeep
