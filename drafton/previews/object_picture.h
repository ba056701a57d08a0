// Pictures of entities and blocks.
#pragma once

#include "drawing/geometry/extents.h"
#include "drawing/object_id.h"

#include <QImage>

#include <span>

namespace drafton {

/// A square picture of entities, or of the contents of block table records, of one drawing on a
/// transparent ground. It shows all of `view`, which is in world coordinates. Null if there is
/// nothing to see.
QImage objectPicture(std::span<const OdDbObjectId> objects, const OdGeExtents3d& view, int pixels);

} // namespace drafton
