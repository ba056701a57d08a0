// What programs leave behind of entities that others do not know: their picture, piece by piece.
#pragma once

#include "drawing/graphics/world_draw.h"

#include <QByteArray>

namespace oddb {

/// Shows the pieces of such a picture as far as they can be understood. `bytes` are those of the
/// file, their length in front; `entity` is the one whose picture it is.
void drawProxyGraphic(const QByteArray& bytes, const OdDbEntity& entity, OdGiWorldDraw& draw);

} // namespace oddb
