#include "tpal/finding.h"

#include "catalog/database.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "images/image_home.h"
#include "images/image_list.h"
#include "persistence/path_operations.h"
#include "properties/property_bag.h"
#include "tools/action_agent.h"
#include "tools/hatch_tool.h"
#include "tools/host_patterns.h"
#include "tools/tool_source.h"
#include "tpal/other_spelling.h"

#include <QHash>
#include <QSet>

namespace tpal {
namespace {

struct KindText {
  FindingKind kind;
  const char* code;
  const char* word;
};

constexpr KindText kKindTexts[] = {
    {FindingKind::kMissingCatalog, "C001", "missing-catalog"},
    {FindingKind::kUnreadableCatalog, "C002", "unreadable-catalog"},
    {FindingKind::kMissingPalette, "C101", "missing-palette"},
    {FindingKind::kUnreadablePalette, "C102", "unreadable-palette"},
    {FindingKind::kDanglingReference, "C103", "dangling-reference"},
    {FindingKind::kDuplicateId, "C104", "duplicate-id"},
    {FindingKind::kToolWithoutAgent, "C105", "tool-without-agent"},
    {FindingKind::kUnresolvedPath, "C106", "unresolved-path"},
    {FindingKind::kMissingPicture, "C107", "missing-picture"},
    {FindingKind::kSourceElsewhere, "C108", "source-elsewhere"},
    {FindingKind::kUnknownPattern, "C109", "unknown-pattern"},
    {FindingKind::kUnusedPicture, "C110", "unused-picture"},
    {FindingKind::kUnlistedPalette, "C111", "unlisted-palette"},
};

/// The type of hatch tools whose pattern stands in a file of its own.
constexpr int kCustomPattern = 2;

const KindText& textOf(FindingKind kind) {
  for (const KindText& row : kKindTexts)
    if (row.kind == kind) return row;
  throw OdError(eInvalidInput);
}

/// Looks a catalog over, one question at a time.
class Examination {
 public:
  explicit Examination(const LoadedCatalog& loaded)
    : m_catalog(*loaded.catalog)
    , m_catalogFile(loaded.file) {}

  std::vector<Finding> run() {
    noteId(m_catalog, m_catalogFile);
    notePictures(m_catalog, m_catalogFile);
    checkLoaders();
    forEach(m_catalog.groupsEnum(), [&](tc::OdTcCatalogItem* group) { checkGroup(*group); });
    for (const tc::OdTcToolPalette* palette : palettesOf(m_catalog)) checkPalette(*palette);
    checkUnlistedPalettes();
    checkUnusedPictures();
    return std::move(m_findings);
  }

 private:
  void add(FindingKind kind, const OdString& file, const OdString& text) {
    m_findings.push_back({kind, file, text});
  }

  void noteId(const tc::OdTcCatalogItem& item, const OdString& file) {
    const auto known = m_ids.constFind(item.id());
    if (known != m_ids.constEnd())
      add(FindingKind::kDuplicateId, file,
          QStringLiteral("the id %1 of \"%2\" is also that of \"%3\"")
              .arg(item.id(), item.name(), *known));
    else
      m_ids.insert(item.id(), item.name());
  }

  void checkLoaders() {
    forEach(m_catalog.loadersEnum(), [&](tc::OdTcCatalogItem* item) {
      const auto* loader = odrxCast<tc::OdTcPaletteLoader>(item);
      const OdString path =
          tc::combinePath(tc::expandedStoredPath(loader->getHref()), m_catalogFile);
      const OdString file = odpath::isRelative(tc::expandedStoredPath(loader->getHref()))
                                ? path
                                : tc::expandedStoredPath(loader->getHref());
      // A folder in the file's place stands among the palettes, as one that cannot be read.
      if (!odrxSystemServices()->fileExists(file) && !odrxSystemServices()->folderExists(file))
        add(FindingKind::kMissingPalette, m_catalogFile,
            QStringLiteral("palette \"%1\": there is no file %2").arg(loader->name(), file) +
                m_spelling.hint(file));
      m_listed << tc::pictureFileKey(file);
    });
  }

