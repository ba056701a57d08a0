// Keeping runs of the catalog tool that write one catalog apart.
#pragma once

#include "catalog/made_folders.h"
#include "tpal/command.h"

#include <QLockFile>

#include <memory>

namespace tpal {

/// Holds a catalog for writing for as long as it lives: a file beside the catalog's tells other
/// runs of the tool, also those on other machines that share the folder.
class CatalogLock {
 public:
  /// Waits for another run that writes the catalog, as long as the arguments say and not without
  /// telling so. The folder is made if it is not there, and goes again if it stays empty.
  CatalogLock(const OdString& folder, const Arguments& arguments, Console& console);

  /// False if the catalog cannot be had; the console was told why.
  bool isHeld() const { return m_isHeld; }

 private:
  void acquire(int seconds, Console& console);
  OdString holder() const;

  tc::MadeFolders m_made; ///< before the lock, whose file stands in these folders
  OdString m_file;        ///< as the platform has it
  QLockFile m_lock;
  bool m_isHeld = false;
};

} // namespace tpal
