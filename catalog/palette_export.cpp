#include "catalog/palette_export.h"

#include "catalog/database_impl.h"
#include "catalog/made_folders.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "images/image_home.h"
#include "images/image_list.h"
#include "images/picture_file.h"
#include "persistence/path_operations.h"
#include "tools/action_agent.h"
#include "tools/tool_source.h"

#include <QSet>

#include <utility>

namespace tc {
namespace {

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

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

/// Lets tools name their sources by whole paths for as long as it lives: those that start from the
/// palette's folder lead nowhere from another one.
class WholeSources {
 public:
  WholeSources() = default;
  WholeSources(const WholeSources&) = delete;
  WholeSources& operator=(const WholeSources&) = delete;
  ~WholeSources() {
    for (const auto& [agent, former] : m_former) agent->setSourcePath(former);
  }

  void resolve(OdTcToolActionAgent* agent) {
    const OdString former = agent ? agent->sourcePath() : OdString();
    OdString whole = former.isEmpty() ? OdString() : sourceFromPalette(*agent, former);
    // What is not found stays as it is written.
    if (odpath::isRelative(whole)) return;
    if (whole.contains(QLatin1String("\\..\\"))) normalizePath(whole);
    if (whole == former) return;
    m_former.emplace_back(agent, former);
    agent->setSourcePath(whole);
  }

 private:
  std::vector<std::pair<OdTcToolActionAgent*, OdString>> m_former;
};

/// Files that are put in the place of others, and those put back unless all went through.
class Replacement {
 public:
  Replacement() = default;
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    OdRxSystemServices* const services = odrxSystemServices();
    for (const Entry& entry : m_entries) {
      if (m_isKept && entry.hasFormer) services->removeFile(entry.target + kFormer);
      if (m_isKept) continue;
      if (entry.hasFormer)
        services->replaceFile(entry.target + kFormer, entry.target);
      else if (services->fileExists(entry.target))
        services->removeFile(entry.target);
    }
  }

  void copy(const OdString& from, const OdString& target) {
    begin(target);
    odrxSystemServices()->copyFile(from, target);
  }
  void save(const QImage& picture, const OdString& target) {
    begin(target);
    if (!savePicture(picture, target, formatExtension(kPngFormat)))
      throw OdFileError(eFileAccess, target, translated(u"the picture cannot be written"));
  }
  void keep() { m_isKept = true; }

 private:
  static constexpr QLatin1String kFormer{".old"};
  struct Entry {
    OdString target;
    bool hasFormer;
  };

  void begin(const OdString& target) {
    OdRxSystemServices* const services = odrxSystemServices();
    const bool hasFormer = services->fileExists(target);
    if (hasFormer && !services->replaceFile(target, target + kFormer))
      throw OdFileError(eFileAccess, target, translated(u"the file cannot be replaced"));
    m_entries.push_back({target, hasFormer});
  }

  std::vector<Entry> m_entries;
  bool m_isKept = false;
};

class Exporter {
 public:
  Exporter(OdTcToolPalette& palette, const OdString& target)
    : m_palette(palette) {
    m_report.file = target;
    m_report.imageFolder = odpath::folderOf(target) + u'\\' + odpath::titleOf(target);
  }

  OdTcExportReport run() {
    // What is in memory of a file that could not be read is not the palette.
    if (m_palette.getDatabase()->isUnread()) {
      m_report.problem = translated(u"the palette could not be read") + QLatin1String(": ") +
                         m_palette.getDatabase()->readProblem();
      return std::move(m_report);
    }
    try {
      gather(m_palette);
      const OdTcEnumPtr<OdTcTool> tools = m_palette.enumTools();
      WholeSources sources;
      while (OdTcTool* const tool = tools->next()) {
        gather(*tool);
        sources.resolve(tool->getActionAgent());
      }
      MadeFolders folders(m_report.imageFolder + QLatin1String("\\Images"));
      // Without pictures nobody else makes it; a failure is told when the file is written.
      odrxSystemServices()->createFolder(odpath::folderOf(m_report.file));
      Replacement replacement;
      const AtTarget atTarget(m_palette, m_report.file);
      for (const auto& [image, file] : m_pictures) copyPicture(*image, file, replacement);
      auto& content = static_cast<OdTcDatabaseImpl&>(*m_palette.getDatabase());
      if (content.saveExchange(m_report.file, odpath::titleOf(m_report.file))) {
        replacement.keep();
        folders.keep();
      } else {
        m_report.problem = content.saveProblem();
      }
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

  void copyPicture(OdTcImage& image, const OdString& file, Replacement& replacement) {
    const OdString target = imageFilePath(m_palette.getDatabase(), image.src());
    if (!isBelowPalette(m_report.imageFolder + QLatin1String("\\x"), target) ||
        odpath::samePlace(file, target) || m_written.contains(target))
      return;
    const OdString folder = odpath::folderOf(target);
    if (!odrxSystemServices()->createFolder(folder))
      throw OdFileError(eFileAccess, folder, translated(u"the folder cannot be made"));
    if (file.isEmpty())
      replacement.save(image.getBitmap(), target);
    else
      replacement.copy(file, target);
    m_written << target;
    ++m_report.pictures;
  }

  OdTcToolPalette& m_palette;
  OdTcExportReport m_report;
  std::vector<std::pair<OdTcImagePtr, OdString>> m_pictures;
  QSet<OdString> m_written; ///< several tools may show one picture
};

} // namespace

OdTcExportReport exportPalette(OdTcToolPalette& palette, const OdString& target) {
  return Exporter(palette, odpath::fromPlatform(target)).run();
}

} // namespace tc
