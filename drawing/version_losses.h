// What a drawing has and files of older versions cannot hold.
#pragma once

#include "drawing/database.h"

#include <QStringList>

namespace oddb {

/// The kinds of content that a DXF file of `version` leaves out, in words, as "true colours", and
/// the variables of dimension styles that it leaves out, by their names.
/// Empty for the drawing's own version and for newer ones.
QStringList lossesInVersion(const OdDbDatabase& database, OdDb::DwgVersion version);

} // namespace oddb
