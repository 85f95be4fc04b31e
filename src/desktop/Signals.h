// The system's wishes that the process end: SIGTERM, SIGINT and SIGHUP. They end it with status 0
// at whatever moment they come, since the settings file is whole at every moment. What ends in the
// event loop is the caller's.
#pragma once

#include <csignal>
#include <functional>

namespace tumbledeep {

/// From now on such a signal ends the process, status 0. To be called first of all.
void EndOnSignals();

/// From now on it makes the event loop call `quit`; if the process is still there a second later,
/// busy with a long load, it ends all the same. To be called once, behind EndOnSignals and when the
/// application object exists.
void QuitOnSignals(std::function<void()> quit);

/// The signals, for whoever starts a process that calls EndOnSignals: it is to have them blocked
/// until then, so that none finds it half started.
sigset_t EndingSignals();

} // namespace tumbledeep
