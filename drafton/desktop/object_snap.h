// Object snaps: the places of entities that a cursor is drawn to.
#pragma once

#include "drafton/engine/snap_kinds.h"
#include "drawing/entities/entity.h"

#include <optional>
#include <span>

namespace drafton {

struct Snap {
  SnapKind kind = SnapKind::kEnd;
  OdGePoint3d point;
};

struct SnapQuestion {
  OdGePoint3d at;                  ///< the cursor
  double reach = 0;                ///< how far it is drawn, in drawing units
  int kinds = 0;                   ///< bits of SnapKind
  std::optional<OdGePoint3d> base; ///< what perpendicular and tangent are seen from
};

/// The snap of some entities, those under the cursor, that is to be taken: the nearest one within
/// reach; "nearest" only where there is no other, and the centre of a curve under the cursor, which
/// may be far, where nothing is within reach. What stands in blocks counts as well.
std::optional<Snap> findSnap(std::span<const OdDbEntityPtr> entities, const SnapQuestion& question);

} // namespace drafton
