// The desktop program from its first word to its end, as a function that main.cpp calls and tests
// can reach. The window is GameWindow's.
#pragma once

namespace tumbledeep {

/// Does what the command line asks for: prints a text, or shows the window and plays until the
/// program ends. Returns the process's status; a fault is one line on the standard error.
int RunGame(int argc, char** argv);

} // namespace tumbledeep
