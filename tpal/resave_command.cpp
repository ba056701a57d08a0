// tpal resave: a catalog read and written anew.
#include "catalog/database.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "persistence/path_operations.h"
#include "tpal/command.h"
#include "tpal/loaded_catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

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
  Resaver(const LoadedCatalog& loaded, const OdString& target)
    : m_catalog(*loaded.catalog)
    , m_sourceFolder(odpath::folderOf(loaded.file))
    , m_targetFolder(target.isEmpty() ? m_sourceFolder : odpath::fromPlatform(target))
    , m_inPlace(target.isEmpty() || odpath::samePlace(m_sourceFolder, m_targetFolder)) {}

  std::vector<Outcome> run() {
    for (tc::OdTcToolPalette* palette : palettesOf(m_catalog)) resave(*palette);
    const OdString file = m_targetFolder + u'\\' + OdString::fromUtf16(tc::kCatalogFileName);
    odrxSystemServices()->createFolder(m_targetFolder);
    const bool isWritten = m_catalog.save(file);
    noteSave(file, isWritten, OdString());
    return std::move(m_outcomes);
  }

 private:
  void resave(tc::OdTcToolPalette& palette) {
    const OdString file = palette.getPath();
    if (palette.getDatabase()->isUnread()) {
      m_outcomes.push_back({file, Fate::kLeftAlone,
                            QStringLiteral("left alone, it cannot be read: %1")
                                .arg(palette.getDatabase()->readProblem())});
      return;
    }
    if (m_inPlace) {
      const bool isWritten = palette.save();
      noteSave(file, isWritten, palette.getDatabase()->saveProblem());
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
    odrxSystemServices()->createFolder(odpath::folderOf(target));
    copyPictures(odpath::folderOf(file), odpath::folderOf(target));
    const bool isWritten = palette.saveCopy(target);
    noteSave(target, isWritten, palette.getDatabase()->saveProblem());
    notePictures(palette, target);
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
  void copyPictures(const OdString& from, const OdString& to) {
    const OdString source = from + QLatin1String("\\Images");
    const OdString target = to + QLatin1String("\\Images");
    const QStringList names = odrxSystemServices()->filesIn(source);
    if (names.isEmpty()) return;
    odrxSystemServices()->createFolder(target);
    for (const OdString& name : names)
      if (!odrxSystemServices()->fileExists(target + u'\\' + name))
        odrxSystemServices()->copyFile(source + u'\\' + name, target + u'\\' + name);
  }

  tc::OdTcCatalog& m_catalog;
  OdString m_sourceFolder;
  OdString m_targetFolder;
  bool m_inPlace;
  std::vector<Outcome> m_outcomes;
};

void report(const std::vector<Outcome>& outcomes, bool json, QTextStream& out) {
  QJsonArray rows;
  for (const Outcome& o : outcomes) {
    if (json)
      rows.append(QJsonObject{{QStringLiteral("file"), o.file},
                              {QStringLiteral("written"), o.fate == Fate::kWritten},
                              {QStringLiteral("text"), o.text}});
    else
      out << o.file << ": " << o.text << "\n";
  }
  if (json) out << OdString::fromUtf8(QJsonDocument(rows).toJson());
}

} // namespace

ExitCode resaveCommand(const Arguments& arguments, Console& console) {
  const ModuleClasses classes;
  const LoadedCatalog loaded = loadCatalog(arguments.words.first());
  for (const OdString& message : loaded.messages) console.err << "tpal: " << message << "\n";
  if (!loaded.isRead) return kFailed;
  try {
    const std::vector<Outcome> outcomes = Resaver(loaded, arguments.to).run();
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
