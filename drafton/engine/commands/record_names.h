// Names of records: layers, styles, line types, blocks.
#pragma once

#include "drafton/engine/command_context.h"
#include "drawing/tables/symbol_table.h"

namespace drafton {

/// Why a text cannot be the name of a record; empty if it can.
OdString recordNameFault(QStringView name);
/// Why a record cannot be used by entities of the drawing; empty if it can. What belongs to an
/// external reference goes with it.
OdString recordUseFault(const OdDbSymbolTableRecord& record);

/// The names of a table's records that fit the patterns, in the order of the table.
QStringList recordNames(const OdDbSymbolTable& table,
                        const OdString& patterns = QStringLiteral("*"));

} // namespace drafton
