#include "drafton/engine/commands/dimension_overrides.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/value_parser.h"
#include "drawing/tables/dim_vars.h"

namespace drafton {
namespace {

struct ValueText {
  OdString operator()(std::monostate) const { return {}; }
  OdString operator()(std::int64_t number) const { return OdString::number(number); }
  OdString operator()(double number) const { return shownReal(number, 8); }
  OdString operator()(const OdString& text) const {
    return text.isEmpty() ? QStringLiteral("\"\"") : text;
  }
  OdString operator()(const OdGePoint3d& point) const { return shownPoint(point); }
  OdString operator()(const OdCmColor& color) const { return shownColor(color); }
  OdString operator()(const OdDbObjectId& id) const { return recordName(id); }
};

} // namespace

OdString shownVariable(const OdDbVarValue& value) { return std::visit(ValueText(), value); }

std::vector<DimensionVariable> dimensionVariables(const OdDbDatabase& database) {
  std::vector<DimensionVariable> variables;
  for (const OdDbDimVarInfo& row : oddbDimVars())
    if (const auto value = database.getSysVar(QLatin1String(row.name)))
      variables.push_back({QLatin1String(row.name), *value});
  return variables;
}

std::vector<DimensionVariable> dimensionOverrides(const OdDbDatabase& database) {
  const OdDbDimStyleTableRecordPtr style = database.currentDimStyle().openObject();
  std::vector<DimensionVariable> overrides;
  if (!style) return overrides;
  for (DimensionVariable& variable : dimensionVariables(database))
    if (const auto value = style->variable(variable.name); value && !(*value == variable.value))
      overrides.push_back(std::move(variable));
  return overrides;
}

void takeCurrentDimensionStyle(const OdDbDatabase& database, OdDbDimension& dimension) {
  dimension.setDimensionStyle(database.currentDimStyle());
  for (const DimensionVariable& variable : dimensionOverrides(database))
    dimension.setDimVarOverride(variable.name, variable.value);
  dimension.recomputeDimBlock();
}

} // namespace drafton
