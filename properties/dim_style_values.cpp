#include "properties/dim_style_values.h"

#include "drawing/database.h"

namespace tc::dim_style {
namespace {

bool isInRange(double value, const Destination& destination) {
  const OdDbHeaderVarInfo* const range = destination.range;
  return !range || (value >= range->min && value <= range->max);
}

} // namespace

void takeValue(OdString& to, OdDbObjectId block) {
  const OdDbBlockTableRecordPtr record = block.openObject();
  to = record ? record->getName() : OdString();
}

bool giveValue(const OdString& name, OdDbObjectId& to, const Destination& destination) {
  const OdDbObjectId found =
      destination.database.getBlockTableId().openAs<OdDbBlockTable>()->getAt(name);
  const OdDbBlockTableRecordPtr block = found.openObject();
  if (block && !block->isLayout()) to = found;
  return true;
}

bool giveValue(std::uint32_t from, OdDb::LineWeight& to, const Destination&) {
  const auto weight = static_cast<std::int32_t>(from);
  if (!OdDb::isValidLineWeight(weight)) return false;
  to = static_cast<OdDb::LineWeight>(weight);
  return true;
}

bool giveValue(double from, double& to, const Destination& destination) {
  if (!isInRange(from, destination)) return false;
  to = from;
  return true;
}

bool giveWhole(int from, int& to, const Destination& destination) {
  if (!isInRange(from, destination)) return false;
  to = from;
  return true;
}

} // namespace tc::dim_style
