// tpal resave: a catalog read and written anew.
#include "catalog/catalog_save.h"
#include "catalog/database.h"
#include "catalog/inside_folder.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/path_operations.h"
#include "tools/action_agent.h"
#include "tools/tool_source.h"
#include "tpal/brought_file.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/loaded_catalog.h"
#include "tpal/writable_catalog.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>
#include <optional>

namespace tpal {
namespace {

/// What became of a file.
enum class Fate { kWritten, kLeftAlone, kNotWritten };
constexpr ExitCode kExitCodes[] = {kOk, kFindings, kFailed};

/// One line of the report.
struct Outcome {
  OdString file;
  Fate fate;
  OdString text;
};

class Resaver {
 public:
  /// With an empty `target` the catalog is written in place.
  Resaver(WritableCatalog& catalog, const OdString& target)
    : m_catalog(catalog)
    , m_sourceFolder(odpath::folderOf(catalog.file()))
    , m_targetFolder(target.isEmpty() ? m_sourceFolder : wholePath(target))
    , m_inPlace(target.isEmpty()) {}

  std::vector<Outcome> run() {
    dropMissing();
    if (!m_inPlace) {
      for (const tc::OdTcToolPalette* palette : palettesOf(*m_catalog)) bringSources(*palette);
      // From here on the macro for the folder of catalogs stands for the new one.
      ConsoleHost::instance().setToolPaletteFolders({m_targetFolder});
    }
    for (tc::OdTcToolPalette* palette : palettesOf(*m_catalog)) resave(*palette);
    saveCatalog(m_targetFolder + u'\\' + OdString::fromUtf16(tc::kCatalogFileName));
    return std::move(m_outcomes);
  }

 private:
  /// Takes the palettes whose files are not there out of the catalog; their places in groups go
  /// when it is written. The catalog was not opened unless that is wanted.
  void dropMissing() {
    const auto missing = missingPalettes(*m_catalog);
    for (auto it = missing.begin(); it != missing.end(); ++it)
      if (m_catalog->loaders()->remove(it.key()))
        m_outcomes.push_back({m_catalog.file(), Fate::kWritten,
                              QStringLiteral("without the palette \"%1\", whose file is not there")
                                  .arg(it.value())});
  }

  void saveCatalog(const OdString& file) {
    const OdString problem = m_inPlace ? m_catalog.whyNotWritable(file) : OdString();
    try {
      auto& catalog = static_cast<tc::OdTcCatalogImpl&>(*m_catalog);
      const bool isWritten =
          problem.isEmpty() && tc::CatalogSave(catalog, file, tc::CatalogSave::Way::kAtOnce).run();
      noteSave(file, isWritten, problem);
    } catch (const OdFileError& error) {
      noteSave(file, false, error.description());
    }
  }

  void resave(tc::OdTcToolPalette& palette) {
    const OdString file = palette.getPath();
    if (palette.getDatabase()->isUnread()) {
      m_outcomes.push_back({file, Fate::kLeftAlone,
                            QStringLiteral("left alone, it cannot be read: %1")
                                .arg(palette.getDatabase()->readProblem())});
      return;
    }
    if (m_inPlace) {
      const OdString problem = m_catalog.save(palette);
      noteSave(file, problem.isEmpty(), problem);
      notePictures(palette, file);
      return;
    }
    OdString relative;
    if (!file.startsWith(m_sourceFolder + u'\\') ||
        !tc::makeRelativePath(file, m_sourceFolder, relative)) {
      m_outcomes.push_back(
          {file, Fate::kLeftAlone, QStringLiteral("left alone, it lies elsewhere")});
      return;
    }
    const OdString target = m_targetFolder + u'\\' + relative;
    bringPictures(odpath::folderOf(file), odpath::folderOf(target));
    const OdString problem = saveCopy(palette, target);
    noteSave(target, problem.isEmpty(), problem);
    notePictures(palette, target);
  }

  /// Writes the copy in one step: the former one may be in use. Gives why that failed.
  static OdString saveCopy(tc::OdTcToolPalette& palette, const OdString& target) {
    OdRxSystemServices* const services = odrxSystemServices();
    services->createFolder(odpath::folderOf(target));
    const OdString fresh = target + QLatin1String(".new");
    const bool isWritten = palette.saveCopy(fresh);
    if (isWritten && services->replaceFile(fresh, target)) return {};
    if (services->fileExists(fresh)) services->removeFile(fresh);
    return isWritten ? QStringLiteral("the file cannot be replaced")
                     : palette.getDatabase()->saveProblem();
  }

