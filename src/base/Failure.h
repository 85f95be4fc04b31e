// What is thrown when a file can't be opened or read, or a line of a map makes no sense. It carries
// the number that the player is shown; the texts round it are in windows/flow/. The end of the
// process is thrown too, as ProgramEnd of host/Platform.h.
#pragma once

namespace tumbledeep {

/// A failure with the number that the player is shown.
struct Failure {
    static constexpr int Overflow = 6;      ///< a number is too large, or a pool is full
    static constexpr int TypeMismatch = 13; ///< a word is no number
    static constexpr int FileNotFound = 53;
    static constexpr int FileAccess = 75; ///< a file that is there can't be read
    int Number;
};

} // namespace tumbledeep
