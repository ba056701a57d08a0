// A run without a window.
#pragma once

#include "drafton/batch/batch_options.h"

namespace drafton {

/// Does what the arguments (those behind the program's name) ask for and gives the exit code.
/// `programFolder` is a stored path.
int runProgram(const QStringList& arguments, const OdString& programFolder);

} // namespace drafton
