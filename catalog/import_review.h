// What a tool of another program is worth here.
#pragma once

#include "catalog/import_report.h"
#include "catalog/tool_impl.h"
#include "persistence/foreign_content.h"

namespace tc {

/// Rewrites the path of the tool's source file by the map of folders, and tells whether the file is
/// there. A relative path is looked for beside the palette's file.
void reviewSource(OdTcTool& tool, const OdTcImportOptions& options, const OdString& paletteFile,
                  OdTcImportedTool& row);

/// Says in the row of what kind the tool is, what becomes of it, and why. Makes a command tool of a
/// record with a macro if that is wanted.
void reviewKind(OdTcToolImpl& tool, const OdTcForeignTool& foreign,
                const OdTcImportOptions& options, OdTcImportedTool& row);

} // namespace tc
