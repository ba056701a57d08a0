// The host's variables as a table.
#pragma once

#include "drawing/color.h"
#include "drawing/geometry/geometry.h"
#include "frame/variant.h"

#include <limits>
#include <optional>
#include <span>

namespace drafton {

class Document;
class Engine;

/// One variable that is not part of a drawing file. The header variables of the drawing have their
/// own table there.
struct VariableRow {
  enum class Type { kInteger, kReal, kText, kColor, kPoint };
  enum class Scope {
    kSession,  ///< one value while the program runs
    kProfile,  ///< one value that is kept in the settings
    kDocument, ///< a value for each document, forgotten with it
    kComputed, ///< asked for where it comes from
  };
  using Getter = OdVariant (*)(Engine& engine, Document* document);
  using Setter = bool (*)(Engine& engine, Document* document, const OdVariant& value);

  const char16_t* name;
  Type type;
  Scope scope;
  /// As text; colours as the whole 32-bit value.
  const char16_t* preset;
  double min = -std::numeric_limits<double>::infinity();
  double max = std::numeric_limits<double>::infinity();
  Getter get = nullptr;
  Setter set = nullptr; ///< a computed variable without it is read only
};

/// All rows, sorted by name without regard to case.
std::span<const VariableRow> variableTable();
/// The row of a name, without regard to case; null if there is none.
const VariableRow* findVariable(QStringView name);
/// True for a number that stands for a character, which is typed as well as its number.
bool isCharacterVariable(QStringView name);

/// The preset as a value of the row's type.
OdVariant presetValue(const VariableRow& row);
/// `value` as the row's type; none if it is no such value or outside the row's range.
std::optional<OdVariant> checkedValue(const VariableRow& row, const OdVariant& value);

/// A point as a variable's value ("x,y,z", exact), and back.
OdVariant pointValue(const OdGePoint3d& point);
std::optional<OdGePoint3d> pointFromValue(const OdVariant& value);
/// A colour from "BYLAYER", "BYBLOCK", an index from 0 to 256, "r,g,b", or the whole 32-bit value
/// of an integer.
std::optional<OdCmColor> colorFromValue(const OdVariant& value);

} // namespace drafton
