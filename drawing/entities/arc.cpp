#include "drawing/entities/arc.h"

#include "drawing/checks.h"
#include "drawing/entities/ellipse.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/geometry/start_angle.h"

OdDbArc::OdDbArc() = default;

OdDbArc::OdDbArc(const OdGePoint3d& center, const OdGeVector3d& normal, double radius,
                 double startAngle, double endAngle) {
  setNormal(normal);
  setCenter(center);
  setRadius(radius);
  setStartAngle(startAngle);
  setEndAngle(endAngle);
}

void OdDbArc::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_arc = static_cast<const OdDbArc&>(other).m_arc;
}

OdGePoint3d OdDbArc::center() const {
  return OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()) * m_arc.center;
}

void OdDbArc::setCenter(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_arc.center = OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()).inverse() * center;
}

void OdDbArc::setRadius(double radius) {
  odcheck::positive(radius);
  assertWriteEnabled();
  m_arc.radius = radius;
}

void OdDbArc::setStartAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_arc.startAngle = angle;
}

void OdDbArc::setEndAngle(double angle) {
  odcheck::finite(angle);
  assertWriteEnabled();
  m_arc.endAngle = angle;
}

void OdDbArc::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  const OdGePoint3d place = center();
  m_arc.extrusion.setNormal(n);
  setCenter(place);
}

void OdDbArc::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_arc.extrusion.setThickness(thickness);
}

OdGePoint3d OdDbArc::pointAt(double angle) const {
  const OdGeVector3d out{m_arc.radius * std::cos(angle), m_arc.radius * std::sin(angle), 0};
  return OdGeMatrix3d::planeToWorld(m_arc.extrusion.normal()) * (m_arc.center + out);
}

bool OdDbArc::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_arc.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_arc;
  const double start = plane.angle(m_arc.startAngle);
  const double end = plane.angle(m_arc.endAngle);
  moved.startAngle = plane.mirrors ? end : start;
  moved.endAngle = plane.mirrors ? start : end;
  moved.center = plane.inPlane * m_arc.center;
  moved.radius *= plane.scale();
  moved.extrusion.setThickness(moved.extrusion.thickness() * plane.rise);
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.center, moved.radius, moved.extrusion.thickness(), start, end) ||
      moved.radius <= 0)
    return false;
  assertWriteEnabled();
  m_arc = moved;
  return true;
}

double OdDbArc::getStartParam() const { return odgeStartAngle(m_arc.startAngle); }

double OdDbArc::getEndParam() const {
  const double sweep = odgeNormalAngle(odgeStartAngle(m_arc.endAngle) - getStartParam());
  return getStartParam() + (sweep > 0 ? sweep : 2 * kOdaPi);
}

OdGePoint3d OdDbArc::getPointAtParam(double param) const { return pointAt(checkedParam(param)); }

OdGeVector3d OdDbArc::getFirstDeriv(double param) const {
  const double t = checkedParam(param);
  return OdGeMatrix3d::planeToWorld(normal()) *
         OdGeVector3d{-m_arc.radius * std::sin(t), m_arc.radius * std::cos(t), 0};
}

void OdDbArc::appendSegments(OdGeCurveSegments& segments, double) const {
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(normal());
  segments.push_back(OdGeCurveSegment::arc(toWorld * m_arc.center,
                                           toWorld * OdGeVector3d{m_arc.radius, 0, 0},
                                           toWorld * OdGeVector3d{0, m_arc.radius, 0},
                                           getStartParam(), getEndParam() - getStartParam()));
}

OdDbEntityPtr OdDbArc::getTransformedCopy(const OdGeMatrix3d& transform) const {
  if (const OdDbEntityPtr moved = OdDbEntity::getTransformedCopy(transform)) return moved;
  const OdGeCurveSegment s = segments().front().transformed(transform);
  const OdDbEllipsePtr ellipse = OdDbEllipse::fromConjugates(s.center, s.u, s.v, s.from, s.sweep);
  if (ellipse) ellipse->setPropertiesFrom(*this);
  return ellipse;
}

std::vector<OdDbEntityPtr> OdDbArc::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  if (m_arc.radius + distance <= 0) return {};
  const OdDbArcPtr moved = clone();
  moved->m_arc.radius += distance;
  return {moved};
}

bool OdDbArc::getSplitCurves(const std::vector<double>& params,
                             std::vector<OdDbEntityPtr>& pieces) const {
  double from = getStartParam();
  for (std::size_t i = 0; i <= params.size(); ++i) {
    const double to = i < params.size() ? checkedParam(params[i]) : getEndParam();
    if (to > from) {
      const OdDbArcPtr piece = clone();
      piece->m_arc.startAngle = odgeNormalAngle(from);
      piece->m_arc.endAngle = odgeNormalAngle(to);
      pieces.push_back(piece);
    }
    from = to;
  }
  return true;
}
