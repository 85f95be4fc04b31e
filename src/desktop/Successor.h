// The process that plays the next map: starting it, and waiting until its window is on the screen,
// so that the player never looks at a bare desktop. Which map it plays it reads from the settings.
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

    /// Starts a program, this one anew, with these words on its command line. False if the system
    /// refuses. It begins with the EndingSignals blocked.
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
