// A palette as the catalog tree shows it: the implementation.
#pragma once

#include "catalog/database_impl.h"
#include "catalog/tool_palette.h"
#include "module/catalog_item_impl.h"

#include <cstdint>

namespace tc {

/// True for a tool that cannot run here: its kind is not supported, or it is no tool at all.
bool isUnsupportedTool(const OdTcTool& tool);

/// The handle of a palette. Id, name and all else of an item are those of the database, so that the
/// two show as one.
class OdTcToolPaletteImpl : public OdTcCatalogItemImplBase<OdTcToolPalette> {
 public:
  OdTcToolPaletteImpl();
  ~OdTcToolPaletteImpl() override;

  [[noreturn]] void reserved1() override;
  OdString getPath() const override { return m_database->getPath(); }
  bool getRelativePath(OdString& out) const override;
  std::int32_t getPreviewStyle() const override { return ui()->previewStyle(); }
  void setToolOrder(const OdArray<OdString>& ids) override;
  void getToolOrder(OdArray<OdString>& out) const override { out = toolOrder()->ids(); }
  [[noreturn]] void reserved2() override;
  void setReferenced(bool referenced) override { m_isReferenced = referenced; }
  void setSortType(std::int32_t type) override;
  void setPreviewSize(std::int32_t size) override;
  void setPreviewStyle(std::int32_t style) override;
  void setExporting(bool exporting) override { m_database->setExporting(exporting); }
  bool isReferenced() const override { return m_isReferenced; }
  bool load(const OdString& path) override { return m_database->load(path); }
  bool saveAs(const OdString& path) override { return m_database->saveAs(path); }
  bool save() override { return m_database->save(); }
  bool isReadOnlyStyle() const override { return m_isReadOnlyStyle; }
  void setReadOnlyStyle(bool readOnly) override { m_isReadOnlyStyle = readOnly; }
  void reserved3() override {}
  void markModified() override { setModified(); }
  bool saveCopy(const OdString& path) override { return m_database->saveCopy(path); }
  OdTcProperties* getProperties() const override { return m_database->properties(); }
  OdTcEnumPtr<OdTcTool> enumTools() const override;
  OdTcDatabase* getDatabase() const override { return m_database; }
  std::int32_t getSortType() const override { return ui()->sortType(); }
  std::int32_t getPreviewSize() const override { return ui()->previewSize(); }

  void collectUnsupportedKinds(QStringList& labels,
                               const QMap<OdString, OdString>& tagNames) const override;
  void stripUnsupportedTools() override;
  void adoptFileName(const OdString& path) override;
  void renewIds() override;
  void suspendAutoSave() override { m_autoSave = false; }
  void resumeAutoSave() override { m_autoSave = true; }
  bool isImported() const override { return m_isImported; }
  void setImported() override { m_isImported = true; }
  void announceRemoval() override { notifyRemoved(this); }

  /// Takes tools; false for anything else. If the file cannot be written afterwards, that is told
  /// on the command line and the tool stays.
  bool addItem(OdTcCatalogItem* item) override;
  bool removeItem(const OdString& id) override;
  bool findItem(const OdString& id) const override { return m_database->tools()->contains(id); }
  bool isContainer(const OdString&) const override { return m_database->tools()->count() > 0; }

  void setId(const OdString& id) override { m_database->setId(id); }
  OdString id() const override { return m_database->id(); }
  OdTcProperties* properties() const override { return m_database->properties(); }
  bool isModified() const override { return m_database->isModified(); }
  /// Tells the reactors of the database and those of the handle.
  void setModified() override {
    m_database->setModified();
    OdTcCatalogItemImplBase::setModified();
  }
  OdTcDatabaseImpl& content() const { return *m_database; }
  bool hasStoredId() const { return m_database->hasStoredId(); }

  OdString elementName() const override { return QStringLiteral("ToolPalette"); }
  void writeFields(OdTcFiler* filer) override;
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  explicit OdTcToolPaletteImpl(const OdSmartPtr<OdTcDatabaseImpl>& database);
  OdTcPaletteUi* ui() const { return m_database->getUi(); }
  OdTcToolOrderList* toolOrder() const { return ui()->uiProperties()->catalogView()->toolOrder(); }
  void saveUnasked();

  OdSmartPtr<OdTcDatabaseImpl> m_database;
  bool m_isReferenced = false;
  bool m_isReadOnlyStyle = false;
  bool m_autoSave = true;
  bool m_isImported = false;
};

} // namespace tc
