// What a tool of another program is worth here.
#pragma once

#include "catalog/import_report.h"
#include "catalog/tool_impl.h"
#include "persistence/foreign_content.h"

namespace tc {

/// Rewrites the path of the tool's source file by the map of folders, and tells whether the file is
/// there. A relative path is looked for beside the palette's file, and made absolute if the file is
/// there: the palette goes elsewhere.
void reviewSource(OdTcTool& tool, const OdTcImportOptions& options, const OdString& paletteFile,
                  OdTcImportedTool& row);

/// Says in the row of what kind the tool is, what becomes of it, and why. Makes a command tool of a
/// record with a macro if that is wanted.
void reviewKind(OdTcToolImpl& tool, const OdTcForeignTool& foreign,
                const OdTcImportOptions& options, OdTcImportedTool& row);

/// Adds to what is to be said of a tool; nothing for an empty text.
void remark(OdTcImportedTool& row, const OdString& text);
/// What was not read for empty elements, in words for the user; empty if all was read.
OdString lossesInWords(const std::vector<OdTcForeignLoss>& losses);

} // namespace tc
