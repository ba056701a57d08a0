#include "drawing/entities/solid.h"

#include "drawing/checks.h"
#include "drawing/entities/line.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/graphics/world_draw.h"

namespace {
constexpr OdGePoint3d OdDbSolid::Data::*kCorners[] = {&OdDbSolid::Data::p0, &OdDbSolid::Data::p1,
                                                      &OdDbSolid::Data::p2, &OdDbSolid::Data::p3};
/// Around the outline the last two change places.
constexpr unsigned kAround[] = {0, 1, 3, 2};
} // namespace

OdDbSolid::OdDbSolid() = default;

OdDbSolid::OdDbSolid(const OdGePoint3d& p0, const OdGePoint3d& p1, const OdGePoint3d& p2,
                     const OdGePoint3d& p3, const OdGeVector3d& normal) {
  setNormal(normal);
  const OdGePoint3d corners[] = {p0, p1, p2, p3};
  for (unsigned i = 0; i < 4; ++i) setPointAt(i, corners[i]);
}

void OdDbSolid::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_solid = static_cast<const OdDbSolid&>(other).m_solid;
}

OdGePoint3d OdDbSolid::getPointAt(unsigned index) const {
  if (index > 3) throw OdError_InvalidIndex(index, 4);
  return OdGeMatrix3d::planeToWorld(normal()) * (m_solid.*kCorners[index]);
}

void OdDbSolid::setPointAt(unsigned index, const OdGePoint3d& point) {
  if (index > 3) throw OdError_InvalidIndex(index, 4);
  odcheck::finite(point);
  assertWriteEnabled();
  m_solid.*kCorners[index] = OdGeMatrix3d::planeToWorld(normal()).inverse() * point;
}

void OdDbSolid::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_solid.extrusion.setThickness(thickness);
}

void OdDbSolid::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  OdGePoint3d places[4];
  for (unsigned i = 0; i < 4; ++i) places[i] = getPointAt(i);
  m_solid.extrusion.setNormal(n);
  for (unsigned i = 0; i < 4; ++i) setPointAt(i, places[i]);
}

void OdDbSolid::worldDraw(OdGiWorldDraw& draw) const {
  std::vector<OdGePoint3d> ring;
  for (const unsigned i : kAround)
    if (const OdGePoint3d p = getPointAt(i); ring.empty() || !(p == ring.back())) ring.push_back(p);
  draw.area({ring});
  if (thickness() == 0) return;
  const OdGeVector3d rise = m_solid.extrusion.rise();
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const OdGePoint3d& next = ring[(i + 1) % ring.size()];
    draw.area({{ring[i], next, next + rise, ring[i] + rise}});
  }
  for (OdGePoint3d& p : ring) p = p + rise;
  draw.area({ring});
}

bool OdDbSolid::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  for (unsigned i = 0; i < 4; ++i) {
    extents.addPoint(getPointAt(i));
    extents.addPoint(getPointAt(i) + m_solid.extrusion.rise());
  }
  return true;
}

bool OdDbSolid::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneImage plane(transform, normal());
  if (!plane.valid) return false;
  Data moved = m_solid;
  for (const auto corner : kCorners) {
    moved.*corner = plane.inPlane * (m_solid.*corner);
    if (!odgeIsFinite(moved.*corner)) return false;
  }
  moved.extrusion.setThickness(thickness() * plane.rise);
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::isFinite(moved.extrusion.thickness())) return false;
  assertWriteEnabled();
  m_solid = moved;
  return true;
}

bool OdDbSolid::explode(std::vector<OdDbEntityPtr>& pieces) const {
  for (unsigned i = 0; i < 4; ++i) {
    const OdGePoint3d from = getPointAt(kAround[i]);
    const OdGePoint3d to = getPointAt(kAround[(i + 1) % 4]);
    if (from == to) continue;
    const auto line = odrxMake<OdDbLine>(from, to);
    line->setPropertiesFrom(*this);
    line->setNormal(normal());
    line->setThickness(thickness());
    pieces.push_back(line);
  }
  return true;
}
