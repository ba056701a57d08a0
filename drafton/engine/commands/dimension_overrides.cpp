#include "drafton/engine/commands/dimension_overrides.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/value_parser.h"
#include "drawing/tables/dim_var_values.h"

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

bool namesRecord(const OdDbDimVarInfo& row) {
  return std::holds_alternative<OdDbObjectId OdDbDimVarValues::*>(row.member);
}

/// Styles may leave out the usual text style, which drawings name.
bool areEqual(const DimensionVariable& variable, const OdDbVarValue& ofStyle) {
  if (ofStyle == variable.value) return true;
  const auto* const here = std::get_if<OdString>(&variable.value);
  const auto* const there = std::get_if<OdString>(&ofStyle);
  if (!here || !there) return false;
  const bool isUsual = variable.name == QLatin1String("DIMTXSTY") && there->isEmpty();
  const bool isName = namesRecord(*oddbFindDimVar(variable.name));
  return here->compare(isUsual ? OdString(oddb::kUsualTextStyle) : *there,
                       isName ? Qt::CaseInsensitive : Qt::CaseSensitive) == 0;
}

template <class Entity>
void takeOverrides(const OdDbDatabase& database, Entity& entity) {
  entity.setDimensionStyle(database.currentDimStyle());
  for (const DimensionVariable& variable : dimensionOverrides(database))
    entity.setDimVarOverride(variable.name, variable.value);
}

} // namespace

OdString shownVariable(const OdDbVarValue& value) { return std::visit(ValueText(), value); }

std::vector<DimensionVariable> dimensionVariables(const OdDbDatabase& database) {
  std::vector<DimensionVariable> variables;
  // Headers of foreign drawings can name blocks that are not there, and worse.
  OdDbDimVarValues trial;
  for (const OdDbDimVarInfo& row : oddbDimVars())
    if (const auto value = database.getSysVar(QLatin1String(row.name));
        value && oddb::setDimVar(trial, row, *value, &database))
      variables.push_back({QLatin1String(row.name), *value});
  return variables;
}

std::vector<DimensionVariable> dimensionOverrides(const OdDbDatabase& database) {
  const OdDbDimStyleTableRecordPtr style = database.currentDimStyle().openObject();
  std::vector<DimensionVariable> overrides;
  if (!style) return overrides;
  for (DimensionVariable& variable : dimensionVariables(database))
    if (const auto value = style->variable(variable.name); value && !areEqual(variable, *value))
      overrides.push_back(std::move(variable));
  return overrides;
}

void takeCurrentDimensionStyle(const OdDbDatabase& database, OdDbDimension& dimension) {
  takeOverrides(database, dimension);
  dimension.recomputeDimBlock();
}

void takeCurrentDimensionStyle(const OdDbDatabase& database, OdDbLeader& leader) {
  takeOverrides(database, leader);
}

} // namespace drafton
