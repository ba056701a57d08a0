// The files of other programs that hold palettes, one or many.
#pragma once

#include "frame/string.h"

namespace tc {

/// What a walk through such files found.
struct OdTcForeignPalettes {
  /// Files of palettes, each once, in the order in which they were met.
  QStringList files;
  /// Files and entries that were passed over, each with the reason, in words for the user.
  QStringList problems;
};

/// True for the outermost element of a file whose entries point to others.
bool isForeignCatalog(QStringView root);

/// Follows a file to the palettes that it holds: an exported palette or a palette of a store is
/// one, a catalog of a store leads to others, relative to its own folder. A file that was met
/// before is passed over, so entries may point at each other; one that leads out of the folder of
/// the first file is refused.
void findForeignPalettes(const OdString& file, OdTcForeignPalettes& found);

} // namespace tc
