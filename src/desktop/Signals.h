// The system's wishes that the process end.
#pragma once

#include <functional>

namespace tumbledeep {

/// Calls `quit` from the event loop when the process is asked to end (SIGTERM, SIGINT, SIGHUP).
/// To be called once, after the application object exists.
void QuitOnSignals(std::function<void()> quit);

} // namespace tumbledeep
