// All that the game asks of the system it runs on, as one interface: boxes and dialogs, the
// process, seeds, files and settings. The desktop, the trace and MemoryPlatform implement it. What
// the player does comes the other way, into frmMain::Take.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tumbledeep {

/// Thrown by Platform::End; caught where the front end delivered the event.
struct ProgramEnd {};

/// The styles of message boxes, and their answers: Ok from the first two, Yes or No from the
/// others.
namespace MsgBoxStyle {
inline constexpr int Ok = 0;
inline constexpr int Stop = 16;
inline constexpr int Question = 36;    ///< Yes and No
inline constexpr int Exclamation = 52; ///< Yes and No
constexpr bool Asks(int style) { return style == Question || style == Exclamation; }
} // namespace MsgBoxStyle
namespace MsgBoxAnswer {
inline constexpr int Ok = 1;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
} // namespace MsgBoxAnswer

/// An open-file dialog, as it is shown.
struct OpenDialog {
    std::string Title;
    std::string InitDir;
    std::string Filter; ///< label, a bar, patterns with ";" between them
};

/// Paths that go in and out are the program's own: "\" between folders, an absolute one begins
/// with a drive letter, and the host's root is the drive `Z:`.
class Platform {
  public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    /// Shows a modal box of a MsgBoxStyle and returns a MsgBoxAnswer. No tick may come meanwhile:
    /// the front end holds the clock while any dialog is open.
    virtual int MsgBox(const std::string& text, int style) = 0;
    /// Asks for a line of text; "" when cancelled.
    virtual std::string InputBox(const std::string& prompt) = 0;
    /// Shows an open dialog and returns the full path chosen, "" when cancelled.
    virtual std::string ShowOpen(const OpenDialog& dialog) = 0;
    /// From now on the mouse moves the board, until the button is released. Returns at once.
    virtual void DragBoard() = 0;

    /// Starts a process, its window maximised and with the focus; does not wait for its end.
    virtual void Shell(const std::string& commandLine) = 0;
    /// Ends this process: throws ProgramEnd, so that nothing after the call runs.
    [[noreturn]] void End() {
        Ending();
        throw ProgramEnd{};
    }
    /// The program's directory, without a "\" at its end.
    virtual std::string AppPath() const = 0;
    /// The text of the command line without the program's name.
    virtual std::string Command() const = 0;

    /// A number to seed the random numbers with, from the clock or from who runs the game.
    virtual std::uint32_t Seed() = 0;

    /// The bytes of a text file, for field-wise input. Throws Failure: 53 when there is no such
    /// file, 75 when it cannot be read. A name in another case than the file's is found too.
    virtual std::string OpenForInput(const std::string& path) = 0;
    /// A map is being loaded, and a share from 0 to 1 has been read. Comes now and then; nothing
    /// may be delivered to the game meanwhile.
    virtual void Loading(double /*share*/) {}
    /// The value of a key in a settings file, "" when there is none. Names are case-blind.
    virtual std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                                const std::string& path) = 0;
    /// Writes a value into a settings file at once. A write that fails leaves the file as it was.
    virtual void WritePrivateProfileString(std::string_view section, std::string_view key,
                                           std::string_view value, const std::string& path) = 0;

  protected:
    /// Called just before End throws, for a platform that takes note of the end.
    virtual void Ending() = 0;
};

} // namespace tumbledeep
