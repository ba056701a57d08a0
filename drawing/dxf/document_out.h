// Writing whole drawings.
#pragma once

#include "drawing/database.h"
#include "drawing/dxf/crew.h"

#include <functional>

class QSaveFile;

namespace oddxf {

/// Hands the text of the drawing to `sink` in pieces. kVersionUnknown stands for the drawing's own
/// version; older ones than R2000 are written as R2000. Up to `threads` threads work; what they
/// write does not depend on their number.
void writeDocument(const OdDbDatabase& database, OdDb::DwgVersion version,
                   const std::function<void(const QByteArray&)>& sink,
                   std::size_t threads = OdDbDxfCrew::machineThreads());

/// Writes the drawing through `file`, which is not open yet: only when all of it has reached the
/// disk it takes the place of the file at `path`, of which a copy stays if `keepBackup` says so.
/// Raises OdFileError with that path.
void saveDocument(const OdDbDatabase& database, OdDb::DwgVersion version, QSaveFile& file,
                  const OdString& path, bool keepBackup = false);

} // namespace oddxf
