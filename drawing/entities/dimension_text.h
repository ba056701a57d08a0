// What dimensions say. Not for use outside of the library.
#pragma once

#include "drawing/entities/dimension.h"

namespace oddb {

/// The text of a measured value (drawing units, or radians for an angle) with MTEXT codes. `given`
/// is the dimension's own text.
OdString dimensionText(const OdString& given, double value, bool isAngle,
                       const OdDbDimVarValues& vars, const OdString& symbol = OdString());
/// A length in the units of a style, without prefix and suffix.
OdString lengthText(double value, int unit, int decimals, int zeros, const OdDbDimVarValues& vars);
OdString angleText(double radians, const OdDbDimVarValues& vars);

/// What a dimension has otherwise than its style.
void applyDimOverrides(const OdDbObject& dimension, OdDbDimVarValues& values);
void setDimOverride(OdDbObject& dimension, const OdString& name, const OdDbVarValue& value);

} // namespace oddb
