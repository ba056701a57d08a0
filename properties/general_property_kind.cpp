#include "properties/general_property_kind.h"

#include "drawing/database.h"
#include "module/string_table.h"
#include "properties/database_property_impl.h"
#include "properties/entity_values.h"
#include "properties/value_words.h"

#include <array>
#include <cmath>
#include <optional>

namespace tc {
namespace {

using Property = OdTcDatabasePropertyImpl;

constexpr std::array kLineTypeWords = {kByLayer, kByBlock, kContinuous};
constexpr std::array kLayerWords = {kByLayer, kByBlock};
constexpr std::array kLineWeightWords = {kByLayer, kByBlock, kByDefault};

template <const RecordInfoKind& Kind>
OdTcPropertyCreateInfoPtr makeRecordInfo() {
  return odrxMake<OdTcRecordCreateInfoImpl<Kind>>();
}
OdTcPropertyCreateInfoPtr makeColorInfo() { return odrxMake<OdTcColorPropertyCreateInfoImpl>(); }

CurrentValue wantedRecord(const Property& property, OdDbDatabase& database) {
  const OdDbObjectId id = property.recordIn(&database);
  return id.isNull() ? CurrentValue() : CurrentValue(id);
}

/// The text as a number; nothing if it does not begin with one. Files from other programs can hold
/// words of another language here.
std::optional<double> numberOf(const OdString& text) {
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

CurrentValue wantedColor(const Property& property, OdDbDatabase&) {
  return property.hasColor() ? CurrentValue(property.color()) : CurrentValue();
}

CurrentValue wantedScale(const Property& property, OdDbDatabase&) {
  const auto scale = numberOf(property.text());
  return scale && *scale > 0 ? CurrentValue(*scale) : CurrentValue();
}

CurrentValue wantedPlotStyle(const Property& property, OdDbDatabase& database) {
  const OdString text = property.text();
  if (text == kByLayer) return CurrentPlotStyle{OdDb::kPlotStyleNameByLayer, {}};
  if (text == kByBlock) return CurrentPlotStyle{OdDb::kPlotStyleNameByBlock, {}};
  const OdDbObjectId dictionary = database.getPlotStyleNameDictionaryId();
  if (text.isEmpty() || dictionary.isNull()) return {};
  const OdDbObjectId style = dictionary.openAs<OdDbDictionary>()->getAt(text);
  return style.isNull() ? CurrentValue()
                        : CurrentValue(CurrentPlotStyle{OdDb::kPlotStyleNameById, style});
}

CurrentValue wantedLineWeight(const Property& property, OdDbDatabase&) {
  const OdString text = property.text();
  if (text == kByLayer) return OdDb::kLnWtByLayer;
  if (text == kByBlock) return OdDb::kLnWtByBlock;
  if (text == kByDefault) return OdDb::kLnWtByLwDefault;
  const auto weight = numberOf(text);
  if (!weight || std::abs(*weight) > 211.0) return {};
  const int rounded = static_cast<int>(*weight);
  return rounded == *weight && OdDb::isValidLineWeight(rounded)
             ? CurrentValue(static_cast<OdDb::LineWeight>(rounded))
             : CurrentValue();
}

CurrentValue wantedTransparency(const Property& property, OdDbDatabase&) {
  const OdString text = property.text();
  if (text == kByLayer) return OdCmTransparency(OdCmTransparency::kByLayer);
  if (text == kByBlock) return OdCmTransparency(OdCmTransparency::kByBlock);
  const auto percent = numberOf(text);
  return percent && *percent >= 0 && *percent <= 100
             ? CurrentValue(OdCmTransparency::fromPercent(static_cast<int>(*percent)))
             : CurrentValue();
}

void setPlotStyle(OdDbDatabase& database, const CurrentValue& value) {
  const auto& style = std::get<CurrentPlotStyle>(value);
  database.setCurrentPlotStyle(style.type, style.id);
}

/// A getter of the drawing as a value, and a setter that takes one.
template <auto Getter>
CurrentValue get(const OdDbDatabase& database) {
  return (database.*Getter)();
}
template <class T, auto Setter>
void set(OdDbDatabase& database, const CurrentValue& value) {
  (database.*Setter)(std::get<T>(value));
}
using Db = OdDbDatabase;
constexpr QStringView label(StringId id) {
  for (const string_table::Row& row : string_table::kRows)
    if (row.id == id) return row.text;
  return {};
}

constexpr std::array<GeneralPropertyKind, kGeneralPropertyCount> kKinds = {{
    {u"Color",
     u"General.Color",
     makeColorInfo,
     nullptr,
     {},
     get<&Db::currentColor>,
     set<OdCmColor, &Db::setCurrentColor>,
     wantedColor,
     captureColor},
    {u"Layer",
     label(StringId::kLayer),
     makeRecordInfo<kLayerInfo>,
     &kLayerInfo,
     {},
     get<&Db::currentLayer>,
     set<OdDbObjectId, &Db::setCurrentLayer>,
     wantedRecord,
     captureLayer},
    {u"Linetype", label(StringId::kLineType), makeRecordInfo<kLineTypeInfo>, &kLineTypeInfo,
     kLineTypeWords, get<&Db::currentLinetype>, set<OdDbObjectId, &Db::setCurrentLinetype>,
     wantedRecord, captureLineType},
    {u"LinetypeScale",
     label(StringId::kLinetypeScale),
     nullptr,
     nullptr,
     {},
     get<&Db::currentLinetypeScale>,
     set<double, &Db::setCurrentLinetypeScale>,
     wantedScale,
     captureLineTypeScale},
    {u"PlotStyle", label(StringId::kPlotStyle), nullptr, nullptr, kLayerWords,
     [](const Db& database) -> CurrentValue {
       return CurrentPlotStyle{database.currentPlotStyleType(), database.currentPlotStyleId()};
     },
     setPlotStyle, wantedPlotStyle, capturePlotStyle},
    {u"LineWeight", label(StringId::kLineWeight), nullptr, nullptr, kLineWeightWords,
     get<&Db::currentLineWeight>, set<OdDb::LineWeight, &Db::setCurrentLineWeight>,
     wantedLineWeight, captureLineWeight},
    {u"Transparency", label(StringId::kTransparency), nullptr, nullptr, kLayerWords,
     get<&Db::currentTransparency>, set<OdCmTransparency, &Db::setCurrentTransparency>,
     wantedTransparency, captureTransparency},
    {u"Textstyle",
     label(StringId::kTextStyle),
     makeRecordInfo<kTextStyleInfo>,
     &kTextStyleInfo,
     {},
     get<&Db::currentTextStyle>,
     set<OdDbObjectId, &Db::setCurrentTextStyle>,
     wantedRecord,
     captureTextStyle},
    {u"Dimstyle",
     label(StringId::kDimensionStyle),
     makeRecordInfo<kDimStyleInfo>,
     &kDimStyleInfo,
     {},
     get<&Db::currentDimStyle>,
     set<OdDbObjectId, &Db::setCurrentDimStyle>,
     wantedRecord,
     captureDimStyle},
    // Kept for the files' sake: it has no label and drives nothing.
    {u"Tablestyle", {}},
}};

} // namespace

const GeneralPropertyKind& generalPropertyKind(GeneralProperty property) {
  return kKinds[static_cast<std::size_t>(property)];
}

} // namespace tc
