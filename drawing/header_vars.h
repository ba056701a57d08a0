// The header variables of a drawing.
#pragma once

#include "drawing/color.h"
#include "drawing/geometry/geometry.h"
#include "drawing/object_id.h"

#include <limits>
#include <optional>
#include <span>
#include <variant>

/// The value of a header variable: nothing, an integer, a number, a text, a point (also one in a
/// plane), a colour, or a reference to a record.
using OdDbVarValue = std::variant<std::monostate, std::int64_t, double, OdString, OdGePoint3d,
                                  OdCmColor, OdDbObjectId>;

/// One row of the table of header variables.
struct OdDbHeaderVarInfo {
  enum Type : std::uint8_t {
    kInt,
    kReal,
    kTime, ///< days: a Julian date or a span. New drawings lack it; who saves tells it
    kText,
    kPoint3d,
    kPoint2d,
    kColor,
    kLayer,     ///< by name
    kLinetype,  ///< by name
    kTextStyle, ///< by name
    kDimStyle,  ///< by name
    kHandle,    ///< a reference by handle
  };

  const char* name;  ///< without the $ of the files
  std::int16_t code; ///< the group code; for points that of x
  Type type;
  const char* preset; ///< the value of a new drawing; points with blanks between the numbers
  double min = -std::numeric_limits<double>::infinity();
  double max = std::numeric_limits<double>::infinity();
};

/// All rows, sorted by name.
std::span<const OdDbHeaderVarInfo> oddbHeaderVars();
/// The row of a variable, with or without `$`, without regard to case; null if there is none.
const OdDbHeaderVarInfo* oddbFindHeaderVar(QStringView name);
