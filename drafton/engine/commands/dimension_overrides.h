// Dimension variables that were set beside the current style.
#pragma once

#include "drawing/database.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/leader.h"

namespace drafton {

/// What a variable of dimensions is: "DIMTXT" and its value in the drawing.
struct DimensionVariable {
  OdString name;
  OdDbVarValue value;
};

/// The variables of dimensions as the drawing has them now.
std::vector<DimensionVariable> dimensionVariables(const OdDbDatabase& database);
/// Those that differ from the current dimension style.
std::vector<DimensionVariable> dimensionOverrides(const OdDbDatabase& database);

/// The dimension gets the current style and the drawing's overrides, and is drawn anew.
void takeCurrentDimensionStyle(const OdDbDatabase& database, OdDbDimension& dimension);
void takeCurrentDimensionStyle(const OdDbDatabase& database, OdDbLeader& leader);

/// A value as lists show it.
OdString shownVariable(const OdDbVarValue& value);

} // namespace drafton
