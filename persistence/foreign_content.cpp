#include "persistence/foreign_content.h"

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

bool standsBeside(const std::string& name) {
  return std::find(std::begin(kBeside), std::end(kBeside), name) != std::end(kBeside);
}

void gatherRecord(const TiXmlElement* data, OdTcForeignTool& tool) {
  const OdTcElementTable& known = OdTcElementTable::instance();
  for (const TiXmlElement* record = data ? data->FirstChildElement() : nullptr; record;
       record = record->NextSiblingElement()) {
    const OdString name = fromUtf8(record->ValueStr());
    if (known.contains(name) || standsBeside(record->ValueStr())) continue;
    if (tool.record.isEmpty()) tool.record = name;
    if (!tool.macro.isEmpty()) continue;
    const bool isMacro = record->ValueStr() == kMacroElement;
    tool.macro = textIn(isMacro ? record : child(record, kMacroElement));
  }
}

/// The element of that name on the way down the first children, as far as the palette.
const TiXmlElement* findNear(const TiXmlElement& root, const char* name) {
  return root.ValueStr() == name ? &root : root.FirstChildElement(name);
}

} // namespace

void gatherForeignContent(const TiXmlElement& root, const TiXmlElement& palette,
                          OdTcForeignContent& content) {
  if (const TiXmlElement* const folder = findNear(root, "DependentFilesPath")) {
    content.dependentFilesPath = textIn(folder);
    // Named, though by nothing.
    if (content.dependentFilesPath.isNull()) content.dependentFilesPath = QStringLiteral("");
  }
  content.root = fromUtf8(root.ValueStr());
  content.darkImages = darkImagesOf(&palette);
  content.tools.clear();
  const TiXmlElement* list = nullptr;
  // Where a list stands twice the later one counts.
  for (const TiXmlElement* each = child(&palette, "Tools"); each;
       each = each->NextSiblingElement("Tools"))
    list = each;
  for (const TiXmlElement* element = child(list, "Tool"); element;
       element = element->NextSiblingElement("Tool")) {
    OdTcForeignTool tool;
    tool.name = textIn(child(child(element, "Properties"), "ItemName"));
    tool.darkImages = darkImagesOf(element);
    gatherRecord(child(element, "Data"), tool);
    content.tools.push_back(std::move(tool));
  }
}

} // namespace tc
