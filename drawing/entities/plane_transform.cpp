#include "drawing/entities/plane_transform.h"

OdGeVector3d odgeSettledNormal(const OdGeVector3d& normal, const OdGeVector3d& former) {
  constexpr double kRounding = 1e-15;
  if ((normal - former).length() <= kRounding) return former;
  // Nobody wants to read of a negative zero.
  return {normal.x + 0.0, normal.y + 0.0, normal.z + 0.0};
}

bool odgeIsShift(const OdGeMatrix3d& transform) {
  return transform * OdGeVector3d::xAxis() == OdGeVector3d::xAxis() &&
         transform * OdGeVector3d::yAxis() == OdGeVector3d::yAxis() &&
         transform * OdGeVector3d::zAxis() == OdGeVector3d::zAxis();
}

OdGePlaneImage::OdGePlaneImage(const OdGeMatrix3d& transform, const OdGeVector3d& oldNormal)
  : m_isShift(odgeIsShift(transform)) {
  const OdGeMatrix3d plane = OdGeMatrix3d::planeToWorld(oldNormal);
  if (m_isShift) {
    normal = oldNormal;
    inPlane = OdGeMatrix3d::translation(plane.inverse() * (transform * OdGePoint3d()).asVector());
    valid = true;
    return;
  }
  const OdGeMatrix3d toWorld = transform * plane;
  const OdGeVector3d z = toWorld * OdGeVector3d::zAxis();
  OdGeVector3d n = (toWorld * OdGeVector3d::xAxis()).crossProduct(toWorld * OdGeVector3d::yAxis());
  // Beyond these a direction has no length any more.
  if (!(n.lengthSqrd() > 0) || !std::isfinite(n.lengthSqrd())) return;
  mirrors = n.dotProduct(z) < 0;
  if (mirrors) n = -n;
  size = std::sqrt(n.length());
  rise = z.length();
  normal = odgeSettledNormal(n.normal(), oldNormal);
  inPlane = OdGeMatrix3d::planeToWorld(normal).inverse() * toWorld;
  valid = true;
}

double OdGePlaneImage::angle(double old) const {
  if (m_isShift) return old;
  const OdGeVector3d v = inPlane * OdGeVector3d{std::cos(old), std::sin(old), 0};
  return odgeNormalAngle(std::atan2(v.y, v.x));
}

OdGePlaneTransform::OdGePlaneTransform(const OdGeMatrix3d& transform, const OdGeVector3d& oldNormal)
  : OdGePlaneImage(transform, oldNormal) {
  const OdGeVector3d x = inPlane * OdGeVector3d::xAxis();
  const OdGeVector3d y = inPlane * OdGeVector3d::yAxis();
  const double slack = 1e-9 * x.lengthSqrd();
  valid = valid && x.lengthSqrd() > 0 && std::abs(y.lengthSqrd() - x.lengthSqrd()) <= slack &&
          std::abs(x.dotProduct(y)) <= slack;
}
