// Drawings of kinds that only other programs understand.
#pragma once

#include "drawing/database.h"

#include <functional>

namespace oddb {

/// Reads the file of a stored path; null if it is not of the reader's kind. Raises OdFileError.
using ForeignReader = std::function<OdDbDatabasePtr(const OdString& path)>;

/// Sets who is asked first by OdDbDatabase::readFile(), so that whoever reads a drawing can read
/// those kinds: commands, external references, tools. An empty one ends that.
void setForeignReader(ForeignReader reader);

/// To be called when the drawing stands in a file that OdDbDatabase::writeFile() has not written:
/// what becomes of the file from now on is the doing of others.
void noteWritten(OdDbDatabase& database, const OdString& path);

} // namespace oddb
