// tpal relocate: source files that have moved.
#include "catalog/database.h"
#include "catalog/folder_map.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "tools/action_agent.h"
#include "tools/tool_source.h"
#include "tpal/command.h"
#include "tpal/tool_place.h"
#include "tpal/writable_catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <algorithm>

namespace tpal {
namespace {

/// A tool that looks for its source elsewhere from now on.
struct Row {
  ToolPlace place;
  OdString from, to;
  bool isThere;
};

bool isThere(const tc::OdTcToolActionAgent& agent, const OdString& source) {
  return odrxSystemServices()->fileExists(tc::sourceFromPalette(agent, source));
}

class Relocation {
 public:
  Relocation(const Arguments& arguments, Console& console)
    : m_arguments(arguments)
    , m_console(console) {}

  ExitCode run() {
    const ModuleClasses classes;
    WritableCatalog catalog(m_arguments.words.first(), WritableCatalog::Writes::kPalettes,
                            m_arguments, m_console);
    if (!catalog.isOpen()) return kFailed;
    for (tc::OdTcToolPalette* palette : palettesOf(*catalog)) relocate(catalog, *palette);
    report();
    tellUnused();
    if (m_hasFailed) return kFailed;
    m_isComplete &= std::ranges::all_of(m_rows, &Row::isThere);
    return m_isComplete ? kOk : kFindings;
  }

 private:
  void relocate(WritableCatalog& catalog, tc::OdTcToolPalette& palette) {
    if (palette.getDatabase()->isUnread()) {
      m_isComplete = false; // the console was told when the catalog was read
      return;
    }
    const std::size_t first = m_rows.size();
    for (tc::OdTcTool* tool : toolsOf(palette)) relocate(palette, *tool);
    if (m_rows.size() == first || m_arguments.dryRun) return;
    const OdString problem = catalog.save(palette);
    if (problem.isEmpty()) return;
    m_console.err << "tpal: " << odpath::toPlatform(palette.getPath())
                  << ": not written: " << problem << "\n";
    m_hasFailed = true;
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(first), m_rows.end());
  }

  void relocate(const tc::OdTcToolPalette& palette, tc::OdTcTool& tool) {
    tc::OdTcToolActionAgent* const agent = tool.getActionAgent();
    const OdString source = agent ? agent->sourcePath() : OdString();
    for (const auto& folder : m_arguments.map)
      if (tc::movedPath(source, {folder})) m_used << folder.first;
    const auto moved = tc::movedPath(source, m_arguments.map);
    if (!moved || *moved == source) return;
    agent->setSourcePath(*moved);
    tool.setModified();
    m_rows.push_back({{palette, tool}, source, *moved, isThere(*agent, *moved)});
  }

  /// A folder that was mistyped would go unnoticed.
  void tellUnused() {
    for (const auto& [from, to] : m_arguments.map) {
      if (m_used.contains(from)) continue;
      m_console.err << "tpal: no tool has its source below " << from << "\n";
      m_isComplete = false;
    }
  }

  void report() const {
    if (m_arguments.json) {
      m_console.out << OdString::fromUtf8(QJsonDocument(asJson()).toJson());
      return;
    }
    for (const Row& row : m_rows)
      m_console.out << row.place.palette << ": " << row.place.tool << ": " << row.from << " -> "
                    << row.to << (row.isThere ? "" : ": there is no such file") << "\n";
    const auto missing = std::ranges::count(m_rows, false, &Row::isThere);
    m_console.out << "Tools that " << (m_arguments.dryRun ? "would look" : "look")
                  << " elsewhere: " << m_rows.size() << "; without a file there: " << missing
                  << "\n";
  }
  QJsonArray asJson() const {
    QJsonArray rows;
    for (const Row& row : m_rows) {
      QJsonObject object = row.place.asJson();
      object.insert(QStringLiteral("from"), row.from);
      object.insert(QStringLiteral("to"), row.to);
      object.insert(QStringLiteral("found"), row.isThere);
      rows.append(object);
    }
    return rows;
  }

  const Arguments& m_arguments;
  Console& m_console;
  std::vector<Row> m_rows;
  QSet<OdString> m_used; ///< folders that sources lie below
  bool m_isComplete = true;
  bool m_hasFailed = false;
};

} // namespace

ExitCode relocateCommand(const Arguments& arguments, Console& console) {
  if (arguments.map.empty()) {
    console.err << "tpal: --map is missing: which folder has moved, and where to?\n";
    return kUsage;
  }
  return Relocation(arguments, console).run();
}

} // namespace tpal
