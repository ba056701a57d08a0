// The table of general properties: what each is called, keeps and drives.
#pragma once

#include "drawing/color.h"
#include "drawing/enums.h"
#include "drawing/object_id.h"
#include "drawing/tables/dim_variable_copy.h"
#include "drawing/transparency.h"
#include "properties/create_infos.h"

#include <cstdint>
#include <memory>
#include <span>
#include <variant>

class OdDbDatabase;
class OdDbEntity;

namespace tc {

class OdTcDatabasePropertyImpl;

/// The general properties, in the order of the bag.
enum class GeneralProperty : std::uint8_t {
  kColor,
  kLayer,
  kLineType,
  kLineTypeScale,
  kPlotStyle,
  kLineWeight,
  kTransparency,
  kTextStyle,
  kDimStyle,
  kTableStyle,
};
inline constexpr int kGeneralPropertyCount = 10;

struct CurrentPlotStyle {
  OdDb::PlotStyleNameType type = OdDb::kPlotStyleNameByLayer;
  OdDbObjectId id;
  bool operator==(const CurrentPlotStyle&) const = default;
};
/// A dimension style in force. The variables of dimensions are loaded from it when it becomes
/// current, and can be set beside it afterwards: `variables` keeps them as they were.
struct CurrentDimStyle {
  OdDbObjectId id;
  std::shared_ptr<const oddb::DimVariableCopy> variables = nullptr; ///< null: those of the style
  bool operator==(const CurrentDimStyle& other) const { return id == other.id; }
};
/// One of a drawing's current values; nothing if there is none.
using CurrentValue = std::variant<std::monostate, OdCmColor, OdDbObjectId, double, CurrentPlotStyle,
                                  OdDb::LineWeight, OdCmTransparency, CurrentDimStyle>;

/// One row.
struct GeneralPropertyKind {
  QStringView element;
  QStringView label; ///< English; behind the point what the inspector shows, before it the group
  /// Makes an empty create info; null for kinds whose value stands in the basic info.
  OdTcPropertyCreateInfoPtr (*makeCreateInfo)() = nullptr;
  /// The snapshot's kind for named records, or null.
  const RecordInfoKind* record = nullptr;
  /// Stored words that the inspector shows translated.
  std::span<const QStringView> words = {};

  /// The drawing value that the kind drives; null for a kind that drives none.
  CurrentValue (*current)(const OdDbDatabase& database) = nullptr;
  void (*setCurrent)(OdDbDatabase& database, const CurrentValue& value) = nullptr;
  /// What the property imposes; nothing if it holds no value, or none that the drawing can take, of
  /// which the user is told.
  CurrentValue (*wanted)(const OdTcDatabasePropertyImpl& property,
                         OdDbDatabase& database) = nullptr;
  /// Takes the value of an entity; false if the entity has none. Null for kinds that no entity has.
  bool (*capture)(OdTcDatabasePropertyImpl& property, const OdDbEntity& entity) = nullptr;
};

const GeneralPropertyKind& generalPropertyKind(GeneralProperty property);

} // namespace tc
