#include "properties/entity_values.h"

#include "drawing/database.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "properties/database_property_impl.h"
#include "properties/property_bag.h"
#include "properties/value_words.h"

#include <QLocale>

namespace tc {
namespace {

using Property = OdTcDatabasePropertyImpl;

bool takeRecord(Property& property, OdDbObjectId record) {
  if (!record.isValid()) return false;
  property.takeRecord(record);
  return true;
}

/// Programs round percentages to opacities down. A whole percentage stands for most of them; the
/// others get one digit more, from which the same opacity comes.
OdString percentText(OdCmTransparency value) {
  if (OdCmTransparency::fromPercent(value.percent()) == value)
    return OdString::number(value.percent());
  return OdString::number(100 - (value.alpha() + 0.5) * 100 / 255, 'f', 1);
}

bool takeWord(Property& property, QStringView word) {
  property.setText(word.toString());
  return true;
}

} // namespace

bool captureGeneralProperties(OdTcPropertyBag* bag, const OdDbObject* entity) {
  if (!bag || !odrxCast<OdDbEntity>(entity)) return false;
  const OdTcEnumPtr<OdTcProperty> properties = bag->enumProperties();
  while (OdTcProperty* const property = properties->next())
    if (!property->captureFromObject(entity))
      if (OdTcPropertyBasicInfo* const info = property->getBasicInfo()) info->setUnspecified(true);
  return true;
}

bool captureColor(Property& property, const OdDbEntity& entity) {
  property.setColor(entity.color());
  return true;
}

bool captureLayer(Property& property, const OdDbEntity& entity) {
  return takeRecord(property, entity.layerId());
}

bool captureLineType(Property& property, const OdDbEntity& entity) {
  return takeRecord(property, entity.linetypeId());
}

bool captureLineTypeScale(Property& property, const OdDbEntity& entity) {
  property.setText(OdString::number(entity.linetypeScale(), 'g', QLocale::FloatingPointShortest));
  return true;
}

bool capturePlotStyle(Property& property, const OdDbEntity& entity) {
  switch (entity.plotStyleNameType()) {
  case OdDb::kPlotStyleNameById:
    property.setText(entity.plotStyleName());
    return true;
  case OdDb::kPlotStyleNameByBlock:
    return takeWord(property, kByBlock);
  default:
    return takeWord(property, kByLayer);
  }
}

bool captureLineWeight(Property& property, const OdDbEntity& entity) {
  switch (entity.lineWeight()) {
  case OdDb::kLnWtByLayer:
    return takeWord(property, kByLayer);
  case OdDb::kLnWtByBlock:
    return takeWord(property, kByBlock);
  case OdDb::kLnWtByLwDefault:
    return takeWord(property, kByDefault);
  default:
    property.setText(OdString::number(entity.lineWeight()));
    return true;
  }
}

bool captureTransparency(Property& property, const OdDbEntity& entity) {
  const OdCmTransparency value = entity.transparency();
  if (value.isByLayer()) return takeWord(property, kByLayer);
  if (value.isByBlock()) return takeWord(property, kByBlock);
  property.setText(percentText(value));
  return true;
}

bool captureTextStyle(Property& property, const OdDbEntity& entity) {
  if (const auto* const text = odrxCast<OdDbText>(&entity))
    return takeRecord(property, text->textStyle());
  const auto* const text = odrxCast<OdDbMText>(&entity);
  return text && takeRecord(property, text->textStyle());
}

bool captureDimStyle(Property& property, const OdDbEntity& entity) {
  if (const auto* const dimension = odrxCast<OdDbDimension>(&entity))
    return takeRecord(property, dimension->dimensionStyle());
  const auto* const leader = odrxCast<OdDbLeader>(&entity);
  return leader && takeRecord(property, leader->dimensionStyle());
}

} // namespace tc
