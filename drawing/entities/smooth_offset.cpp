#include "drawing/entities/smooth_offset.h"

#include "drawing/entities/polyline.h"
#include "drawing/entities/spline.h"
#include "drawing/geometry/flat_path.h"

namespace {

/// Places of a curve so close together that it hardly turns between them.
constexpr int kPlaces = 256;

/// The exact curve beside another one, as long as it has no cusp.
bool smoothPoints(const OdDbSmoothCurve& curve, double distance, std::vector<OdGePoint3d>& points,
                  OdGeVector3d& first, OdGeVector3d& last) {
  for (int i = 0; i <= kPlaces; ++i) {
    const double t = curve.start + (curve.end - curve.start) * i / kPlaces;
    OdGeVector3d speed, bend;
    const OdGePoint3d place = curve.at(t, speed, bend);
    const double size = speed.length();
    if (!(size > 0)) return false;
    const OdGeVector3d right = speed.crossProduct(curve.normal) * (1 / size);
    const double curvature =
        curve.normal.dotProduct(speed.crossProduct(bend)) / (size * size * size);
    // Where the distance reaches the radius of the bend, the curve beside it turns back.
    if (1 + curvature * distance <= 1e-6) return false;
    points.push_back(place + right * distance);
    if (i == 0) first = speed;
    last = speed;
  }
  return true;
}

} // namespace

std::vector<OdDbEntityPtr> oddbOffset(const OdDbSmoothCurve& curve, double distance,
                                      const OdDbEntity& model) {
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(curve.normal);
  const OdGeMatrix3d toPlane = toWorld.inverse();
  OdGeFlatPath path;
  path.closed = curve.closed;
  double elevation = 0;
  for (int i = 0; i < kPlaces + (curve.closed ? 0 : 1); ++i) {
    OdGeVector3d speed, bend;
    const double t = curve.start + (curve.end - curve.start) * i / kPlaces;
    const OdGePoint3d p = toPlane * curve.at(t, speed, bend);
    path.corners.push_back({{p.x, p.y}, 0});
    elevation = p.z;
  }
  const std::vector<OdGeFlatPath> cut = odge::offset(path, distance);
  std::vector<OdDbEntityPtr> all;
  std::vector<OdGePoint3d> points;
  OdGeVector3d first, last;
  if (cut.size() == 1 && cut.front().closed == curve.closed &&
      smoothPoints(curve, distance, points, first, last)) {
    // A spline through every fourth place follows the curve to far below what is seen.
    std::vector<OdGePoint3d> fit;
    for (std::size_t i = 0; i < points.size(); i += 4) fit.push_back(points[i]);
    const auto spline = odrxMake<OdDbSpline>(fit, first, last);
    spline->setPropertiesFrom(model);
    all.push_back(spline);
    return all;
  }
  for (const OdGeFlatPath& piece : cut) {
    const auto poly = odrxMake<OdDbPolyline>();
    poly->setNormal(curve.normal);
    poly->setElevation(elevation);
    for (const OdGeFlatCorner& c : piece.corners)
      poly->addVertexAt(poly->numVerts(), c.point, c.bulge);
    poly->setClosed(piece.closed);
    poly->setPropertiesFrom(model);
    all.push_back(poly);
  }
  return all;
}
