// The command line of tumbledeep-trace: its words go in, what they ask for comes out. The script is
// read, and the run begun, by main.cpp.
#pragma once

#include "headless/Play.h"

#include <optional>
#include <span>
#include <stdexcept>
#include <string>

namespace tumbledeep {

/// Thrown for a call that does not fit; the text is one line for the user.
struct TraceCallFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What the words of a call ask for. The run's directory is still to be made of `Directory`.
struct TraceCall {
    PlayOptions Options;
    std::string Directory = ".";
    std::optional<std::string> ScriptFile; ///< "-" is standard input
    bool Timed = false;
};

/// Reads the words behind the program's name, of which none is --help or --version. Throws
/// TraceCallFault.
TraceCall ReadTraceCall(std::span<char* const> words);

} // namespace tumbledeep
