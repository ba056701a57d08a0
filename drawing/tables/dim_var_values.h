// Setting variables of dimensions one by one.
#pragma once

#include "drawing/tables/dim_vars.h"

namespace oddb {

/// The text style of dimensions whose style names none.
inline constexpr QLatin1String kUsualTextStyle("Standard");

/// Gives a variable the value; false if it does not fit. Records are given by id, or by name if
/// there is a drawing that has them.
bool setDimVar(OdDbDimVarValues& values, const OdDbDimVarInfo& row, const OdDbVarValue& value,
               const OdDbDatabase* database);

} // namespace oddb
