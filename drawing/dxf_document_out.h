// Writing whole drawings.
#pragma once

#include "drawing/database.h"

#include <functional>

namespace oddxf {

/// Hands the text of the drawing to `sink` in pieces. kVersionUnknown stands for the drawing's own
/// version; older ones than R2000 are written as R2000.
void writeDocument(const OdDbDatabase& database, OdDb::DwgVersion version,
                   const std::function<void(const QByteArray&)>& sink);

} // namespace oddxf
