// Object snaps: the places of entities that a cursor is drawn to.
#pragma once

#include "drawing/entities/entity.h"

#include <optional>
#include <span>

namespace drafton {

/// The bits of the variable OSMODE.
enum class SnapKind : int {
  kEnd = 1,
  kMiddle = 2,
  kCenter = 4,
  kNode = 8,
  kQuadrant = 16,
  kIntersection = 32,
  kInsertion = 64,
  kPerpendicular = 128,
  kTangent = 256,
  kNearest = 512,
};

/// One kind with its name in English, for lists and tips.
struct SnapRow {
  SnapKind kind;
  const char16_t* name;
};
/// All kinds, in the order of their bits.
std::span<const SnapRow> snapKinds();
/// The name in the user's language.
OdString snapName(SnapKind kind);

/// With this bit in OSMODE no kind counts.
inline constexpr int kSnapsOff = 16384;

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
