// The palettes of a catalog while they come one by one.
#pragma once

#include "module/enum.h"

#include "frame/string.h"

namespace tc {

class OdTcToolPalette;

/// Reads what OdTcCatalog::beginLoad has left out, and shows what is there already.
///
/// For a window, which shows palettes as they come, and for what is offered to whoever types.
/// Whatever else asks a catalog for its palettes has the rest of them read first, and so sees all
/// or nothing.
class OdTcCatalogLoading {
 public:
  /// How many palette files are still to be read; 0 once the catalog is complete.
  virtual int pendingCount() const = 0;
  /// Reads the next palette. It takes its place among the others in the order of the loaders, and
  /// the catalog's reactors hear `itemAdded` of it; with the last one they hear `itemChanged` of
  /// the catalog. False if nothing was left to read.
  virtual bool loadNext() = 0;
  /// The same for the palette that stands under this id in the catalog file; false if it is not
  /// waiting.
  virtual bool loadWaiting(const OdString& id) = 0;
  /// The palettes that are there already.
  virtual OdTcEnumPtr<OdTcToolPalette> palettesSoFar() const = 0;
  /// Null if no such palette is there yet. Borrowed.
  virtual OdTcToolPalette* findSoFar(const OdString& id) const = 0;

 protected:
  ~OdTcCatalogLoading() = default;
};

} // namespace tc
