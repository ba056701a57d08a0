// The owner of all loaded catalogs: the implementation.
#pragma once

#include "catalog/catalog.h"
#include "catalog/cfg_change_reactor.h"
#include "catalog/palette_manager.h"

#include "host/application.h"
#include "host/idle.h"

#include <cstdint>
#include <map>
#include <vector>

namespace tc {

/// Owns the catalogs, one for each file.
///
/// A catalog is kept under the path of its file in one form (see catalogKey), so that a folder that
/// is configured twice in two ways of writing gives one catalog and not two that save over each
/// other.
///
/// With a host that can do work while it is idle, the palettes of a catalog come then.
class OdTcPaletteManagerImpl : public OdTcPaletteManager, private IHostIdleWork {
 public:
  using CatalogMap = std::map<OdString, OdTcCatalogPtr>;

  OdTcPaletteManagerImpl();
  ~OdTcPaletteManagerImpl() override;

  void addReactor(OdTcPaletteManagerReactor* reactor) override;
  void removeReactor(OdTcPaletteManagerReactor* reactor) override;
  OdTcCatalog* activeCatalog() const override { return m_active; }
  void loadCatalogs() override;
  bool addCatalog(const OdString& path) override;
  bool removeCatalog(const OdString& path) override;
  OdSmartPtr<CatalogEnum> catalogsEnum() const override;
  /// A failure is told on the command line, and the other catalogs are saved all the same. A file
  /// that could not be read is kept elsewhere before it is saved over.
  void saveAll() override;
  std::uint32_t viewSetting() const override { return m_viewSetting; }
  void setViewSetting(std::uint32_t setting) override { m_viewSetting = setting; }
  OdTcToolPtr createToolFromFile(const OdString& path) override;
  OdTcToolPtr createToolFromEntity(OdDbObjectId entity) override;
  OdTcToolPtr createToolFromBlock(const OdString& name, IHostDocument* document) override;
  OdTcToolPtr createToolFromDrawingBlock(const OdString& file, const OdString& name) override;
  OdTcToolPtr createToolFromCommand(const OdString& name) override;
  OdTcToolPtr createToolFromClipboard() override;
  void resetFlag() override { m_flag = false; }
  void openConfiguration() override;
  OdString palettesFolder(const OdTcCatalog* catalog) const override;
  OdString imagesFolder(const OdTcCatalog* catalog) const override;
  OdTcCatalog* defaultCatalog() const override;
  OdTcToolPalette* importPalette(OdTcCatalog* catalog, const OdString& path) override;
  void reloadCatalogs() override;
  bool openCatalog(const OdString& path) override;
  bool isImageExtension(const OdString& extension) const override;
  bool isDrawingExtension(const OdString& extension) const override;

  /// The node that openConfiguration has opened, or null.
  IProfile* configuration() const { return m_configuration.get(); }

 protected:
  /// Whether openConfiguration is to open the node. A manager of this class leaves it alone.
  bool m_openFlag = false;

 private:
  /// Reads one of the palettes that wait.
  bool doPiece() override;
  OdTcCatalog* findCatalog(const OdString& key) const;
  template <class Notify>
  void notify(Notify call) const;

  CatalogMap m_catalogs;
  OdTcCatalog* m_active = nullptr;
  std::uint32_t m_viewSetting = 3;
  std::vector<OdTcPaletteManagerReactor*> m_reactors;
  bool m_flag = false;
  KVPtr<IProfile> m_configuration;
  QStringList m_imageExtensions;
  QStringList m_drawingExtensions;
  KVPtr<TcCfgChangeReactor> m_watcher;
  IHostApplication* m_watched = nullptr;
  KVPtr<IHostIdle> m_idle; ///< null until palettes had to wait
};

} // namespace tc