  /// What tools bring in from the catalog's folder goes with it; what lies elsewhere stays there,
  /// and is found by its whole path.
  void bringSources(const tc::OdTcToolPalette& palette) {
    for (const tc::OdTcTool* tool : toolsOf(palette)) {
      tc::OdTcToolActionAgent* const agent = tool->getActionAgent();
      const OdString former = agent ? agent->sourcePath() : OdString();
      OdString source = former.isEmpty() ? OdString() : tc::sourceFromPalette(*agent, former);
      if (odpath::isRelative(source)) continue; // none, or one that is not found
      tc::normalizePath(source);
      OdString inside;
      if (!tc::isInsideFolder(source, m_sourceFolder) ||
          !tc::makeRelativePath(source, m_sourceFolder, inside)) {
        agent->setSourcePath(source);
        continue;
      }
      const OdString target = m_targetFolder + u'\\' + inside;
      bring(source, target);
      if (!odpath::isRelative(former)) agent->setSourcePath(target);
    }
  }
  void bring(const OdString& source, const OdString& target) {
    if (m_brought.contains(target) || !odrxSystemServices()->fileExists(source)) return;
    m_brought << target;
    const OdString problem = bringFile(source, target);
    if (!problem.isEmpty()) noteSave(target, false, problem);
  }

  void notePictures(const tc::OdTcToolPalette& palette, const OdString& file) {
    for (const OdString& problem : palette.getDatabase()->unsavedPictures())
      m_outcomes.push_back(
          {file, Fate::kLeftAlone, QStringLiteral("picture not written: %1").arg(problem)});
  }

  void noteSave(const OdString& file, bool isWritten, const OdString& problem) {
    if (isWritten)
      m_outcomes.push_back({file, Fate::kWritten, QStringLiteral("written")});
    else
      m_outcomes.push_back(
          {file, Fate::kNotWritten, QStringLiteral("not written: %1").arg(problem)});
  }

  /// The pictures go first, so that writing the palette finds them in place.
  void bringPictures(const OdString& from, const OdString& to) {
    for (const OdString& name : odrxSystemServices()->filesIn(from + QLatin1String("\\Images")))
      bring(from + QLatin1String("\\Images\\") + name, to + QLatin1String("\\Images\\") + name);
  }
  static OdString wholePath(const OdString& folder) {
    return odpath::fromPlatform(QFileInfo(odpath::toPlatform(folder)).absoluteFilePath());
  }

  WritableCatalog& m_catalog;
  OdString m_sourceFolder;
  OdString m_targetFolder;
  bool m_inPlace;
  QSet<OdString> m_brought; ///< files of the copy
  std::vector<Outcome> m_outcomes;
};

void report(const std::vector<Outcome>& outcomes, bool json, QTextStream& out) {
  QJsonArray rows;
  for (const Outcome& o : outcomes) {
    if (json)
      rows.append(QJsonObject{{QStringLiteral("file"), odpath::toPlatform(o.file)},
                              {QStringLiteral("written"), o.fate == Fate::kWritten},
                              {QStringLiteral("text"), o.text}});
    else
      out << odpath::toPlatform(o.file) << ": " << o.text << "\n";
  }
  if (json) out << OdString::fromUtf8(QJsonDocument(rows).toJson());
}

bool isSameFolder(const OdString& a, const OdString& b) {
  const OdString place = QFileInfo(odpath::toPlatform(a)).canonicalFilePath();
  return !place.isEmpty() && place == QFileInfo(odpath::toPlatform(b)).canonicalFilePath();
}

/// The catalog that a copy would take the place of.
struct Former {
  OdString file, id, name, problem;

  explicit Former(const OdString& folder) {
    const LoadedCatalog loaded = loadCatalog(folder);
    file = loaded.file;
    if (!odrxSystemServices()->fileExists(file)) return;
    id = loaded.catalog->id();
    name = loaded.catalog->name();
    problem = loaded.catalog->readProblem();
  }
  /// Why it must stay: it is no former copy; empty if it may go.
  OdString whyToStay(const OdString& copied) const {
    const OdString place = odpath::toPlatform(file);
    if (!problem.isEmpty())
      return QStringLiteral("%1 cannot be read, and may be another catalog: %2")
          .arg(place, problem);
    if (!id.isEmpty() && id != copied)
      return QStringLiteral("%1 is another catalog, \"%2\"").arg(place, name);
    return {};
  }
};

} // namespace

ExitCode resaveCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  const OdString& source = arguments.words.first();
  const bool inPlace = arguments.to.isEmpty() || isSameFolder(source, arguments.to);
  std::optional<CatalogLock> targetLock;
  if (!inPlace) {
    targetLock.emplace(arguments.to, arguments, console);
    if (!targetLock->isHeld()) return kFailed;
  }
  const auto former = inPlace ? std::nullopt : std::optional<Former>(arguments.to);
  WritableCatalog catalog(
      source, inPlace ? WritableCatalog::Writes::kCatalog : WritableCatalog::Writes::kElsewhere,
      arguments, console);
  if (!catalog.isOpen()) return kFailed;
  const OdString reason = former ? former->whyToStay(catalog->id()) : OdString();
  if (!reason.isEmpty()) {
    console.err << "tpal: " << reason << "; nothing is written\n";
    return kFailed;
  }
  try {
    const std::vector<Outcome> outcomes =
        Resaver(catalog, inPlace ? OdString() : arguments.to).run();
    report(outcomes, arguments.json, console.out);
    Fate worst = Fate::kWritten;
    for (const Outcome& o : outcomes) worst = std::max(worst, o.fate);
    return kExitCodes[static_cast<std::size_t>(worst)];
  } catch (const OdFileError& error) {
    console.err << "tpal: " << error.description() << "\n";
    return kFailed;
  }
}

} // namespace tpal
