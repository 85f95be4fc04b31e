// A system without files, windows or time: a test says what it answers and sees what it was asked.
#pragma once

#include "platform/Platform.h"

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>

namespace tumbledeep {

class FakePlatform final : public Platform {
  public:
    static constexpr const char* Directory = "Z:\\game";

    // What the system answers.

    std::string CommandLine;
    std::deque<std::string> Answers; ///< "yes" or "no", a text, a file's full path; "" cancels
    std::map<std::string, std::string> Files; ///< by full path
    std::deque<float> Draws;                  ///< the next random numbers
    std::function<float()> FurtherDraws = [] { return 0.0F; };
    std::set<int> KeysDown; ///< virtual key codes

    /// The text of the settings file.
    std::string& Settings() { return Files[std::string(Directory) + "\\Tumbledeep.ini"]; }

    // What it was asked: an entry for each dialog, write, file read and process, the program's
    // directory shown as ".".

    std::string Log; ///< "; " between its entries

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    void ShowOpen(CommonDialog& dialog) override;
    void DragBoard() override {}
    void Shell(const std::string& commandLine) override { Note("start ", commandLine); }
    std::string AppPath() const override { return Directory; }
    std::string Command() const override { return CommandLine; }
    /// The low bit, which tells a key that was pressed before, is always set.
    short GetKeyState(int virtualKey) const override;
    void Randomize() override {}
    float Rnd() override;
    std::string OpenForInput(const std::string& path) override;
    std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                        const std::string& path) override;
    void WritePrivateProfileString(std::string_view section, std::string_view key,
                                   std::string_view value, const std::string& path) override;

  protected:
    void Ending() override { Note("end", ""); }

  private:
    std::string NextAnswer();
    void Note(const std::string& what, std::string text);
};

} // namespace tumbledeep
