// Palettes of any size in the form in which other programs export them.
#pragma once

#include <QByteArray>

namespace bench {

/// What a palette is made of.
struct ForeignPalette {
  int tools = 0;
  /// Bytes of trees that are not for us, over all tools, as dynamic blocks carry them along.
  qsizetype treeBytes = 0;
};

/// The text of a palette of block tools without pictures, each with a value for every general
/// property.
QByteArray foreignPaletteText(const ForeignPalette& palette);

/// The same, with as many trees as make the text about `bytes` long.
QByteArray foreignPaletteOfSize(int tools, qsizetype bytes);

} // namespace bench
