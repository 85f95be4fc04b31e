// A system without files, windows or time, for tests and tools: its owner says beforehand what it
// answers, and reads afterwards what it was asked. Nothing waits and nothing fails but a file that
// is not there. A platform that answers from a script and prints is headless/ScriptedPlatform.h.
#pragma once

#include "host/Platform.h"

#include <deque>
#include <map>
#include <string>

namespace tumbledeep {

class MemoryPlatform final : public Platform {
  public:
    static constexpr const char* Directory = "Z:\\game";

    // What the system answers.

    std::string CommandLine;
    /// The answers to the dialogs to come, in order: "yes" or "no", a text, a file's full path; ""
    /// cancels. With none left, questions get No and other dialogs are cancelled.
    std::deque<std::string> Answers;
    std::map<std::string, std::string> Files; ///< by full path, "\" between folders
    std::uint32_t SeedNumber = 0;             ///< for every seeding

    /// The text of the settings file.
    std::string& Settings() { return Files[std::string(Directory) + "\\Tumbledeep.ini"]; }

    /// What it was asked: an entry for each dialog, write, file read, process started and the end,
    /// with "; " between them and the program's directory shown as ".".
    std::string Log;

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    std::string ShowOpen(const OpenDialog& dialog) override;
    void DragBoard() override {}
    void Shell(const std::string& commandLine) override { Note("start ", commandLine); }
    std::string AppPath() const override { return Directory; }
    std::string Command() const override { return CommandLine; }
    std::uint32_t Seed() override { return SeedNumber; }
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
