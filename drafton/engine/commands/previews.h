// What commands show at the cursor before they are answered.
#pragma once

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/circle_geometry.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/prompt.h"
#include "drawing/entities/block_reference.h"

namespace drafton {

// All of these are shapes that are in no drawing; where there is none, the list is empty.

/// An entity as it would come into the drawing.
PreviewShapes newShape(const OdDbDatabase& database, OdDbEntityPtr entity);
PreviewShapes lineShape(const OdDbDatabase& database, const OdGePoint3d& from,
                        const OdGePoint3d& to);
PreviewShapes circleShape(const OdDbDatabase& database, const std::optional<Circle2d>& circle);
PreviewShapes arcShape(const OdDbDatabase& database, const std::optional<ArcPath>& path);
/// A block as INSERT would place it, without its units.
PreviewShapes insertShape(const OdDbDatabase& database, OdDbObjectId block,
                          const OdGePoint3d& point, const OdGeScale3d& scale, double rotation);

/// Moved copies of entities. Of a large choice only the first ones are shown, so that the cursor
/// stays quick.
PreviewShapes movedShapes(const Selection& entities, const EntityMover& mover);

} // namespace drafton
