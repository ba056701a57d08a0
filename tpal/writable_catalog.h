// Catalogs that a command of the tool writes.
#pragma once

#include "catalog/file_stamp.h"
#include "tpal/catalog_lock.h"
#include "tpal/loaded_catalog.h"

#include <QHash>

#include <optional>

namespace tpal {

/// A catalog of which nobody's work is lost when it is written: it is held against other runs of
/// the tool, a file that any other program wrote after it was read is not written over, and no
/// palette leaves its groups because its file is out of reach.
class WritableCatalog {
 public:
  /// What is to be written: with `kElsewhere` a copy of it, which is held by itself. A dry run
  /// writes nothing whatever it says.
  enum class Writes { kNothing, kElsewhere, kPalettes, kCatalog, kCatalogThatMayBeNew };

  WritableCatalog(const OdString& folder, Writes writes, const Arguments& arguments,
                  Console& console);

  /// False if it cannot be had or read; the console was told why.
  bool isOpen() const { return m_isOpen; }
  tc::OdTcCatalog& operator*() const { return *m_loaded.catalog; }
  tc::OdTcCatalog* operator->() const { return m_loaded.catalog.get(); }
  const OdString& file() const { return m_loaded.file; }

  /// Why the catalog's file, or that of a palette, must not be written; empty if it may be.
  OdString whyNotWritable(const OdString& file) const;
  /// Says that this run wrote the file.
  void noteWritten(const OdString& file);
  /// Writes a palette in one step. Gives why that failed; empty if it went through.
  OdString save(tc::OdTcToolPalette& palette);

 private:
  void load(const OdString& folder, bool mayBeNew);

  std::optional<CatalogLock> m_lock;
  LoadedCatalog m_loaded;
  QHash<OdString, tc::FileStamp> m_stamps;
  bool m_isOpen = false;
};

/// The palettes of a catalog that stand in groups while their files are not there: they would leave
/// these groups if the catalog was written. Their names by their ids.
QHash<OdString, OdString> missingPalettes(const tc::OdTcCatalog& catalog);

} // namespace tpal
