// What a hatch shows, and how it moves.
#include "drawing/checks.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/line.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/entities/point.h"
#include "drawing/patterns/pattern_strokes.h"

#include <algorithm>

namespace {

using Ring = std::vector<OdGePoint2d>;
using Rings = std::vector<Ring>;

bool isInside(const OdGePoint2d& p, const Ring& ring) {
  bool inside = false;
  for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
    const OdGePoint2d& a = ring[i];
    const OdGePoint2d& b = ring[j];
    if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
      inside = !inside;
  }
  return inside;
}

/// True if most of a ring lies within another: rings may touch.
bool liesIn(const Ring& inner, const Ring& outer) {
  constexpr std::size_t kAsked = 7;
  const std::size_t step = std::max<std::size_t>(1, inner.size() / kAsked);
  int votes = 0;
  for (std::size_t i = 0; i < inner.size(); i += step) {
    const OdGePoint2d& a = inner[i];
    const OdGePoint2d& b = inner[(i + 1) % inner.size()];
    votes += isInside({(a.x + b.x) / 2, (a.y + b.y) / 2}, outer) ? 1 : -1;
  }
  return votes > 0;
}

double areaOf(const Ring& ring) {
  double twice = 0;
  for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
    twice += ring[j].x * ring[i].y - ring[i].x * ring[j].y;
  return std::abs(twice) / 2;
}

/// In how many others each ring lies.
std::vector<int> depthsOf(const Rings& rings) {
  std::vector<double> areas;
  for (const Ring& ring : rings) areas.push_back(areaOf(ring));
  std::vector<int> depths(rings.size());
  for (std::size_t i = 0; i < rings.size(); ++i)
    for (std::size_t j = 0; j < rings.size(); ++j)
      if (i != j && areas[j] > areas[i] && liesIn(rings[i], rings[j])) ++depths[i];
  return depths;
}

OdGePoint2d movedPoint(const OdGeMatrix3d& m, const OdGePoint2d& p) {
  const OdGePoint3d moved = m * OdGePoint3d{p.x, p.y, 0};
  return {moved.x, moved.y};
}

/// `m` takes what lies in the plane to where it comes to lie.
OdHatchPatternLine movedLine(const OdGePlaneImage& plane, const OdGeMatrix3d& m,
                             OdHatchPatternLine line) {
  const OdGeVector3d along = m * OdGeVector3d{std::cos(line.angle), std::sin(line.angle), 0};
  const OdGeVector3d offset = m * OdGeVector3d{line.offset.x, line.offset.y, 0};
  line.angle = plane.angle(line.angle);
  line.base = movedPoint(m, line.base);
  line.offset = {offset.x, offset.y};
  for (double& dash : line.dashes) dash *= along.length();
  return line;
}

} // namespace

Rings OdDbHatch::filledPlaneRings(double deviation) const {
  Rings rings;
  for (const OdDbHatchLoop& loop : m_hatch.loops)
    if (Ring ring = loop.points(deviation); ring.size() > 2) rings.push_back(std::move(ring));
  if (hatchStyle() == kNormal || rings.size() < 2) return rings;
  const std::vector<int> depths = depthsOf(rings);
  const int deepest = hatchStyle() == kOuter ? 1 : 0;
  Rings kept;
  for (std::size_t i = 0; i < rings.size(); ++i)
    if (depths[i] <= deepest) kept.push_back(std::move(rings[i]));
  return kept;
}

OdGiRings OdDbHatch::filledRings(double deviation) const {
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_hatch.normal);
  OdGiRings world;
  for (const Ring& ring : filledPlaneRings(deviation)) {
    auto& points = world.emplace_back();
    points.reserve(ring.size());
    for (const OdGePoint2d& p : ring)
      points.push_back(toWorld * OdGePoint3d{p.x, p.y, m_hatch.elevation.z});
  }
  return world;
}

double OdDbHatch::getArea() const {
  OdGeExtents3d box;
  if (!getGeomExtents(box)) return 0;
  const Rings rings = filledPlaneRings(1e-5 * box.minPoint().distanceTo(box.maxPoint()));
  const std::vector<int> depths = depthsOf(rings);
  double area = 0;
  for (std::size_t i = 0; i < rings.size(); ++i)
    area += depths[i] % 2 == 0 ? areaOf(rings[i]) : -areaOf(rings[i]);
  return area;
}

