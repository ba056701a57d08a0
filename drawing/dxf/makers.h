// The classes of the objects in files, by their names there.
#pragma once

#include "drawing/database_data.h"

#include <string_view>

namespace oddxf {

/// A new entity; one of a class that nobody knows is kept as it is.
OdDbEntityPtr makeEntity(std::string_view name);
OdDbObjectPtr makeObject(std::string_view name);

/// The tables in the order of OdDbDatabaseData::Table.
std::string_view tableName(std::size_t table);
OdDbSymbolTablePtr makeTable(std::size_t table);

} // namespace oddxf
