#include "drawing/tables/dim_variable_copy.h"

#include "drawing/database_data.h"
#include "drawing/tables/dim_vars.h"

namespace oddb {
namespace {

/// Where the variables of dimension styles stand among those of the header.
const std::vector<int>& indices() {
  static const std::vector<int> all = [] {
    std::vector<int> found;
    for (const OdDbDimVarInfo& row : oddbDimVars())
      if (const OdDbHeaderVarInfo* const inHeader =
              oddbFindHeaderVar(OdString(QLatin1String(row.name))))
        found.push_back(static_cast<int>(inHeader - oddbHeaderVars().data()));
    return found;
  }();
  return all;
}

} // namespace

DimVariableCopy::DimVariableCopy(const OdDbDatabase& database) {
  const OdDbDatabaseData& data = database.data();
  m_variables.reserve(indices().size());
  for (const int index : indices()) {
    const auto i = static_cast<std::size_t>(index);
    m_variables.push_back({index, data.vars[i], data.varPresent[i] != 0});
  }
}

void DimVariableCopy::putBack(OdDbDatabase& database) const {
  OdDbDatabaseData& data = database.data();
  for (const Variable& kept : m_variables) {
    const auto i = static_cast<std::size_t>(kept.index);
    if (data.vars[i] == kept.value && (data.varPresent[i] != 0) == kept.isPresent) continue;
    if (const auto* const id = std::get_if<OdDbObjectId>(&kept.value);
        id && !id->isNull() && !id->isValid())
      continue;
    data.undo.willSetVar(kept.index);
    data.vars[i] = kept.value;
    data.varPresent[i] = kept.isPresent;
    data.modified = true;
    const OdString name = QLatin1String(oddbHeaderVars()[i].name);
    data.tell([&](OdDbDatabaseReactor& reactor) { reactor.headerSysVarChanged(database, name); });
  }
}

} // namespace oddb
