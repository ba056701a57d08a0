// What `tpal make` makes tools of.
#pragma once

#include "frame/string.h"

#include <vector>

namespace tpal {

/// What one tool is to be made of: a file, a block of a file, or a command.
struct MakeSource {
  enum class Kind { kFile, kBlock, kCommand };
  Kind kind = Kind::kFile;
  OdString word;  ///< as the user named it: the stored path of a file, or the name of a command
  OdString block; ///< the name of a block
};

/// A word, or a file, that gives no tool, and why.
struct MakeProblem {
  OdString word;
  OdString reason;
};

struct MakeSources {
  std::vector<MakeSource> sources;
  std::vector<MakeProblem> problems;
};

/// Files stand for themselves, folders for the drawings and pictures in them and below, in the
/// order of their names; every other word is a command. Each file counts once.
MakeSources findSources(const QStringList& words);

/// True if the file is a drawing, by its name: it may have blocks.
bool isDrawing(const MakeSource& source);

} // namespace tpal
