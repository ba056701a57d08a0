#include "drawing/entities/polyline.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"

namespace {
constexpr int kClosed = 1;
constexpr int kPlinegen = 128;

} // namespace

OdDbPolyline::OdDbPolyline() = default;

void OdDbPolyline::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_polyline = static_cast<const OdDbPolyline&>(other).m_polyline;
}

void OdDbPolyline::assertVertexAt(unsigned index) const {
  if (index >= numVerts()) throw OdError_InvalidIndex(index, numVerts());
}

OdDbPolyline::Vertex OdDbPolyline::vertexAt(unsigned index) const {
  assertVertexAt(index);
  return m_polyline.vertices[index];
}

const OdGePoint2d& OdDbPolyline::getPointAt(unsigned index) const {
  assertVertexAt(index);
  return m_polyline.vertices.pointAt(index);
}

OdDbPolylineVertices& OdDbPolyline::editVertices(unsigned index) {
  assertVertexAt(index);
  assertWriteEnabled();
  return m_polyline.vertices;
}

void OdDbPolyline::setVertexAt(unsigned index, const Vertex& vertex) {
  odcheck::finite(vertex.point);
  for (const double number : {vertex.bulge, vertex.startWidth, vertex.endWidth})
    odcheck::finite(number);
  editVertices(index).set(index, vertex);
}

void OdDbPolyline::addVertexAt(unsigned index, const OdGePoint2d& point, double bulge,
                               double startWidth, double endWidth) {
  if (index > numVerts()) throw OdError_InvalidIndex(index, numVerts());
  odcheck::finite(point);
  for (const double number : {bulge, startWidth, endWidth}) odcheck::finite(number);
  assertWriteEnabled();
  m_polyline.vertices.insert(index, Vertex{point, bulge, startWidth, endWidth, 0});
}

void OdDbPolyline::removeVertexAt(unsigned index) { editVertices(index).erase(index); }

void OdDbPolyline::setPointAt(unsigned index, const OdGePoint2d& point) {
  odcheck::finite(point);
  editVertices(index).editPoint(index) = point;
}

void OdDbPolyline::setBulgeAt(unsigned index, double bulge) {
  odcheck::finite(bulge);
  editVertices(index).setBulge(index, bulge);
}

void OdDbPolyline::setWidthsAt(unsigned index, double startWidth, double endWidth) {
  odcheck::finite(startWidth);
  odcheck::finite(endWidth);
  OdDbPolylineVertices& vertices = editVertices(index);
  vertices.setStartWidth(index, startWidth);
  vertices.setEndWidth(index, endWidth);
}

OdGePoint3d OdDbPolyline::worldPointAt(unsigned index) const {
  const OdGePoint2d& p = getPointAt(index);
  return OdGeMatrix3d::planeToWorld(m_polyline.extrusion.normal()) *
         OdGePoint3d{p.x, p.y, m_polyline.elevation};
}

bool OdDbPolyline::isClosed() const { return m_polyline.flags & kClosed; }
bool OdDbPolyline::hasPlinegen() const { return m_polyline.flags & kPlinegen; }

void OdDbPolyline::setClosed(bool closed) {
  assertWriteEnabled();
  m_polyline.flags = closed ? m_polyline.flags | kClosed : m_polyline.flags & ~kClosed;
}

void OdDbPolyline::setPlinegen(bool on) {
  assertWriteEnabled();
  m_polyline.flags = on ? m_polyline.flags | kPlinegen : m_polyline.flags & ~kPlinegen;
}

void OdDbPolyline::setConstantWidth(double width) {
  odcheck::finite(width);
  assertWriteEnabled();
  m_polyline.constantWidth = width;
}

void OdDbPolyline::setElevation(double elevation) {
  odcheck::finite(elevation);
  assertWriteEnabled();
  m_polyline.elevation = elevation;
}

void OdDbPolyline::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_polyline.extrusion.setThickness(thickness);
}

void OdDbPolyline::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_polyline.extrusion.setNormal(n);
}

bool OdDbPolyline::transformBy(const OdGeMatrix3d& transform) {
  const OdGePlaneTransform plane(transform, m_polyline.extrusion.normal());
  if (!plane.valid) return false;
  Data moved = m_polyline;
  const double factor = plane.scale();
  for (std::size_t i = 0; i < moved.vertices.size(); ++i) {
    Vertex v = moved.vertices[i];
    const OdGePoint3d place =
        plane.inPlane * OdGePoint3d{v.point.x, v.point.y, m_polyline.elevation};
    v.point = {place.x, place.y};
    v.startWidth *= factor;
    v.endWidth *= factor;
    if (plane.mirrors) v.bulge = 0 - v.bulge; // no negative zeros
    if (!odcheck::areFinite(v.point, v.startWidth, v.endWidth)) return false;
    moved.vertices.set(i, v);
  }
  moved.elevation = (plane.inPlane * OdGePoint3d{0, 0, m_polyline.elevation}).z;
  moved.constantWidth *= factor;
  moved.extrusion.setThickness(moved.extrusion.thickness() * plane.rise);
  moved.extrusion.setNormal(plane.normal);
  if (!odcheck::areFinite(moved.elevation, moved.constantWidth, moved.extrusion.thickness()))
    return false;
  assertWriteEnabled();
  m_polyline = std::move(moved);
  return true;
}