  /// Palettes of which the catalog does not know, left by a run that was ended from outside, by two
  /// programs that wrote the catalog at once, or by hand.
  void checkUnlistedPalettes() {
    const OdString folder = odpath::folderOf(m_catalogFile) + QLatin1String("\\Palettes");
    for (const OdString& name : odrxSystemServices()->filesIn(folder)) {
      const OdString path = folder + u'\\' + name;
      if (odpath::extensionOf(name) == QLatin1String("dtc") &&
          !m_listed.contains(tc::pictureFileKey(path)))
        add(FindingKind::kUnlistedPalette, path,
            QStringLiteral("the catalog does not name this palette, nobody sees its tools"));
    }
  }

  void checkGroup(const tc::OdTcCatalogItem& group) {
    noteId(group, m_catalogFile);
    notePictures(group, m_catalogFile);
    forEach(group.children(), [&](tc::OdTcCatalogItem* child) {
      const auto* reference = odrxCast<tc::OdTcPaletteSoftRef>(child);
      if (reference) notePictures(*child, m_catalogFile);
      if (!reference)
        checkGroup(*child);
      else if (!reference->resolve())
        add(FindingKind::kDanglingReference, m_catalogFile,
            QStringLiteral("group \"%1\" refers to the palette %2, which is not here")
                .arg(group.name(), inWords(*reference)));
    });
  }

  OdString inWords(const tc::OdTcPaletteSoftRef& reference) const {
    const OdString name = paletteName(m_catalog, reference.id());
    return name.isEmpty() ? reference.id() : QStringLiteral("\"%1\" %2").arg(name, reference.id());
  }

  void checkPalette(const tc::OdTcToolPalette& palette) {
    const OdString file = palette.getPath();
    m_isUnread |= palette.getDatabase()->isUnread();
    if (palette.getDatabase()->isUnread()) {
      add(FindingKind::kUnreadablePalette, file,
          QStringLiteral("the file cannot be read: %1").arg(palette.getDatabase()->readProblem()));
      return;
    }
    noteId(palette, file);
    notePictures(palette, file);
    for (const tc::OdTcTool* tool : toolsOf(palette)) checkTool(*tool, file);
  }

  void checkTool(const tc::OdTcTool& tool, const OdString& file) {
    noteId(tool, file);
    const tc::OdTcToolActionAgent* const agent = tool.getActionAgent();
    if (!agent && tool.isRegular())
      add(FindingKind::kToolWithoutAgent, file,
          QStringLiteral("tool \"%1\" does nothing").arg(tool.name()));
    if (agent) checkSource(tool, *agent, file);
    checkPattern(tool, file);
    checkPictures(tool, file);
    notePictures(tool, file);
  }

  void notePictures(const tc::OdTcCatalogItem& item, const OdString& file) {
    if (const tc::OdTcImageList* const images = item.images())
      forEach(images->enumImages(), [&](tc::OdTcImage* image) {
        m_usedPictures << tc::pictureFileKey(tc::imagePathBeside(file, image->src()))
                       << tc::pictureFileKey(image->fullPath());
      });
  }

  /// Pictures that an import which was ended from outside has left, and those of tools that went.
  void checkUnusedPictures() {
    // Whose pictures lie there can only be told if all palettes were read.
    if (m_isUnread) return;
    const OdString folder = odpath::folderOf(m_catalogFile) + QLatin1String("\\Palettes\\Images");
    for (const OdString& name : odrxSystemServices()->filesIn(folder)) {
      const OdString path = folder + u'\\' + name;
      if (!m_usedPictures.contains(tc::pictureFileKey(path)))
        add(FindingKind::kUnusedPicture, path,
            QStringLiteral("no tool, palette or group shows this picture"));
    }
  }

