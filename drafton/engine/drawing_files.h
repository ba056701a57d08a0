// Drawings from and into files of all kinds that Drafton handles.
#pragma once

#include "drawing/database.h"

namespace drafton {

class Engine;

/// True for the kinds that have to be converted (".dwg").
bool isConvertedDrawing(const OdString& path);
/// True if drawings can be saved under that name, by its extension.
bool isDrawingName(const OdString& path);

/// Reads a drawing that has to be converted, with the converter that the setting "DwgConverter"
/// names; null for other drawings. While there is an engine, OdDbDatabase::readFile() goes this way
/// by itself. Raises OdFileError, which names `path`.
OdDbDatabasePtr readConvertedDrawing(Engine& engine, const OdString& path);

/// Writes the drawing, in a version of DXF or as it was read; of one that was changed the header
/// then tells the extents. A file that has to be converted takes
/// the place of the former one when it is whole. The setting "DwgConverterForSaving" names the
/// converter, "DwgConverter" if it is not set. Raises OdFileError, which names `path`; the former
/// file is then untouched.
void writeDrawing(Engine& engine, OdDbDatabase& database, const OdString& path,
                  OdDb::DwgVersion version = OdDb::kVersionUnknown);

} // namespace drafton
