#include "persistence/foreign_content.h"

#include "persistence/document_check.h"
#include "persistence/element_table.h"
#include "persistence/xml_text.h"

#include <tinyxml.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace tc {
namespace {

/// Elements that stand beside a record and say nothing of what the tool does.
constexpr std::string_view kBeside[] = {"Units", "DynamicProperties"};
constexpr char kMacroElement[] = "CommandString";
constexpr const char* kPathToPalette[] = {"PaletteSets", "PaletteSetData", "PaletteSetContent",
                                          "Palettes",    "PaletteData",    "PaletteContent",
                                          "Palette"};
/// Elements of which nothing is kept, whatever they hold.
constexpr std::string_view kUnused[] = {"CustomData", "Source", "ToolSource", "CAdUiPalette"};
/// Elements that say nothing of what a palette looks like or a tool does.
constexpr std::string_view kUnimportant[] = {"Time", "Overlay"};

template <std::size_t N>
bool isAmong(const std::string_view (&names)[N], const std::string& name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

const TiXmlElement* child(const TiXmlElement* element, const char* name) {
  return element ? element->FirstChildElement(name) : nullptr;
}

OdString textIn(const TiXmlElement* element) {
  OdString text;
  if (!element) return text;
  for (const TiXmlNode* node = element->FirstChild(); node; node = node->NextSibling())
    if (const TiXmlText* piece = node->ToText()) text += fromUtf8(piece->ValueStr());
  return text;
}

std::uint32_t darkImagesOf(const TiXmlElement* item) {
  std::uint32_t dark = 0, bit = 1;
  const TiXmlElement* image = child(child(child(item, "Properties"), "Images"), "Image");
  for (; image && bit; image = image->NextSiblingElement("Image"), bit <<= 1) {
    const char* const value = image->Attribute("IsDark");
    if (value && OdString::fromUtf8(value).compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
      dark |= bit;
  }
  return dark;
}

bool hasClass(const TiXmlElement& element) {
  return OdTcElementTable::instance().contains(fromUtf8(element.ValueStr()));
}

bool isRecord(const TiXmlElement& element) {
  return !hasClass(element) && !isAmong(kBeside, element.ValueStr());
}

/// The macro in a record; `isAlone` says that there is nothing else in it.
OdString macroIn(const TiXmlElement& record, bool& isAlone) {
  const bool isMacro = record.ValueStr() == kMacroElement;
  const TiXmlElement* const macro = isMacro ? &record : child(&record, kMacroElement);
  isAlone = macro && !macro->FirstAttribute() && !macro->FirstChildElement() &&
            (isMacro || (record.FirstChildElement() == macro && !macro->NextSiblingElement()));
  return textIn(macro);
}

void gatherRecord(const TiXmlElement* data, OdTcForeignTool& tool) {
  int count = 0;
  for (const TiXmlElement* record = data ? data->FirstChildElement() : nullptr; record;
       record = record->NextSiblingElement()) {
    if (!isRecord(*record)) continue;
    ++count;
    bool isAlone = false;
    const OdString macro = tool.macro.isEmpty() ? macroIn(*record, isAlone) : OdString();
    if (count > 1 && macro.isEmpty()) continue;
    tool.record = fromUtf8(record->ValueStr());
    tool.macro = macro;
    tool.isOnlyMacro = isAlone && !macro.isEmpty();
  }
  tool.isOnlyMacro = tool.isOnlyMacro && count == 1;
}

/// The element of that name on the way down the first children, as far as the palette.
const TiXmlElement* findNear(const TiXmlElement& root, const char* name) {
  return root.ValueStr() == name ? &root : root.FirstChildElement(name);
}

OdString nameOfItem(const TiXmlElement* item) {
  return textIn(child(child(item, "Properties"), "ItemName"));
}

/// The list of tools that counts: the last one.
const TiXmlElement* lastList(const TiXmlElement& palette) {
  const TiXmlElement* list = nullptr;
  for (const TiXmlElement* each = child(&palette, "Tools"); each;
       each = each->NextSiblingElement("Tools"))
    list = each;
  return list;
}

/// Calls `visit` with each element at the end of the path.
template <class Visit>
void walkPath(const TiXmlElement& element, const char* const* path, const char* const* end,
              const Visit& visit) {
  if (path == end) return visit(element);
  for (const TiXmlElement* each = element.FirstChildElement(*path); each;
       each = each->NextSiblingElement(*path))
    walkPath(*each, path + 1, end, visit);
}

bool hasSortType(const TiXmlElement& holder) {
  return child(child(&holder, "PaletteUI"), "SortType") != nullptr;
}

void gatherBeside(const TiXmlElement& root, const TiXmlElement& palette,
                  OdTcForeignContent& content) {
  const TiXmlNode* const data = palette.Parent() ? palette.Parent()->Parent() : nullptr;
  content.hasSortType =
      hasSortType(palette) || (data && data->ToElement() && hasSortType(*data->ToElement()));
  walkPath(root, std::begin(kPathToPalette), std::end(kPathToPalette),
           [&](const TiXmlElement& each) {
             if (&each != &palette) content.otherPalettes << nameOfItem(&each);
           });
}

} // namespace

const OdTcPassedOver& treesOfOthers() {
  static constexpr std::string_view kTrees[] = {"DynamicProperties", "ExtensionDictionary"};
  // The one ends the first pass over the file, the other may be the macro of a tool.
  static constexpr std::string_view kWanted[] = {"PaletteContent", "CommandString"};
  static constexpr OdTcPassedOver passedOver = {kTrees, "Palette", kWanted};
  return passedOver;
}

void gatherForeignContent(const TiXmlElement& root, const TiXmlElement& palette,
                          OdTcForeignContent& content) {
  if (const TiXmlElement* const folder = findNear(root, "DependentFilesPath")) {
    content.dependentFilesPath = textIn(folder);
    // Named, though by nothing.
    if (content.dependentFilesPath.isNull()) content.dependentFilesPath = QStringLiteral("");
  }
  content.root = fromUtf8(root.ValueStr());
  content.darkImages = darkImagesOf(&palette);
  gatherBeside(root, palette, content);
  content.tools.clear();
  const TiXmlElement* const list = lastList(palette);
  for (const TiXmlElement* each = child(&palette, "Tools"); each && each != list;
       each = each->NextSiblingElement("Tools"))
    for (const TiXmlElement* tool = child(each, "Tool"); tool;
         tool = tool->NextSiblingElement("Tool"))
      content.earlierTools << nameOfItem(tool);
  for (const TiXmlElement* element = child(list, "Tool"); element;
       element = element->NextSiblingElement("Tool")) {
    OdTcForeignTool tool;
    tool.name = nameOfItem(element);
    tool.darkImages = darkImagesOf(element);
    gatherRecord(child(element, "Data"), tool);
    content.tools.push_back(std::move(tool));
  }
}

OdTcForeignLosses::OdTcForeignLosses(const TiXmlElement& palette, OdTcForeignContent& content)
  : m_content(content)
  , m_list(lastList(palette))
  , m_tool(child(m_list, "Tool")) {}

std::vector<OdTcForeignLoss>* OdTcForeignLosses::placeOf(const TiXmlElement& element) {
  const TiXmlNode* inside = &element;
  for (const TiXmlNode* node = element.Parent(); node; inside = node, node = node->Parent()) {
    const std::string& name = node->ValueStr();
    if (isAmong(kUnused, name)) return nullptr;
    if (name != "Tools") continue;
    // Behind an empty element of the list itself stand tools, which are counted elsewhere.
    if (node != m_list || inside == &element) return nullptr;
    for (; m_tool && m_tool != inside; m_tool = m_tool->NextSiblingElement("Tool")) ++m_at;
    return m_tool ? &m_content.tools[m_at].losses : nullptr;
  }
  return &m_content.losses;
}

void OdTcForeignLosses::note(const TiXmlElement& empty) {
  std::vector<OdTcForeignLoss>* const place = placeOf(empty);
  if (!place || !empty.Parent()) return;
  OdTcForeignLoss loss{fromUtf8(empty.ValueStr()), fromUtf8(empty.Parent()->ValueStr()), {}};
  // Of the data of a tool only the records that have a class here are kept.
  const bool isData = loss.around == QLatin1String("Data");
  for (const TiXmlElement* each = empty.NextSiblingElement(); each;
       each = each->NextSiblingElement())
    if (isData ? hasClass(*each) : !isAmong(kUnimportant, each->ValueStr()))
      loss.behind << fromUtf8(each->ValueStr());
  loss.behind.removeDuplicates();
  if (!loss.behind.isEmpty()) place->push_back(std::move(loss));
}

} // namespace tc
