#include "catalog/palette_import.h"

#include "catalog/catalog_entry.h"
#include "catalog/foreign_store.h"
#include "catalog/import_prompt.h"
#include "catalog/import_review.h"
#include "catalog/library_pictures.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "module/string_table.h"
#include "persistence/path_operations.h"
#include "persistence/value_storage.h"
#include "tools/hatch_tool.h"
#include "tools/host_patterns.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace tc {
namespace {

OdTcImportProgress* g_progress = nullptr;
bool g_isUnderWay = false;

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

/// Keeps a second import out while the first lets other events in, and tells whoever follows.
class UnderWay {
 public:
  UnderWay() { g_isUnderWay = true; }
  ~UnderWay() {
    g_isUnderWay = false;
    if (m_isShown && g_progress) g_progress->stop();
  }
  UnderWay(const UnderWay&) = delete;
  UnderWay& operator=(const UnderWay&) = delete;

  void start(int range) {
    if (!g_progress) return;
    g_progress->start(range);
    m_isShown = true;
  }

 private:
  bool m_isShown = false;
};

} // namespace

OdTcImportProgress* OdTcImportProgress::instance() { return g_progress; }
void OdTcImportProgress::setInstance(OdTcImportProgress* progress) { g_progress = progress; }

PaletteImport::PaletteImport(OdTcCatalogImpl& catalog, OdString path,
                             const OdTcImportOptions& options, OdTcImportReport& report)
  : m_catalog(catalog)
  , m_path(std::move(path))
  , m_options(options)
  , m_report(report) {
  m_report = {};
  m_report.file = m_path;
}

bool PaletteImport::fail(const OdString& problem) {
  if (m_report.problem.isEmpty()) m_report.problem = problem;
  return false;
}

bool PaletteImport::step() {
  return !g_progress || g_progress->step() || fail(translated(u"the import was cancelled"));
}

OdTcToolPalettePtr PaletteImport::run() {
  if (g_isUnderWay) {
    fail(translated(u"another import is under way"));
    return {};
  }
  UnderWay underWay;
  const ImportConversation conversation(m_options.dryRun);
  try {
    if (!checkTarget() || !read()) return {};
    underWay.start(m_palette->content().tools()->count() * stages());
    review();
    if (!m_report.problem.isEmpty()) return {};
    announceSkipped();
    adopt();
    if (!(m_options.dryRun ? refreshImages() : enter())) return {};
  } catch (const OdError& error) {
    fail(error.description());
    return {};
  }
  m_report.notes += m_pictures->notes();
  return m_palette;
}

bool PaletteImport::checkTarget() {
  if (m_catalog.isUnread())
    return fail(translated(u"the catalog %1 cannot be read: %2")
                    .arg(m_catalog.path(), m_catalog.readProblem()));
  return true;
}

bool PaletteImport::read() {
  m_palette = odrxMake<OdTcToolPaletteImpl>();
  OdTcDatabaseImpl& content = m_palette->content();
  const bool isRead = content.loadForeign(m_path, m_foreign);
  const OdString remark = content.readProblem();
  // From here on the palette lies nowhere: what is done to it must not reach the files of others.
  content.setPath(OdString());
  m_report.isUnreadable = !m_foreign.isReported;
  if (isForeignCatalog(m_foreign.root))
    return fail(translated(u"it is a catalog, which only points to palettes"));
  if (!isRead) return fail(remark.isEmpty() ? translated(u"there is no such file") : remark);
  m_report.isUnreadable = false;
  if (!remark.isEmpty()) m_report.notes << remark;
  noteContent();
  return true;
}

void PaletteImport::noteContent() {
  if (const OdString lost = lossesInWords(m_foreign.losses); !lost.isEmpty())
    m_report.notes << lost;
  if (!m_foreign.earlierTools.isEmpty())
    m_report.notes << translated(u"The palette has another list of tools behind these, which are "
                                 u"not taken: %1")
                          .arg(m_foreign.earlierTools.join(QStringLiteral(", ")));
  if (!m_foreign.otherPalettes.isEmpty())
    m_report.notes << translated(u"Further palettes in the file, which are not taken: %1")
                          .arg(m_foreign.otherPalettes.join(QStringLiteral(", ")));
}

void PaletteImport::review() {
  OdTcToolList& tools = *m_palette->content().tools();
  const int count = tools.count();
  m_foreign.tools.resize(std::max(m_foreign.tools.size(), static_cast<std::size_t>(count)));
  // The pictures point at the rows, which must stay where they are.
  m_report.tools.resize(m_foreign.tools.size());
  m_pictures.emplace(m_path, m_foreign);
  m_pictures->look(*m_palette, m_foreign.darkImages);
  for (int i = 0; i < count; ++i) {
    if (!step()) return;
    const auto at = static_cast<std::size_t>(i);
    reviewTool(static_cast<OdTcTool&>(*tools.at(i)), m_foreign.tools[at], m_report.tools[at]);
    if (m_report.tools[at].fate != OdTcToolFate::kSkipped) continue;
    for (int stage = 1; stage < stages(); ++stage)
      if (!step()) return;
  }
  noteUnread(count);
}