  void checkSource(const tc::OdTcTool& tool, const tc::OdTcToolActionAgent& agent,
                   const OdString& file) {
    const tc::OdTcPropertyBag* const bag = agent.properties();
    // A hatch's pattern file is the host's to find.
    if (!bag || !bag->findByName(QStringLiteral("Insert.Source file"))) return;
    const OdString source = agent.sourcePath();
    if (source.isEmpty() || tc::sourceFromPalette(agent, source) != source) return;
    if (!odpath::isRelative(source)) {
      if (!odrxSystemServices()->fileExists(source))
        add(FindingKind::kUnresolvedPath, file,
            QStringLiteral("tool \"%1\": there is no file %2").arg(tool.name(), source) +
                m_spelling.hint(source));
    } else if (odrxCast<tc::OdTcToolRasterCommand>(&agent)) {
      add(FindingKind::kSourceElsewhere, file,
          QStringLiteral("tool \"%1\": %2 is not beside the palette: the tool works in drawings "
                         "only that have it beside them")
              .arg(tool.name(), source));
    } else {
      add(FindingKind::kUnresolvedPath, file,
          QStringLiteral("tool \"%1\": there is no file %2 beside the palette")
                  .arg(tool.name(), source) +
              m_spelling.hint(tc::combinePath(source, file)));
    }
  }

  void checkPattern(const tc::OdTcTool& tool, const OdString& file) {
    const auto* const hatch =
        dynamic_cast<const tc::OdTcToolHatchCommandImpl*>(tool.getActionAgent());
    const OdString pattern = hatch ? hatch->soughtPattern() : OdString();
    if (pattern.isEmpty() || tc::isPatternKnown(pattern, hatch->patternFile())) return;
    add(FindingKind::kUnknownPattern, file,
        QStringLiteral("tool \"%1\": %2")
            .arg(tool.name(), whyUnknown(pattern, hatch->patternFile(), hatch->getHatchType())));
  }
  /// Patterns of a custom file are the file's matter: it is told what is wrong with that.
  static OdString whyUnknown(const OdString& pattern, const OdString& file, int hatchType) {
    const OdString text = QStringLiteral("there is no hatch pattern \"%1\"").arg(pattern);
    if (hatchType != kCustomPattern || file.isEmpty()) return text;
    if (odrxSystemServices()->fileExists(file)) return QStringLiteral("%1 in %2").arg(text, file);
    return odpath::isRelative(file)
               ? QStringLiteral("there is no pattern file %1 beside the palette, so that its "
                                "pattern \"%2\" cannot be looked for: the tool works only where "
                                "the program finds the file")
                     .arg(file, pattern)
               : QStringLiteral("there is no pattern file %1, which is to have the pattern \"%2\"")
                     .arg(file, pattern);
  }

  void checkPictures(const tc::OdTcTool& tool, const OdString& file) {
    const tc::OdTcImageList* const images = tool.images();
    if (!images) return;
    forEach(images->enumImages(), [&](tc::OdTcImage* image) {
      if (image->src().isEmpty() || image->isResource()) return;
      const OdString path = tc::combinePath(image->src(), file);
      if (!odrxSystemServices()->fileExists(path))
        add(FindingKind::kMissingPicture, file,
            QStringLiteral("tool \"%1\": there is no picture %2").arg(tool.name(), path) +
                m_spelling.hint(path));
    });
  }

  const tc::OdTcCatalog& m_catalog;
  OdString m_catalogFile;
  QHash<OdString, OdString> m_ids;
  QSet<OdString> m_usedPictures; ///< keys of files
  OtherSpelling m_spelling;
  QSet<OdString> m_listed; ///< of palettes
  bool m_isUnread = false;
  std::vector<Finding> m_findings;
};

} // namespace

std::optional<FindingKind> findKind(const OdString& codeOrWord) {
  for (const KindText& row : kKindTexts)
    if (codeOrWord == QLatin1String(row.code) || codeOrWord == QLatin1String(row.word))
      return row.kind;
  return std::nullopt;
}

OdString codeOf(FindingKind kind) { return QLatin1String(textOf(kind).code); }
OdString wordOf(FindingKind kind) { return QLatin1String(textOf(kind).word); }

std::vector<Finding> examine(const LoadedCatalog& loaded) {
  if (loaded.isRead) return Examination(loaded).run();
  const bool isThere = odrxSystemServices()->fileExists(loaded.file);
  return {{isThere ? FindingKind::kUnreadableCatalog : FindingKind::kMissingCatalog, loaded.file,
           isThere
               ? QStringLiteral("the file cannot be read: %1").arg(loaded.catalog->readProblem())
               : QStringLiteral("there is no such file")}};
}

} // namespace tpal
