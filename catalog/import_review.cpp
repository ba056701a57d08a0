#include "catalog/import_review.h"

#include "catalog/folder_map.h"
#include "catalog/inside_folder.h"
#include "catalog/tool_palette_impl.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/foreign_paths.h"
#include "persistence/path_operations.h"
#include "persistence/value_storage.h"
#include "tools/action_agent.h"

#include <QFileInfo>

#include <array>

namespace tc {
namespace {

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

/// Kinds of entry that have no agent to name them.
struct TypeName {
  OdTcTool::Type type;
  const char16_t* name;
};
constexpr std::array kTypeNames = {TypeName{OdTcTool::kText, u"Text"},
                                   TypeName{OdTcTool::kSeparator, u"Separator"}};

OdString kindOf(const OdTcTool& tool) {
  if (const OdTcToolActionAgent* const agent = tool.getActionAgent()) {
    const OdString element = agent->elementName();
    return OdTcValueStorageImpl::kindNames().value(element, element);
  }
  for (const TypeName& row : kTypeNames)
    if (tool.getToolType() == row.type) return OdString::fromUtf16(row.name);
  return {};
}

/// The name of the command that a macro begins with.
OdString commandOf(const OdString& macro) {
  OdString text = macro;
  while (text.startsWith(u'^') || text.startsWith(u'\'')) text.remove(0, text[0] == u'^' ? 2 : 1);
  qsizetype end = 0;
  while (end < text.size() &&
         (text[end].isLetterOrNumber() || QStringView(u"_.-").contains(text[end])))
    ++end;
  text.truncate(end);
  while (!text.isEmpty() && QStringView(u"_.-").contains(text[0])) text.remove(0, 1);
  return text;
}

bool isMultitool(const OdTcToolImpl& tool) { return tool.customData() && tool.flyout(); }

OdString whyNotConverted(const OdTcToolImpl& tool) {
  return translated(u"a tool of several commands, and none of them draws a \"%1\" here")
      .arg(tool.customData()->className());
}

OdString whySkipped(const OdTcToolImpl& tool, const OdTcForeignTool& foreign) {
  if (tool.getActionAgent() && !tool.getActionAgent()->isSupported())
    return translated(u"tools of the kind \"%1\" cannot run here").arg(kindOf(tool));
  if (const OdString kind = kindOf(tool); !tool.getActionAgent() && !kind.isEmpty())
    return translated(u"entries of the kind \"%1\" have no place here").arg(kind);
  if (isMultitool(tool)) return whyNotConverted(tool);
  if (tool.getToolType() == OdTcTool::kNoType && !foreign.losses.empty())
    return lossesInWords(foreign.losses);
  return translated(u"it is of type %1, which cannot run here").arg(tool.getToolType());
}

void reviewMissingAgent(OdTcToolImpl& tool, const OdTcForeignTool& foreign, bool convert,
                        OdTcImportedTool& row) {
  if (foreign.record.isEmpty()) {
    row.reason = isMultitool(tool) ? whyNotConverted(tool)
                                   : translated(u"the file does not say what it does");
    return;
  }
  if (!convert || !foreign.isOnlyMacro) {
    row.reason = translated(u"its record \"%1\" belongs to another product; the tool does nothing")
                     .arg(foreign.record);
    row.command = foreign.macro;
    return;
  }
  const OdSmartPtr<OdTcToolCommand> agent = OdTcToolCommand::createObject();
  agent->setCommandString(foreign.macro);
  tool.setActionAgent(agent);
  row.fate = OdTcToolFate::kConverted;
  row.reason = translated(u"the macro in its record \"%1\" is now a command").arg(foreign.record);
}

/// Where a file lies indeed, if links on its way lead out of the folder; empty if they do not.
OdString placeBehindLinks(const OdString& file, const OdString& folder) {
  const OdString real = QFileInfo(odpath::toPlatform(file)).canonicalFilePath();
  const OdString home = QFileInfo(odpath::toPlatform(folder)).canonicalFilePath();
  const bool leadsOut = !real.startsWith(home.endsWith(u'/') ? home : home + u'/');
  return leadsOut ? odpath::fromPlatform(real) : OdString();
}

} // namespace

OdString lossesInWords(const std::vector<OdTcForeignLoss>& losses) {
  QStringList words;
  for (const OdTcForeignLoss& loss : losses)
    words << translated(u"<%1> holds no value and ends the reading of %2: not read are %3")
                 .arg(loss.empty, loss.around, loss.behind.join(QStringLiteral(", ")));
  return words.join(QStringLiteral("; "));
}

void remark(OdTcImportedTool& row, const OdString& text) {
  if (text.isEmpty()) return;
  row.reason += row.reason.isEmpty() ? text : QStringLiteral("; ") + text;
}

void reviewSource(OdTcTool& tool, const OdTcImportOptions& options, const OdString& paletteFile,
                  OdTcImportedTool& row) {
  OdTcToolActionAgent* const agent = tool.getActionAgent();
  const OdString path = agent ? agent->sourcePath() : OdString();
  if (path.isEmpty()) return;
  // A pattern file without a folder is one of the host's own.
  if (odpath::fileNameOf(path) == path && agent->isKindOf(OdTcToolHatchCommand::desc())) return;
  row.sourceFile = movedPath(path, options.folderMap).value_or(path);
  if (row.sourceFile != path) agent->setSourcePath(row.sourceFile);
  if (const OdString why = whyNotLookedFor(row.sourceFile); !why.isEmpty()) {
    row.source = OdTcSourceFate::kRefused;
    remark(row, translated(u"its source is not looked for: %1").arg(why));
    return;
  }
  const bool isRelative = isRelativePath(row.sourceFile);
  const OdString place = isRelative ? combinePath(row.sourceFile, paletteFile) : row.sourceFile;
  if (!odrxSystemServices()->fileExists(place)) {
    row.source = OdTcSourceFate::kMissing;
    return;
  }
  row.source = OdTcSourceFate::kFound;
  const OdString folder =
      odpath::folderOf(isInsideFolder(place, odpath::folderOf(paletteFile)) ? paletteFile : place);
  if (const OdString real = placeBehindLinks(place, folder); !real.isEmpty())
    remark(row, translated(u"its source is a link that leads to %1").arg(real));
  if (!isRelative) return;
  row.sourceFile = place;
  agent->setSourcePath(place);
}

void reviewKind(OdTcToolImpl& tool, const OdTcForeignTool& foreign,
                const OdTcImportOptions& options, OdTcImportedTool& row) {
  // A tool may have lost its name on the way.
  row.name = tool.name().isEmpty() ? foreign.name : tool.name();
  if (isUnsupportedTool(tool)) {
    row.fate = OdTcToolFate::kSkipped;
    row.kind = kindOf(tool);
    row.reason = whySkipped(tool, foreign);
    if (row.name.isEmpty()) row.name = row.kind;
    return;
  }
  if (!tool.getActionAgent()) reviewMissingAgent(tool, foreign, options.convertCommands, row);
  row.kind = kindOf(tool);
  if (tool.wasConverted()) {
    row.fate = OdTcToolFate::kConverted;
    row.reason = translated(u"one command in the place of several");
  }
  remark(row, lossesInWords(foreign.losses));
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  if (!agent) return;
  row.command = agent->commandString();
  const OdString command = commandOf(row.command);
  if (OdTcValueStorageImpl::isCommandUnsupported(command))
    remark(row, translated(u"the command \"%1\" is not available here").arg(command));
}

} // namespace tc
