// Pieces of text files.
#pragma once

#include "drawing/dxf/bytes.h"

#include <optional>

/// A piece of a text file: whole tags, of which the first one has code 0, and so does the one that
/// follows the piece. Pieces can be read apart from each other.
struct OdDbDxfPiece {
  std::string_view text;
  qint64 line = 0;                ///< the number of the first line
  qint64 lines = 0;               ///< how many there are
  std::shared_ptr<char[]> memory; ///< keeps the text

  /// Takes a piece of the bytes, which stand before a tag of code 0 in the line `line`. Nothing if
  /// there is none of bearable size, because the file ends or what stands there is too long: that
  /// has to be read as it comes.
  static std::optional<OdDbDxfPiece> cut(OdDbDxfBytes& bytes, qint64 line);
};
