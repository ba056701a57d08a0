#include "drafton/engine/commands/measured_values.h"

#include "drafton/engine/blocks/drawing_units.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/dimension_text.h"

namespace drafton {
namespace {

// Values of LUNITS in which a length has its unit with it.
constexpr std::int64_t kEngineering = 3, kArchitectural = 4;
/// Zeros at the end are left out.
constexpr int kNoTrailingZeros = 8;
/// Rooms are told to the square decimetre.
constexpr int kRoomDecimals = 2;

/// By the value of INSUNITS.
struct UnitSign {
  int units;
  const char16_t* sign;
  int roomUnits; ///< the larger unit for areas; 0 for none
};
constexpr UnitSign kSigns[] = {
    {1, u"in", 2}, {2, u"ft", 0}, {4, u"mm", 6}, {5, u"cm", 6}, {6, u"m", 0}, {14, u"dm", 6},
};

const UnitSign* signOf(int units) {
  for (const UnitSign& row : kSigns)
    if (row.units == units) return &row;
  return nullptr;
}

const UnitSign* signOf(const OdDbDatabase& database) {
  return signOf(static_cast<int>(database.sysVarInt("INSUNITS")));
}

OdString squared(double area, int decimals, const UnitSign& unit) {
  return QStringLiteral("%1 %2\u00b2")
      .arg(shownReal(area, decimals), OdString::fromUtf16(unit.sign));
}

} // namespace

OdString shownLength(const OdDbDatabase& database, double length) {
  OdDbDimVarValues point;
  point.dimdsep = u'.';
  const OdString shown =
      oddb::lengthText(length, static_cast<int>(database.sysVarInt("LUNITS")),
                       static_cast<int>(database.sysVarInt("LUPREC")), kNoTrailingZeros, point);
  return shown == QLatin1String("-0") ? QStringLiteral("0") : shown;
}

OdString shownLengthWithUnit(const OdDbDatabase& database, double length) {
  const OdString shown = shownLength(database, length);
  const std::int64_t form = database.sysVarInt("LUNITS");
  const UnitSign* const unit = signOf(database);
  if (!unit || form == kEngineering || form == kArchitectural) return shown;
  return shown + u' ' + OdString::fromUtf16(unit->sign);
}

OdString shownArea(const OdDbDatabase& database, double area) {
  const int decimals = static_cast<int>(database.sysVarInt("LUPREC"));
  const UnitSign* const unit = signOf(database);
  if (!unit) return shownReal(area, decimals);
  const OdString own = squared(area, decimals, *unit);
  const UnitSign* const rooms = signOf(unit->roomUnits);
  if (!rooms) return own;
  const double factor = unitFactor(unit->units, rooms->units);
  return QStringLiteral("%1 (%2)").arg(own, squared(area * factor * factor, kRoomDecimals, *rooms));
}

} // namespace drafton
