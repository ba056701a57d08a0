// Which pictures a catalog shows.
#pragma once

#include "frame/string.h"

#include <QSet>

namespace tc {

class OdTcDatabase;

/// Those of the picture files, by their keys as pictureFileKey() gives them, that something still
/// shows: the palette and its tools, or any other palette, tool or group of its catalog. Where a
/// palette of the catalog could not be read nobody knows what it shows, and all count as shown.
QSet<OdString> picturesStillShown(const OdTcDatabase* palette, const QSet<OdString>& keys);

} // namespace tc
