#include "tpal/loaded_catalog.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "module/entry/class_table.h"
#include "module/string_table.h"
#include "persistence/path_operations.h"
#include "properties/property_bag.h"
#include "tools/action_agent.h"
#include "tpal/console_host.h"

#include <QFileInfo>

#include <algorithm>

namespace tpal {

ModuleClasses::ModuleClasses() { tc::registerModuleClasses(); }
ModuleClasses::~ModuleClasses() { tc::unregisterModuleClasses(); }

OdString catalogFileIn(const OdString& folder) {
  const OdString stored = odpath::fromPlatform(folder);
  return (stored.endsWith(u'\\') ? stored.chopped(1) : stored) + u'\\' +
         OdString::fromUtf16(tc::kCatalogFileName);
}

LoadedCatalog loadCatalog(const OdString& folder) {
  LoadedCatalog result;
  result.file = catalogFileIn(folder);
  ConsoleHost::instance().setToolPaletteFolders(
      {odpath::fromPlatform(QFileInfo(folder).absoluteFilePath())});
  result.catalog = tc::OdTcCatalog::createObject();
  ConsoleHost::instance().takeMessages();
  if (!odrxSystemServices()->fileExists(result.file)) {
    result.messages
        << QStringLiteral("%1: there is no such file").arg(odpath::toPlatform(result.file));
    return result;
  }
  result.isRead = result.catalog->load(result.file) && !result.catalog->isUnread();
  result.messages = ConsoleHost::instance().takeMessages();
  // What a window shows of it names neither the file nor the reason; the line before it does.
  result.messages.removeAll(tc::stringText(tc::StringId::kPaletteReadError));
  return result;
}

LoadedCatalog openOrNewCatalog(const OdString& folder) {
  LoadedCatalog target = loadCatalog(QFileInfo(odpath::toPlatform(folder)).absoluteFilePath());
  if (target.isRead || target.catalog->isUnread()) return target;
  target.catalog->load(target.file);
  target.catalog->setId(odrxSystemServices()->createGuid());
  target.catalog->setName(QStringLiteral("Tool Palettes"));
  target.isRead = true;
  target.messages.clear(); // of a file that is not there, as it is to be made
  return target;
}

namespace {

/// Which of an agent's own properties say what the tool does, by kind.
struct KindRow {
  const char* element;
  const char* kind;
  std::initializer_list<const char16_t*> properties;
};

const KindRow kKinds[] = {
    {"Command", "command", {u"Command.Command string"}},
    {"Block", "block", {u"Insert.Name", u"Insert.Source file"}},
    {"Hatch", "hatch", {u"Sample.Pattern name", u"Sample.Gradient name"}},
    {"Raster", "raster", {u"Insert.Source file"}},
    {"VisualStyle", "visual style", {}},
    {"Light", "light", {}},
    {"MLeader", "multileader", {}},
    {"Table", "table", {}},
};

OdString typeWithoutAgent(std::uint32_t type) {
  switch (type) {
  case tc::OdTcTool::kText:
    return QStringLiteral("text");
  case tc::OdTcTool::kSeparator:
    return QStringLiteral("separator");
  default:
    return QStringLiteral("none");
  }
}

} // namespace

ToolSummary summarize(const tc::OdTcTool& tool) {
  const tc::OdTcToolActionAgent* const agent = tool.getActionAgent();
  if (!agent) return {typeWithoutAgent(tool.getToolType()), {}};
  const OdString element = agent->elementName();
  const auto* row = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindRow& r) {
    return element == QLatin1String(r.element);
  });
  if (row == std::end(kKinds)) return {element, agent->commandString()};
  QStringList parts;
  for (const char16_t* name : row->properties) {
    const tc::OdTcProperty* property =
        agent->properties() ? agent->properties()->findByName(OdString::fromUtf16(name)) : nullptr;
    if (!property || !property->isVisible()) continue;
    const OdString value = property->getValue().toString();
    if (!value.isEmpty()) parts << value;
  }
  return {QLatin1String(row->kind), parts.join(QLatin1String(" from "))};
}

std::vector<tc::OdTcToolPalette*> palettesOf(const tc::OdTcCatalog& catalog) {
  std::vector<tc::OdTcToolPalette*> palettes;
  forEach(catalog.palettesEnum(), [&](tc::OdTcToolPalette* p) { palettes.push_back(p); });
  return palettes;
}

OdString paletteName(const tc::OdTcCatalog& catalog, const OdString& id) {
  const tc::OdTcCatalogItem* const loader = catalog.loaders()->find(id);
  return loader ? loader->name() : OdString();
}

tc::OdTcToolPalette* findPalette(const tc::OdTcCatalog& catalog, const OdString& word,
                                 OdString& problem) {
  if (tc::OdTcToolPalette* const byId = catalog.findPalette(word)) return byId;
  std::vector<tc::OdTcToolPalette*> named = palettesOf(catalog);
  std::erase_if(named, [&](const tc::OdTcToolPalette* p) { return p->name() != word; });
  if (named.size() == 1) return named.front();
  QStringList ids;
  for (const tc::OdTcToolPalette* palette : named) ids << palette->id();
  problem =
      named.empty()
          ? QStringLiteral("%1 has no palette \"%2\"").arg(odpath::toPlatform(catalog.path()), word)
          : QStringLiteral("%1 has %2 palettes \"%3\"; say which by its id: %4")
                .arg(odpath::toPlatform(catalog.path()), OdString::number(named.size()), word,
                     ids.join(QLatin1String(", ")));
  return nullptr;
}

std::vector<tc::OdTcTool*> toolsOf(const tc::OdTcToolPalette& palette) {
  std::vector<tc::OdTcTool*> tools;
  forEach(palette.enumTools(), [&](tc::OdTcTool* t) { tools.push_back(t); });
  return tools;
}

} // namespace tpal
