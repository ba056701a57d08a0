#include "catalog/palette_export.h"

#include "catalog/database_impl.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "images/image_home.h"
#include "images/image_list.h"

#include <utility>

namespace tc {
namespace {

/// Puts the palette to the target's place for as long as it lives.
class AtTarget {
 public:
  AtTarget(OdTcToolPalette& palette, const OdString& target)
    : m_palette(palette)
    , m_former(palette.getPath()) {
    m_palette.setExporting(true);
    m_palette.getDatabase()->setPath(target);
  }
  ~AtTarget() {
    m_palette.setExporting(false);
    m_palette.getDatabase()->setPath(m_former);
  }
  AtTarget(const AtTarget&) = delete;
  AtTarget& operator=(const AtTarget&) = delete;

 private:
  OdTcToolPalette& m_palette;
  const OdString m_former;
};

class Exporter {
 public:
  Exporter(OdTcToolPalette& palette, const OdString& target)
    : m_palette(palette) {
    m_report.file = target;
    m_report.imageFolder = odpath::folderOf(target) + u'\\' + odpath::titleOf(target);
  }

  OdTcExportReport run() {
    try {
      gather(m_palette);
      const OdTcEnumPtr<OdTcTool> tools = m_palette.enumTools();
      while (OdTcTool* const tool = tools->next()) gather(*tool);
      const AtTarget atTarget(m_palette, m_report.file);
      for (const auto& [image, file] : m_pictures) copyPicture(*image, file);
      auto& content = static_cast<OdTcDatabaseImpl&>(*m_palette.getDatabase());
      if (!content.saveExchange(m_report.file, odpath::titleOf(m_report.file)))
        m_report.problem = content.saveProblem();
    } catch (const OdFileError& error) {
      m_report.problem = error.description();
    }
    return std::move(m_report);
  }

 private:
  /// Where the pictures lie now; at the target they would be looked for there.
  void gather(const OdTcCatalogItem& item) {
    const OdTcImageList* const images = item.images();
    if (!images) return;
    bool isMissing = false;
    const OdTcEnumPtr<OdTcImage> all = images->enumImages();
    while (OdTcImage* const image = all->next()) {
      if (image->isResource() || image->src().isEmpty()) continue;
      const OdString file = image->fullPath();
      if (file.isEmpty() && image->getBitmap().isNull())
        isMissing = true;
      else
        m_pictures.emplace_back(OdTcImagePtr(image), file);
    }
    if (isMissing) m_report.withoutPicture << item.name();
  }

  void copyPicture(const OdTcImage& image, const OdString& file) {
    const OdString target = imageFilePath(m_palette.getDatabase(), image.src());
    if (!isBelowPalette(m_report.imageFolder + QLatin1String("\\x"), target) ||
        odpath::samePlace(file, target))
      return;
    OdRxSystemServices* const services = odrxSystemServices();
    if (services->fileExists(target)) services->removeFile(target);
    ++m_report.pictures;
    // A picture without a file is written with the palette.
    if (file.isEmpty()) return;
    const OdString folder = odpath::folderOf(target);
    if (!services->createFolder(folder))
      throw OdFileError(eFileAccess, folder,
                        host::translate(QStringLiteral("the folder cannot be made")));
    services->copyFile(file, target);
  }

  OdTcToolPalette& m_palette;
  OdTcExportReport m_report;
  std::vector<std::pair<OdTcImagePtr, OdString>> m_pictures;
};

} // namespace

OdTcExportReport exportPalette(OdTcToolPalette& palette, const OdString& target) {
  return Exporter(palette, odpath::fromPlatform(target)).run();
}

} // namespace tc
