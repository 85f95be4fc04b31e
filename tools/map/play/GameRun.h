// A run of the game: the program and all those that it starts in its turn, as each map is a process
// of its own.
#pragma once

#include <csignal>
#include <functional>
#include <string>
#include <vector>

namespace tumbledeep {

/// From here on the signals that ask a program to end wait for GameRun, so that what was made for
/// the run can be taken away again. To be called before anything is made.
class HeldSignals {
  public:
    HeldSignals();

    sigset_t Before{}; ///< those that were held already
    sigset_t Awaited{};
};

/// Starts a program by the words of its command line, the first being its path, and waits until it
/// and all its successors have ended. Signals go on to them, and a few times a second `meanwhile`
/// is called. Returns the exit status of the last. Throws std::runtime_error if the program can't
/// be started.
int RunGameToItsEnd(std::vector<std::string> words, const HeldSignals& signals,
                    const std::function<void()>& meanwhile);

} // namespace tumbledeep