void PaletteImport::reviewTool(OdTcTool& tool, const OdTcForeignTool& foreign,
                               OdTcImportedTool& row) {
  reviewKind(static_cast<OdTcToolImpl&>(tool), foreign, m_options, row);
  if (row.fate == OdTcToolFate::kSkipped) {
    // The pictures of a tool that goes belong to whoever made the file.
    tool.setMarked();
    return;
  }
  reviewPattern(tool, row);
  reviewSource(tool, m_options, m_path, row);
  m_pictures->look(tool, foreign.darkImages, row);
}

void PaletteImport::reviewPattern(const OdTcTool& tool, OdTcImportedTool& row) {
  const auto* const hatch = dynamic_cast<const OdTcToolHatchCommandImpl*>(tool.getActionAgent());
  const OdString pattern = hatch ? hatch->namedPattern() : OdString();
  if (pattern.isEmpty()) return;
  const OdString file = hatch->patternFile();
  const OdString question = pattern + u'\n' + file;
  auto known = m_patterns.find(question);
  if (known == m_patterns.end()) known = m_patterns.insert(question, isPatternKnown(pattern, file));
  if (!*known) remark(row, translated(u"there is no hatch pattern \"%1\" here").arg(pattern));
}

void PaletteImport::noteUnread(int first) {
  for (std::size_t i = static_cast<std::size_t>(first); i < m_report.tools.size(); ++i) {
    m_report.tools[i].name = m_foreign.tools[i].name;
    m_report.tools[i].isUnread = true;
    m_report.tools[i].fate = OdTcToolFate::kSkipped;
    m_report.tools[i].reason =
        translated(u"it stands behind an empty element, which ends the list");
  }
}

void PaletteImport::announceSkipped() {
  QStringList kinds;
  m_palette->collectUnsupportedKinds(kinds, OdTcValueStorageImpl::kindNames());
  kinds.removeDuplicates();
  if (!kinds.isEmpty())
    m_report.notes << translated(u"Kinds of tool that cannot run here: %1")
                          .arg(kinds.join(QStringLiteral(", ")));
  bool isPrompted = false;
  for (const OdTcImportedTool& row : m_report.tools) {
    // What was never read is in the report; nothing of it is of a kind that cannot run.
    if (row.fate != OdTcToolFate::kSkipped || row.isUnread) continue;
    if (!std::exchange(isPrompted, true)) showImportPrompt(kUnsupportedToolsPrompt);
    printImported(formatText(translated(u"\nSkipped unsupported tool: %s"), row.name));
  }
}

OdString PaletteImport::uniqueName(const OdString& wanted) const {
  // Gathered once: many palettes may have this name and a number.
  QSet<OdString> taken(m_options.takenNames.begin(), m_options.takenNames.end());
  const OdTcEnumPtr<OdTcToolPalette> palettes = m_catalog.palettesEnum();
  while (const OdTcToolPalette* const palette = palettes->next()) taken << palette->name();
  OdString name = wanted;
  for (int number = 2; taken.contains(name); ++number)
    name = QStringLiteral("%1 (%2)").arg(wanted, OdString::number(number));
  return name;
}

void PaletteImport::adopt() {
  m_palette->stripUnsupportedTools();
  const OdString ownName = m_palette->name();
  m_palette->adoptFileName(m_path);
  // The files of a store are named after their ids; an exported one the user has named.
  const bool isStore = odpath::extensionOf(m_path) != QLatin1String("xtp");
  m_palette->setName(uniqueName(isStore && !ownName.isEmpty() ? ownName : m_palette->name()));
  m_palette->renewIds();
  // The other program shows the tools in the order that they were given.
  if (!m_foreign.hasSortType) m_palette->setSortType(OdTcPaletteUi::kManual);
  m_palette->setImported();
  m_report.palette = m_palette->name();
  m_report.id = m_palette->id();
}

bool PaletteImport::enter() {
  CatalogEntry entry(m_catalog, m_palette);
  if (!m_pictures->bring(m_catalog.palettesFolder(), entry.madeFiles(), [this] { return step(); }))
    return false;
  entry.enter(m_options.group);
  if (!refreshImages()) return false;
  if (m_options.save && !entry.save()) return fail(entry.problem());
  for (const OdString& problem : m_palette->getDatabase()->unsavedPictures())
    m_report.notes << translated(u"A picture is not saved: %1").arg(problem);
  entry.commit();
  return true;
}

bool PaletteImport::refreshImages() {
  OdTcSourceFiles sources;
  IHostDocument* const document = host::curDocument();
  const OdTcEnumPtr<OdTcTool> tools = m_palette->enumTools();
  auto row = m_report.tools.begin();
  while (OdTcTool* const tool = tools->next()) {
    while (row->fate == OdTcToolFate::kSkipped) ++row;
    if (!step()) return false;
    OdTcToolActionAgent* const agent = tool->getActionAgent();
    if (agent && agent->refreshImages(document)) {
      row->picture = OdTcPictureFate::kMade;
      row->pictureFile.clear();
    } else {
      replaceLibraryPictures(*tool, sources, *row);
    }
    ++row;
  }
  return true;
}

OdTcToolPalettePtr OdTcCatalogImpl::importPalette(const OdString& path,
                                                  const OdTcImportOptions& options,
                                                  OdTcImportReport& report) {
  const OdTcCatalogPtr held(this);
  return PaletteImport(*this, path, options, report).run();
}

OdTcToolPalette* OdTcCatalogImpl::importPaletteFile(const OdString& path) {
  OdTcImportReport report;
  return importPalette(path, {}, report);
}

} // namespace tc
