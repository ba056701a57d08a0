// The command line of `drafton batch`.
#pragma once

#include "drafton/batch/picture_options.h"

#include <optional>

namespace drafton {

/// How a run without a window ends.
enum ExitCode : int {
  kExitOk = 0,
  kExitScriptFailed = 1,
  kExitUsage = 2,
  kExitDrawing = 3, ///< a drawing or its picture cannot be opened or saved
};

struct BatchOptions {
  std::optional<OdString> catalogs;
  OdString profile;
  OdString script; ///< empty for standard input
  OdString out;
  OdString dxfVersion; ///< of the file `out`; empty for that of the drawing
  OdString drawing;
  bool keepsGoing = false; ///< behind lines of the script that fail
  std::optional<PictureRequest> picture;
};

/// What the arguments ask for.
struct BatchArguments {
  enum class Wish { kRun, kHelp, kVersion, kWrong };
  Wish wish = Wish::kRun;
  BatchOptions options;
  OdString error; ///< what is wrong with them
};

/// `arguments` are those behind "drafton".
BatchArguments parseArguments(const QStringList& arguments);
/// The text of --help.
OdString helpText();

} // namespace drafton
