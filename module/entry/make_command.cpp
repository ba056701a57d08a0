#include "module/entry/make_command.h"

#include "catalog/palette_filling.h"
#include "host/selection.h"
#include "images/picture_file.h"
#include "module/entry/talking_command.h"
#include "tools/action_agent.h"
#include "tools/tool_maker.h"

#include <functional>

namespace tc {
namespace {

/// Fills a new tool; false if none comes of it.
using Road = std::function<bool(OdTcToolMaker& maker, OdTcTool& tool)>;

/// What tools are to be made of, each with the words for it.
struct Subject {
  OdString words;
  Road road;
};
using Subjects = std::vector<Subject>;

Subjects askObjects(IHostDocument* document) {
  Subjects subjects;
  const KVPtr<IHostSelection> selection = host::service<IHostSelection>();
  if (!selection) return subjects;
  for (const OdDbObjectId id : selection->choose(*document))
    subjects.push_back(
        {translated(u"The object %1").arg(id.getHandle().ascii()),
         [id](OdTcToolMaker& maker, OdTcTool& tool) { return maker.fromEntity(tool, id); }});
  return subjects;
}

Subjects askBlock(IHostDocument* document) {
  const auto name = ask(document, u"Block: ");
  if (!name || name->isEmpty()) return {};
  return {{translated(u"The block \"%1\"").arg(*name),
           [name = *name, document](OdTcToolMaker& maker, OdTcTool& tool) {
             return maker.fromBlock(tool, name, document);
           }}};
}

Subjects askDrawing(IHostDocument* document) {
  const auto typed = ask(document, u"Drawing file: ");
  if (!typed || typed->isEmpty()) return {};
  const OdString file = typedPath(*typed);
  const auto name = ask(document, u"Block <all>: ");
  if (!name) return {};
  OdTcToolMaker reader;
  const QStringList names = name->isEmpty() ? reader.blocksOf(file) : QStringList(*name);
  Subjects subjects;
  for (const OdString& block : names)
    subjects.push_back({translated(u"The block \"%1\"").arg(block),
                        [file, block](OdTcToolMaker& maker, OdTcTool& tool) {
                          return maker.fromDrawingBlock(tool, file, block);
                        }});
  return subjects;
}

Subjects askFile(IHostDocument* document) {
  const auto typed = ask(document, u"File: ");
  if (!typed || typed->isEmpty()) return {};
  const OdString file = typedPath(*typed);
  return {
      {file, [file](OdTcToolMaker& maker, OdTcTool& tool) { return maker.fromFile(tool, file); }}};
}

Subjects askCommand(IHostDocument* document) {
  const auto name = ask(document, u"Command: ");
  if (!name || name->isEmpty()) return {};
  return {{*name, [name = *name](OdTcToolMaker& maker, OdTcTool& tool) {
             return maker.fromCommand(tool, name);
           }}};
}

Subjects takeClipboard(IHostDocument*) {
  return {{translated(u"The clipboard"),
           [](OdTcToolMaker& maker, OdTcTool& tool) { return maker.fromClipboard(tool); }}};
}

struct SourceRow {
  QStringView keyword;
  Subjects (*ask)(IHostDocument* document);
};
constexpr SourceRow kSources[] = {
    {u"Object", askObjects}, {u"Block", askBlock},     {u"Drawing", askDrawing},
    {u"File", askFile},      {u"Command", askCommand}, {u"Paste", takeClipboard},
};

/// The row of a keyword or of its beginning; the first one for no answer, null for any other.
const SourceRow* findSource(const OdString& word) {
  for (const SourceRow& row : kSources)
    if (row.keyword.startsWith(word, Qt::CaseInsensitive)) return &row;
  return nullptr;
}

/// The catalog that has the palette, or else the one that is to have it.
OdTcCatalog* catalogFor(const OdString& palette) {
  const OdTcToolPalette* const found = findPalette(palette);
  OdTcCatalog* const around = found ? found->catalog() : nullptr;
  return around ? around : findCatalog({});
}

/// Why a tool of a picture file does not show it; empty for any other tool.
OdString whyPictureless(const OdTcTool& tool) {
  const auto* const raster = odrxCast<OdTcToolRasterCommand>(tool.getActionAgent());
  return raster && !tool.images() ? whyNoPicture(raster->sourcePath()) : OdString();
}

int make(OdTcCatalog& catalog, const OdString& palette, const OdString& group,
         const Subjects& subjects) {
  const OdTcCatalogPtr held(&catalog);
  OdTcPaletteFilling filling(catalog, palette, group);
  OdTcToolMaker maker;
  QStringList lines;
  for (const Subject& subject : subjects) {
    const OdTcToolPtr tool = OdTcTool::createObject();
    if (subject.road(maker, *tool)) {
      filling.add(tool);
      lines << translated(u"%1 is now the tool \"%2\".").arg(subject.words, tool->name());
      if (const OdString reason = whyPictureless(*tool); !reason.isEmpty())
        lines << translated(u"The tool \"%1\" has no picture: %2").arg(tool->name(), reason);
    } else {
      printLine(translated(u"%1 gives no tool: %2").arg(subject.words, maker.problem()));
    }
  }
  if (filling.count() == 0) return kFailed;
  if (!filling.commit()) {
    printLine(translated(u"The palette \"%1\" cannot be saved: %2")
                  .arg(filling.palette().name(), filling.problem()));
    return kFailed;
  }
  for (const OdString& line : lines) printLine(line);
  refreshWindow();
  return kDone;
}

int runMake(IHostDocument* document) {
  const auto palette = ask(document, u"Palette: ");
  if (!palette || palette->isEmpty()) return kFailed;
  // A palette that stands in no group is not among those that offer their tools.
  const auto group = findPalette(*palette) ? std::optional<OdString>(OdString())
                                           : ask(document, u"Group of the new palette <none>: ");
  if (!group) return kFailed;
  const auto word =
      ask(document, u"Make tools from [Object/Block/Drawing/File/Command/Paste] <Object>: ");
  if (!word) return kFailed;
  const SourceRow* const source = findSource(*word);
  if (!source) {
    printLine(translated(u"Tools cannot be made from \"%1\".").arg(*word));
    return kFailed;
  }
  OdTcCatalog* const catalog = catalogFor(*palette);
  if (!catalog) {
    printLine(translated(u"There is no catalog to take the palette."));
    return kFailed;
  }
  const Subjects subjects = source->ask(document);
  return subjects.empty() ? kFailed : make(*catalog, *palette, *group, subjects);
}

} // namespace

ICmdProcess* makeMakeCommand() { return TalkingCommand<&runMake>::create(); }

} // namespace tc
