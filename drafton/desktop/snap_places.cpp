#include "drafton/desktop/snap_places.h"

#include "drawing/entities/block_reference.h"
#include "drawing/entities/curve.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/text.h"
#include "drawing/geometry/geometry.h"

#include <cmath>

namespace drafton {
namespace {

/// Blocks in blocks beyond this are not looked into.
constexpr int kDeepest = 4;
/// Pieces of an entity beyond this cost more than a cursor may.
constexpr std::size_t kMostPieces = 2000;

void appendParts(const OdDbEntity& entity, int depth, OdGeCurveSegments& segments,
                 std::vector<Snap>& places) {
  if (segments.size() > kMostPieces) return;
  const auto insertion = [&](const OdGePoint3d& point) {
    places.push_back({SnapKind::kInsertion, point});
  };
  if (const auto* const curve = odrxCast<OdDbCurve>(&entity)) {
    if (curve->hasShape()) curve->appendSegments(segments);
    return;
  }
  if (const auto* const point = odrxCast<OdDbPoint>(&entity))
    return places.push_back({SnapKind::kNode, point->position()});
  if (const auto* const text = odrxCast<OdDbText>(&entity)) return insertion(text->position());
  if (const auto* const text = odrxCast<OdDbMText>(&entity)) return insertion(text->location());
  const auto* const insert = odrxCast<OdDbBlockReference>(&entity);
  if (insert) insertion(insert->position());
  if (depth >= kDeepest || !(insert || odrxCast<OdDbDimension>(&entity))) return;
  std::vector<OdDbEntityPtr> pieces;
  if (!entity.explode(pieces)) return;
  for (const OdDbEntityPtr& piece : pieces) appendParts(*piece, depth + 1, segments, places);
}

/// The part of a segment at an angle of its circle or ellipse; none if it does not reach it.
std::optional<double> partAt(const OdGeCurveSegment& segment, double angle) {
  const double turn = segment.sweep > 0 ? odgeNormalAngle(angle - segment.from)
                                        : -odgeNormalAngle(segment.from - angle);
  const double part = turn / segment.sweep;
  return part <= 1 + 1e-12 ? std::optional<double>(part) : std::nullopt;
}

void appendTangents(const OdGeCurveSegment& segment, const OdGePoint3d& base,
                    std::vector<Snap>& places) {
  if (!segment.isCircular()) return;
  const double dx = base.x - segment.center.x, dy = base.y - segment.center.y;
  const double distance = std::hypot(dx, dy), radius = segment.radius();
  if (distance <= radius) return;
  const double towards = std::atan2(dy, dx), open = std::acos(radius / distance);
  for (const double angle : {towards - open, towards + open}) {
    const OdGePoint3d point{segment.center.x + radius * std::cos(angle),
                            segment.center.y + radius * std::sin(angle), segment.center.z};
    // Only where the piece runs; its own axes may be turned.
    const OdGePoint3d near = segment.pointAt(segment.closestTo(point));
    if (near.distanceTo(point) < radius * 1e-9) places.push_back({SnapKind::kTangent, point});
  }
}

void appendFeet(const OdGeCurveSegment& segment, const OdGePoint3d& base,
                std::vector<Snap>& places) {
  const double part = segment.closestTo(base);
  // At an end the way is seldom at right angles.
  const OdGePoint3d foot = segment.pointAt(part);
  const OdGeVector3d way = foot - base, along = segment.derivAt(part);
  if (std::abs(way.dotProduct(along)) <= 1e-9 * way.length() * along.length())
    places.push_back({SnapKind::kPerpendicular, foot});
}

} // namespace

void appendSnapParts(const OdDbEntity& entity, OdGeCurveSegments& segments,
                     std::vector<Snap>& places) {
  appendParts(entity, 0, segments, places);
}

void appendSegmentSnaps(const OdGeCurveSegment& segment, const SnapQuestion& question,
                        std::vector<Snap>& places) {
  const auto wants = [&](SnapKind kind) { return (question.kinds & static_cast<int>(kind)) != 0; };
  const bool isWhole = !segment.isLine() && std::abs(segment.sweep) > 2 * kOdaPi - 1e-9;
  if (wants(SnapKind::kEnd) && !isWhole)
    for (const OdGePoint3d& end : {segment.start, segment.end})
      places.push_back({SnapKind::kEnd, end});
  if (wants(SnapKind::kMiddle) && !isWhole)
    places.push_back(
        {SnapKind::kMiddle, segment.pointAt(segment.partAtLength(segment.length() / 2))});
  if (wants(SnapKind::kCenter) && !segment.isLine())
    places.push_back({SnapKind::kCenter, segment.center});
  if (wants(SnapKind::kQuadrant) && !segment.isLine())
    for (int quarter = 0; quarter < 4; ++quarter)
      if (const auto part = partAt(segment, quarter * kOdaPi / 2))
        places.push_back({SnapKind::kQuadrant, segment.pointAt(*part)});
  if (wants(SnapKind::kPerpendicular) && question.base) appendFeet(segment, *question.base, places);
  if (wants(SnapKind::kTangent) && question.base) appendTangents(segment, *question.base, places);
  if (wants(SnapKind::kNearest))
    places.push_back({SnapKind::kNearest, segment.pointAt(segment.closestTo(question.at))});
}

} // namespace drafton
