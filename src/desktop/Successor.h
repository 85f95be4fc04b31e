// The process that plays the next map. Its window is on the screen before the old one goes, so the
// player never looks at a bare desktop.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace tumbledeep {

class Successor {
  public:
    Successor() = default;
    Successor(const Successor&) = delete;
    Successor& operator=(const Successor&) = delete;
    ~Successor();

    /// Starts this very program anew with these words. False if the system refuses.
    bool Start(const std::string& program, std::vector<std::string> words);

    /// Returns when the process started has shown itself, has ended, or the bound has passed; at
    /// once if none was started.
    void AwaitShown(std::chrono::milliseconds bound);

    /// Tells the predecessor that waits on the pipe that this process has shown itself.
    static void TellShown(int pipe);

  private:
    int shown = -1; ///< the reading end of the pipe
};

} // namespace tumbledeep
