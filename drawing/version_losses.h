// What a drawing has and files of older versions cannot hold.
#pragma once

#include "drawing/database.h"

#include <QStringList>

namespace oddb {

/// The kinds of content that a DXF file of `version` leaves out, in words, as "true colours".
/// Empty for the drawing's own version and for newer ones.
QStringList lossesInVersion(const OdDbDatabase& database, OdDb::DwgVersion version);

} // namespace oddb
