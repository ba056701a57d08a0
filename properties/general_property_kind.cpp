#include "properties/general_property_kind.h"

#include "drawing/database.h"
#include "host/host_locator.h"
#include "module/string_table.h"
#include "properties/color_value.h"
#include "properties/database_property_impl.h"
#include "properties/entity_values.h"
#include "properties/refusals.h"
#include "properties/value_words.h"

#include <array>
#include <cmath>
#include <cstdint>

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

OdDbObjectId usableId(const Property& property, OdDbDatabase& database) {
  const OdDbObjectId id = property.recordIn(&database);
  if (id.isNull() && !property.record() && !property.text().isEmpty())
    tellValueRefused(property.getDisplayName(), property.text());
  return id;
}

CurrentValue wantedRecord(const Property& property, OdDbDatabase& database) {
  const OdDbObjectId id = usableId(property, database);
  return id.isNull() ? CurrentValue() : CurrentValue(id);
}

CurrentValue wantedLayer(const Property& property, OdDbDatabase& database) {
  const OdDbObjectId id = usableId(property, database);
  if (id.isNull()) return {};
  const auto layer = id.openAs<OdDbLayerTableRecord>();
  if (!layer->isFrozen()) return id;
  // What is drawn on it would not be seen, and no program lets its users draw there.
  tellRecordUnusable(
      host::translate(QStringLiteral("\nLayer \"%s\" is frozen and cannot be made current.")),
      layer->getName());
  return {};
}

CurrentValue wantedDimStyle(const Property& property, OdDbDatabase& database) {
  const OdDbObjectId id = usableId(property, database);
  return id.isNull() ? CurrentValue() : CurrentValue(CurrentDimStyle{id});
}

CurrentValue wantedColor(const Property& property, OdDbDatabase&) {
  // No colour at all is what files of other programs have beside "unspecified".
  if (!property.hasColor() || property.color().isNone()) return {};
  const OdCmColor color = property.color();
  if (!isEntityColor(color)) {
    tellValueRefused(property.getDisplayName(), OdString::number(color.color()));
    return {};
  }
  // The palette's entry 0 is by block.
  return color.isByACI() && color.colorIndex() == OdCmColor::kACIbyBlock
             ? OdCmColor(OdCmColor::kByBlock)
             : color;
}

/// The value of a text: `ofWord` gives that of a word, `ofNumber` that of a number. What is neither
/// is told.
template <class OfWord, class OfNumber>
CurrentValue valueOfText(const Property& property, OfWord ofWord, OfNumber ofNumber) {
  const OdString text = property.text();
  if (text.trimmed().isEmpty()) return {};
  CurrentValue value = ofWord(storedWord(text));
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  if (value.index() == 0 && isNumber && std::isfinite(number)) value = ofNumber(number);
  if (value.index() == 0) tellValueRefused(property.getDisplayName(), text);
  return value;
}

CurrentValue noWord(QStringView) { return {}; }

CurrentValue wantedScale(const Property& property, OdDbDatabase&) {
  return valueOfText(property, noWord,
                     [](double scale) { return scale > 0 ? CurrentValue(scale) : CurrentValue(); });
}

CurrentValue wantedPlotStyle(const Property& property, OdDbDatabase& database) {
  const OdString text = property.text();
  if (text.isEmpty()) return {};
  const QStringView word = storedWord(text);
  if (word == kByLayer) return CurrentPlotStyle{OdDb::kPlotStyleNameByLayer, {}};
  if (word == kByBlock) return CurrentPlotStyle{OdDb::kPlotStyleNameByBlock, {}};
  const OdDbDictionaryPtr styles = database.getPlotStyleNameDictionaryId().openObject();
  const OdDbObjectId style = styles ? styles->getAt(text) : OdDbObjectId();
  if (!style.isNull()) return CurrentPlotStyle{OdDb::kPlotStyleNameById, style};
  tellValueRefused(property.getDisplayName(), text);
  return {};
}

CurrentValue wantedLineWeight(const Property& property, OdDbDatabase&) {
  const auto ofWord = [](QStringView word) -> CurrentValue {
    if (word == kByLayer) return OdDb::kLnWtByLayer;
    if (word == kByBlock) return OdDb::kLnWtByBlock;
    return word == kByDefault ? CurrentValue(OdDb::kLnWtByLwDefault) : CurrentValue();
  };
  return valueOfText(property, ofWord, [](double weight) -> CurrentValue {
    if (std::abs(weight) > double{OdDb::kLnWt211}) return {};
    const int whole = static_cast<int>(weight);
    if (whole != weight || !OdDb::isValidLineWeight(whole)) return {};
    return static_cast<OdDb::LineWeight>(whole);
  });
}

CurrentValue wantedTransparency(const Property& property, OdDbDatabase&) {
  const auto ofWord = [](QStringView word) -> CurrentValue {
    if (word == kByLayer) return OdCmTransparency(OdCmTransparency::kByLayer);
    return word == kByBlock ? CurrentValue(OdCmTransparency(OdCmTransparency::kByBlock))
                            : CurrentValue();
  };
  return valueOfText(property, ofWord, [](double percent) -> CurrentValue {
    // What is clearer would hardly be seen: drawings have no such current value.
    constexpr double kClearest = 90;
    if (percent < 0 || percent > kClearest) return {};
    return OdCmTransparency::fromAlpha(static_cast<std::uint8_t>((100 - percent) * 255 / 100));
  });
}

CurrentValue currentDimStyle(const OdDbDatabase& database) {
  return CurrentDimStyle{database.currentDimStyle(),
                         std::make_shared<const oddb::DimVariableCopy>(database)};
}

void setDimStyle(OdDbDatabase& database, const CurrentValue& value) {
  const auto& style = std::get<CurrentDimStyle>(value);
  database.setCurrentDimStyle(style.id);
  if (style.variables)
    style.variables->putBack(database);
  else
    database.setDimstyleData(style.id);
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
     wantedLayer,
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
     currentDimStyle,
     setDimStyle,
     wantedDimStyle,
     captureDimStyle},
    // Kept for the files' sake: it has no label and drives nothing.
    {u"Tablestyle", {}},
}};

} // namespace

const GeneralPropertyKind& generalPropertyKind(GeneralProperty property) {
  return kKinds[static_cast<std::size_t>(property)];
}

} // namespace tc
