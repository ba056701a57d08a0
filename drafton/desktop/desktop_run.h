// The program with its window.
#pragma once

#include "frame/string.h"

namespace drafton {

/// Runs until the window is closed and gives the exit code. `argc` and `argv` are those of main().
int runDesktop(int& argc, char** argv);

} // namespace drafton
