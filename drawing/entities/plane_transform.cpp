#include "drawing/entities/plane_transform.h"

OdGePlaneTransform::OdGePlaneTransform(const OdGeMatrix3d& transform,
                                       const OdGeVector3d& oldNormal) {
  const OdGeMatrix3d toWorld = transform * OdGeMatrix3d::planeToWorld(oldNormal);
  const OdGeVector3d x = toWorld * OdGeVector3d::xAxis();
  const OdGeVector3d y = toWorld * OdGeVector3d::yAxis();
  const OdGeVector3d z = toWorld * OdGeVector3d::zAxis();
  OdGeVector3d n = x.crossProduct(y);
  const double size = x.lengthSqrd();
  const double slack = 1e-9 * size;
  // Beyond these a direction has no length any more.
  if (!(n.lengthSqrd() > 0) || !std::isfinite(n.lengthSqrd())) return;
  if (!(size > 0) || std::abs(y.lengthSqrd() - size) > slack || std::abs(x.dotProduct(y)) > slack)
    return;
  // The side from which the plane is seen stays; it is the turn that changes its sense.
  mirrors = n.dotProduct(z) < 0;
  if (mirrors) n = -n;
  normal = n.normal();
  inPlane = OdGeMatrix3d::planeToWorld(normal).inverse() * toWorld;
  valid = true;
}

double OdGePlaneTransform::angle(double old) const {
  const OdGeVector3d v = inPlane * OdGeVector3d{std::cos(old), std::sin(old), 0};
  return odgeNormalAngle(std::atan2(v.y, v.x));
}
