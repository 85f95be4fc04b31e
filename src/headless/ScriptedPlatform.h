// A system without a window: a script answers the dialogs, files are the host's, and all that the
// program asks is printed as lines of the trace. The state of the game is printed by Trace.h. A
// system without files, for tests, is host/MemoryPlatform.h.
#pragma once

#include "formats/Script.h"
#include "host/Platform.h"

#include <ostream>
#include <string>

namespace tumbledeep {

/// What a run is called with.
struct ScriptedRun {
    std::string Directory;  ///< the program's directory, as a program path
    std::string Command;    ///< the text of the command line
    std::uint32_t Seed = 0; ///< for every seeding
};

class ScriptedPlatform final : public Platform {
  public:
    /// Writes its lines to `lines` and takes the answers off `script`; both must outlive it.
    ScriptedPlatform(const ScriptedRun& run, Script& script, std::ostream& lines);

    /// The text as the trace prints it: in double quotes, with escapes, the program's directory at
    /// its head as ".".
    std::string Quoted(std::string_view text) const;

    int MsgBox(const std::string& text, int style) override;
    std::string InputBox(const std::string& prompt) override;
    std::string ShowOpen(const OpenDialog& dialog) override;
    /// Does nothing: a script moves the board by an event of its own.
    void DragBoard() override {}
    void Shell(const std::string& commandLine) override;
    std::string AppPath() const override { return run.Directory; }
    std::string Command() const override { return run.Command; }
    std::uint32_t Seed() override { return run.Seed; }
    std::string OpenForInput(const std::string& path) override;
    std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                        const std::string& path) override;
    void WritePrivateProfileString(std::string_view section, std::string_view key,
                                   std::string_view value, const std::string& path) override;

  protected:
    void Ending() override;

  private:
    ScriptedRun run;
    Script& script;
    std::ostream& out;
    std::string missing; ///< the file that was last looked for in vain
};

} // namespace tumbledeep