void OdDbHatch::worldDraw(OdGiWorldDraw& draw) const {
  const OdGiRings rings = filledRings(draw.deviation());
  if (rings.empty()) return;
  if (isGradient()) {
    draw.gradient(rings, {gradientName(), gradientAngle(), gradientShift(), gradientColor1(),
                          gradientColor2()});
    return;
  }
  if (isSolidFill()) {
    draw.area(rings);
    return;
  }
  if (!m_hatch.background.isNone()) {
    draw.setPieceColor(m_hatch.background);
    draw.area(rings);
    draw.setPieceColor(std::nullopt);
  }
  std::vector<OdGePoint2d> ends;
  if (!odpattern::appendStrokes(filledPlaneRings(draw.deviation()), m_hatch.lines,
                                odpattern::kUsualLimit, ends)) {
    draw.area(rings);
    return;
  }
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_hatch.normal);
  std::vector<OdGePoint3d> strokes;
  strokes.reserve(ends.size());
  for (const OdGePoint2d& p : ends)
    strokes.push_back(toWorld * OdGePoint3d{p.x, p.y, m_hatch.elevation.z});
  draw.strokes(strokes);
}

bool OdDbHatch::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  const OdGeMatrix3d toWorld = OdGeMatrix3d::translation(m_hatch.normal * m_hatch.elevation.z) *
                               OdGeMatrix3d::planeToWorld(m_hatch.normal);
  for (const OdDbHatchLoop& loop : m_hatch.loops)
    for (const OdGeCurveSegment& piece : loop.segments(0))
      extents.addExt(piece.transformed(toWorld).extents());
  return !extents.isEmpty();
}

bool OdDbHatch::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneImage image(transform, m_hatch.normal);
  if (!image.valid) return false;
  const OdGeMatrix3d& m = image.inPlane;
  Data moved = m_hatch;
  moved.normal = image.normal;
  // What lies beside the plane's origin moves with it: points carry no height of their own.
  const OdGePoint3d foot = m * OdGePoint3d{0, 0, m_hatch.elevation.z};
  moved.elevation.z = foot.z;
  const OdGeMatrix3d flat = m * OdGeMatrix3d::translation({0, 0, m_hatch.elevation.z});
  for (OdDbHatchLoop& loop : moved.loops) loop.transformBy(flat);
  for (OdHatchPatternLine& line : moved.lines) line = movedLine(image, flat, line);
  for (OdGePoint2d& seed : moved.seeds) seed = movedPoint(flat, seed);
  moved.origin = movedPoint(flat, m_hatch.origin);
  // A filling shows neither, and its file does not tell them.
  if (!isSolidFill()) {
    moved.patternAngle = image.angle(m_hatch.patternAngle);
    moved.patternScale *= image.size;
  }
  moved.gradientAngle = image.angle(m_hatch.gradientAngle);
  if (!odcheck::areFinite(moved.elevation, moved.patternScale, moved.origin)) return false;
  assertWriteEnabled();
  const bool originStays = m_hatch.origin == OdGePoint2d();
  m_hatch = std::move(moved);
  // A pattern that starts from the drawing's origin is not told of a moved one.
  if (originStays)
    m_hatch.origin = {};
  else
    keepXData();
  return true;
}

OdDbEntityPtr OdDbHatch::getTransformedCopy(const OdGeMatrix3d& transform) const {
  const OdDbHatchPtr copy = clone();
  return copy->transformBy(transform) ? OdDbEntityPtr(copy) : OdDbEntityPtr();
}

bool OdDbHatch::explode(std::vector<OdDbEntityPtr>& pieces) const {
  if (isSolidFill() || isGradient()) return false;
  OdGeExtents3d box;
  if (!getGeomExtents(box)) return false;
  std::vector<OdGePoint2d> ends;
  const double deviation = 1e-4 * box.minPoint().distanceTo(box.maxPoint());
  if (!odpattern::appendStrokes(filledPlaneRings(deviation), m_hatch.lines, odpattern::kUsualLimit,
                                ends) ||
      ends.empty())
    return false;
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_hatch.normal);
  const auto world = [&](const OdGePoint2d& p) {
    return toWorld * OdGePoint3d{p.x, p.y, m_hatch.elevation.z};
  };
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
    OdDbEntityPtr piece;
    if (ends[i] == ends[i + 1])
      piece = odrxMake<OdDbPoint>(world(ends[i]));
    else
      piece = odrxMake<OdDbLine>(world(ends[i]), world(ends[i + 1]));
    piece->setPropertiesFrom(*this);
    pieces.push_back(piece);
  }
  return true;
}
