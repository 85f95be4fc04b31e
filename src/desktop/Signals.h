// The system's wishes that the process end, SIGTERM and its like, turned into a call from the event
// loop. What ends then is the caller's.
#pragma once

#include <functional>

namespace tumbledeep {

/// Calls `quit` from the event loop when the process is asked to end (SIGTERM, SIGINT, SIGHUP).
/// To be called once, after the application object exists.
void QuitOnSignals(std::function<void()> quit);

} // namespace tumbledeep
