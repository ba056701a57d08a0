// The files of other programs that hold palettes, one or many.
#pragma once

#include "frame/string.h"

#include <vector>

namespace tc {

/// What a walk through such files found.
struct OdTcForeignPalettes {
  /// A file or an entry that was passed over.
  struct Problem {
    OdString file;
    OdString text; ///< the reason, in words for the user
    /// The palette that is passed over and its tools, if it stands in the file itself.
    OdString palette = {};
    QStringList tools = {};
    /// "file: reason"
    OdString inWords() const;
  };

  /// Files of palettes, each once, in the order in which they were met.
  QStringList files;
  std::vector<Problem> problems;

  /// Notes a problem that is not noted already.
  void add(const Problem& problem);
};

/// True for the outermost element of a file whose entries point to others.
bool isForeignCatalog(QStringView root);

/// Follows a file to the palettes that it holds: an exported palette or a palette of a store is
/// one, a catalog of a store leads to others, relative to its own folder. Of a folder all such
/// files in it and below are followed. A file that was met before is passed over, so entries may
/// point at each other; one that leads out of the folder, or out of that of the first file, is
/// refused, by its path or by a link.
void findForeignPalettes(const OdString& path, OdTcForeignPalettes& found);

} // namespace tc
