#include "drawing/entities/circle.h"

#include "drawing/checks.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/plane_transform.h"

OdDbCircle::OdDbCircle() = default;

OdDbCircle::OdDbCircle(const OdGePoint3d& center, const OdGeVector3d& normal, double radius) {
  setNormal(normal);
  setCenter(center);
  setRadius(radius);
}

void OdDbCircle::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_circle = static_cast<const OdDbCircle&>(other).m_circle;
}

OdGePoint3d OdDbCircle::center() const {
  return OdGeMatrix3d::planeToWorld(m_circle.extrusion.normal()) * m_circle.center;
}

void OdDbCircle::setCenter(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_circle.center = OdGeMatrix3d::planeToWorld(m_circle.extrusion.normal()).inverse() * center;
}

void OdDbCircle::setRadius(double radius) {
  odcheck::positive(radius);
  assertWriteEnabled();
  m_circle.radius = radius;
}

void OdDbCircle::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = center();
  m_circle.extrusion.setNormal(n);
  setCenter(place);
}

void OdDbCircle::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_circle.extrusion.setThickness(thickness);
}

bool OdDbCircle::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_circle.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_circle;
  moved.center = plane.inPlane * m_circle.center;
  moved.radius *= plane.scale();
  moved.extrusion.setThickness(moved.extrusion.thickness() * plane.rise);
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.center, moved.radius, moved.extrusion.thickness()) ||
      moved.radius <= 0)
    return false;
  assertWriteEnabled();
  m_circle = moved;
  return true;
}

double OdDbCircle::getEndParam() const { return 2 * kOdaPi; }

OdGePoint3d OdDbCircle::getPointAtParam(double param) const {
  odcheck::finite(param);
  const OdGeVector3d out{m_circle.radius * std::cos(param), m_circle.radius * std::sin(param), 0};
  return OdGeMatrix3d::planeToWorld(normal()) * (m_circle.center + out);
}

OdGeVector3d OdDbCircle::getFirstDeriv(double param) const {
  odcheck::finite(param);
  return OdGeMatrix3d::planeToWorld(normal()) *
         OdGeVector3d{-m_circle.radius * std::sin(param), m_circle.radius * std::cos(param), 0};
}

void OdDbCircle::appendSegments(OdGeCurveSegments& segments, double) const {
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(normal());
  segments.push_back(OdGeCurveSegment::arc(
      toWorld * m_circle.center, toWorld * OdGeVector3d{m_circle.radius, 0, 0},
      toWorld * OdGeVector3d{0, m_circle.radius, 0}, 0, 2 * kOdaPi));
}

OdDbEntityPtr OdDbCircle::getTransformedCopy(const OdGeMatrix3d& transform) const {
  if (const OdDbEntityPtr moved = OdDbEntity::getTransformedCopy(transform)) return moved;
  const OdGeCurveSegment s = segments().front().transformed(transform);
  const OdDbEllipsePtr ellipse = OdDbEllipse::fromConjugates(s.center, s.u, s.v, 0, 2 * kOdaPi);
  if (ellipse) ellipse->setPropertiesFrom(*this);
  return ellipse;
}

std::vector<OdDbEntityPtr> OdDbCircle::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  if (m_circle.radius + distance <= 0) return {};
  const OdDbCirclePtr moved = clone();
  moved->m_circle.radius += distance;
  return {moved};
}

bool OdDbCircle::getSplitCurves(const std::vector<double>& params,
                                std::vector<OdDbEntityPtr>& pieces) const {
  if (params.empty()) return false;
  for (std::size_t i = 0; i < params.size(); ++i) {
    const double from = params[i];
    const double to = params[(i + 1) % params.size()];
    const auto arc = odrxMake<OdDbArc>(center(), normal(), m_circle.radius, odgeNormalAngle(from),
                                       odgeNormalAngle(to));
    arc->setThickness(thickness());
    arc->setPropertiesFrom(*this);
    pieces.push_back(arc);
  }
  return true;
}
