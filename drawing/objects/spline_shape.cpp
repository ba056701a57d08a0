#include "drawing/objects/spline_shape.h"

#include "drawing/geometry/nurbs.h"
#include "drawing/objects/tag_values.h"

namespace {

// Group codes.
constexpr int kDegree = 71, kKnot = 40, kWeight = 41, kControlPoint = 10;

} // namespace

void oddb::drawSpline(const OdDbKeptTags& tags, OdGiWorldDraw& draw) {
  OdGeNurbs curve;
  for (const OdDbKeptTags::Tag& tag : tags.tags) {
    if (tag.code == kControlPoint) curve.points.emplace_back();
    if (tag.code == kDegree) curve.degree = integerOf(tag);
    if (tag.code == kKnot) curve.knots.push_back(realOf(tag));
    if (tag.code == kWeight) curve.weights.push_back(realOf(tag));
    if (!curve.points.empty()) takePart(tag, kControlPoint, curve.points.back());
  }
  if (!curve.isValid()) return;
  std::vector<OdGePoint3d> points;
  curve.appendChords(draw.deviation(), points);
  draw.polyline(points, false);
}
