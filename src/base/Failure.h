// What is thrown when a file or a line of it can't be used.
#pragma once

namespace tumbledeep {

/// A failure with the number that the player is shown.
struct Failure {
    static constexpr int Overflow = 6;
    static constexpr int TypeMismatch = 13;
    static constexpr int FileNotFound = 53;
    static constexpr int FileAccess = 75;
    int Number;
};

} // namespace tumbledeep
