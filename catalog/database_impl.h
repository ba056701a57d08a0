// The content of a palette and its file: the implementation.
#pragma once

#include "catalog/database.h"
#include "catalog/file_stamp.h"
#include "catalog/palette_ui.h"
#include "catalog/tool_list.h"
#include "catalog/unread_file.h"
#include "frame/system_services.h"
#include "module/catalog_item_impl.h"
#include "persistence/filer.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace tc {

class OdTcDatabaseImpl : public OdTcCatalogItemImplBase<OdTcDatabase> {
 public:
  OdTcDatabaseImpl();
  ~OdTcDatabaseImpl() override;

  void addTool(OdTcTool* tool) override;
  bool removeTool(const OdString& id) override;
  OdTcToolList* tools() const override { return m_tools; }
  OdTcPaletteUi* getUi() const override { return m_ui; }

  /// A file that is there but cannot be read, or a folder in its place, is reported on the command
  /// line.
  bool load(const OdString& path) override;
  /// As load, for a file of another program: `content` takes what no class here takes.
  bool loadForeign(const OdString& path, OdTcForeignContent& content);
  /// As saveCopy, in the form in which palettes are exchanged with other programs; `imageFolder`
  /// is where that program is to look for the pictures. A failure leaves a file that is there as it
  /// is.
  bool saveExchange(const OdString& path, const OdString& imageFolder);
  /// A save that fails leaves the path as it was.
  bool saveAs(const OdString& path) override;
  bool save() override;
  bool saveAtOnce() override;
  bool saveCopy(const OdString& path) override;
  void attachObject(OdTcPersist* object) override;
  int attachedCount() const override { return static_cast<int>(m_attached.size()); }

  OdString getPath() const override { return m_path; }
  void setPath(const OdString& path) override { m_path = path; }
  OdString fileRevision() const override { return m_fileRevision; }
  bool isExporting() const override { return m_isExporting; }
  void setExporting(bool exporting) override { m_isExporting = exporting; }
  std::int32_t paletteStyle() const override { return m_paletteStyle; }
  bool isUnread() const override { return m_unread.isAt(m_path); }
  OdString readProblem() const override { return m_unread.problemAt(m_path); }
  OdString saveProblem() const override { return m_saveProblem; }
  QStringList unsavedPictures() const override { return m_unsavedPictures; }
  void noteUnsavedPicture(const OdString& problem) override { m_unsavedPictures << problem; }
  /// True if the id was read from the file.
  bool hasStoredId() const { return m_hasStoredId; }

  /// True if a tool or the database itself was changed. Saving does not take it back.
  bool isModified() const override;
  OdTcDatabase* database() const override { return const_cast<OdTcDatabaseImpl*>(this); }
  void noteInDatabase(OdTcPersist* object) override { attachObject(object); }
  /// Nothing is there to be forgotten: the catalog takes no note of what stands in a palette.
  void forgetInCatalog(OdTcPersist*) override {}

  OdString elementName() const override { return QStringLiteral("Palette"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdTcCatalogItemPtr clone(bool deep) const override;
  OdRxObjectPtr clone() const override { return clone(true); }

 private:
  bool readWith(const OdTcFilerPtr& filer, const OdString& path);
  void tellUnsavedPictures() const;
  bool writeBy(const std::function<bool()>& write);
  bool writeCopy(const OdString& path, const std::function<bool()>& write);

  OdString m_path;
  OdString m_fileRevision;
  OdTcToolListPtr m_tools;
  std::int32_t m_paletteStyle = 0;
  std::vector<OdTcPersistPtr> m_attached;
  OdSmartPtr<OdTcPaletteUi> m_ui;
  UnreadFile m_unread;
  FileStamp m_stamp;
  OdString m_saveProblem;
  QStringList m_unsavedPictures;
  bool m_isExporting = false;
  bool m_hasStoredId = false;
};

} // namespace tc
