// Palettes on their way to other programs.
#pragma once

#include "catalog/tool_palette.h"

namespace tc {

/// What became of an export.
struct OdTcExportReport {
  OdString file;
  OdString imageFolder; ///< where the pictures went: a folder named like the file, beside it
  int pictures = 0;     ///< how many were copied or written
  /// Tools whose picture has no file any more.
  QStringList withoutPicture;
  OdString problem; ///< why the file was not written; empty if it was
};

/// Writes the palette as an exchange file with its pictures beside it; sources that are found from
/// the palette's folder go with their whole paths. Pictures of a former export
/// are replaced; nothing but the file and what lies in its folder of pictures is touched, and the
/// palette stays where it is.
OdTcExportReport exportPalette(OdTcToolPalette& palette, const OdString& target);

} // namespace tc
