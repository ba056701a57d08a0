#include "drawing/entities/polyline2d.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/objects/raw_object.h"

OdDb2dPolyline::OdDb2dPolyline() = default;

OdDb2dPolyline::OdDb2dPolyline(Kind kind) {
  constexpr int kFlags[] = {0, kIs3d, kIsMesh, kIsPolyface};
  m_polyline.flags = kFlags[kind];
}

void OdDb2dPolyline::assignFrom(const OdDbObject& other) {
  OdDbCurve::assignFrom(other);
  m_polyline = static_cast<const OdDb2dPolyline&>(other).m_polyline;
}

OdRxObjectPtr OdDb2dPolyline::clone() const {
  const OdDb2dPolylinePtr copy = OdDbCurve::clone();
  // The corners' own objects belong to this one.
  for (Vertex& v : copy->m_polyline.vertices) v.entry = {};
  copy->m_polyline.end = {};
  return copy;
}

OdDb2dPolyline::Kind OdDb2dPolyline::kind() const {
  if (m_polyline.flags & kIs3d) return k3d;
  if (m_polyline.flags & kIsMesh) return kMesh;
  return m_polyline.flags & kIsPolyface ? kPolyface : k2d;
}

const OdDbVertexData& OdDb2dPolyline::vertexAt(unsigned index) const {
  if (index >= numVerts()) throw OdError_InvalidIndex(index, numVerts());
  return m_polyline.vertices[index];
}

namespace {
void requireFinite(const OdDbVertexData& v) {
  odcheck::finite(v.point);
  for (const double number : {v.bulge, v.startWidth, v.endWidth, v.tangent})
    odcheck::finite(number);
}
} // namespace

void OdDb2dPolyline::setVertexAt(unsigned index, const Vertex& vertex) {
  if (index >= numVerts()) throw OdError_InvalidIndex(index, numVerts());
  requireFinite(vertex);
  assertWriteEnabled();
  const OdDbObjectId entry = m_polyline.vertices[index].entry;
  m_polyline.vertices[index] = vertex;
  m_polyline.vertices[index].entry = entry;
}

void OdDb2dPolyline::addVertexAt(unsigned index, const OdGePoint3d& point, double bulge,
                                 double startWidth, double endWidth) {
  // By the order of kinds.
  constexpr int kFlags[] = {0, Vertex::k3dVertex, Vertex::k3dMesh,
                            Vertex::kPolyfaceVertex | Vertex::k3dMesh};
  Vertex v;
  v.point = point;
  v.bulge = bulge;
  v.startWidth = startWidth;
  v.endWidth = endWidth;
  v.flags = kFlags[kind()];
  insertVertexAt(index, v);
}

void OdDb2dPolyline::insertVertexAt(unsigned index, const Vertex& vertex) {
  if (index > numVerts()) throw OdError_InvalidIndex(index, numVerts());
  requireFinite(vertex);
  assertWriteEnabled();
  Vertex added = vertex;
  added.entry = {};
  if (database()) addEntry(added);
  m_polyline.vertices.insert(m_polyline.vertices.begin() + index, added);
}

void OdDb2dPolyline::removeVertexAt(unsigned index) {
  if (index >= numVerts()) throw OdError_InvalidIndex(index, numVerts());
  assertWriteEnabled();
  if (const OdDbObjectPtr entry = m_polyline.vertices[index].entry.openObject(OdDb::kForWrite))
    entry->erase();
  m_polyline.vertices.erase(m_polyline.vertices.begin() + index);
}

void OdDb2dPolyline::addEntry(Vertex& vertex) {
  const auto entry = odrxMake<OdDbVertex>();
  entry->setPropertiesFrom(*this);
  vertex.entry = database()->addObject(entry, objectId());
}

void OdDb2dPolyline::enteredDatabase() {
  for (Vertex& v : m_polyline.vertices) addEntry(v);
  const auto end = odrxMake<OdDbRawEntity>("SEQEND");
  end->setPropertiesFrom(*this);
  m_polyline.end = database()->addObject(end, objectId());
}

void OdDb2dPolyline::addFollower(OdDbEntity& follower) {
  if (const auto* vertex = odrxCast<OdDbVertex>(&follower)) {
    Vertex v = vertex->vertex();
    if (!vertex->hasStartWidth()) v.startWidth = m_polyline.startWidth;
    if (!vertex->hasEndWidth()) v.endWidth = m_polyline.endWidth;
    v.entry = follower.objectId();
    m_polyline.vertices.push_back(v);
  } else if (m_polyline.end.isNull()) {
    m_polyline.end = follower.objectId();
  }
}

OdGePoint3d OdDb2dPolyline::worldPointAt(unsigned index) const {
  const OdGePoint3d& p = vertexAt(index).point;
  if (kind() != k2d) return p;
  return OdGeMatrix3d::planeToWorld(normal()) * OdGePoint3d{p.x, p.y, elevation()};
}

void OdDb2dPolyline::setClosed(bool closed) {
  assertWriteEnabled();
  m_polyline.flags = closed ? m_polyline.flags | kClosed : m_polyline.flags & ~kClosed;
}

void OdDb2dPolyline::setPlinegen(bool on) {
  assertWriteEnabled();
  m_polyline.flags = on ? m_polyline.flags | kPlinegen : m_polyline.flags & ~kPlinegen;
}

void OdDb2dPolyline::setDefaultWidths(double start, double end) {
  odcheck::finite(start);
  odcheck::finite(end);
  assertWriteEnabled();
  m_polyline.startWidth = start;
  m_polyline.endWidth = end;
}

void OdDb2dPolyline::setMeshSize(int m, int n) {
  assertWriteEnabled();
  m_polyline.mCount = m;
  m_polyline.nCount = n;
}

void OdDb2dPolyline::setElevation(double elevation) {
  odcheck::finite(elevation);
  assertWriteEnabled();
  m_polyline.elevation.z = elevation;
}

void OdDb2dPolyline::setThickness(double thickness) {
  odcheck::finite(thickness);
  assertWriteEnabled();
  m_polyline.extrusion.setThickness(thickness);
}

void OdDb2dPolyline::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d n = odcheck::direction(normal);
  assertWriteEnabled();
  m_polyline.extrusion.setNormal(n);
}

bool OdDb2dPolyline::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_polyline;
  if (kind() == k2d) {
    const OdGePlaneTransform plane(transform, normal());
    if (!plane.valid) return false;
    const double factor = plane.scale();
    for (Vertex& v : moved.vertices) {
      v.point = plane.inPlane * OdGePoint3d{v.point.x, v.point.y, elevation()};
      v.startWidth *= factor;
      v.endWidth *= factor;
      if (plane.mirrors) v.bulge = 0 - v.bulge; // no negative zeros
      if (v.flags & Vertex::kTangentUsed) v.tangent = plane.angle(v.tangent);
    }
    moved.elevation.z = (plane.inPlane * OdGePoint3d{0, 0, elevation()}).z;
    moved.startWidth *= factor;
    moved.endWidth *= factor;
    moved.extrusion.setThickness(thickness() * plane.rise);
    moved.extrusion.setNormal(plane.normal);
  } else {
    for (Vertex& v : moved.vertices)
      if (!v.isFace()) v.point = transform * v.point;
  }
  for (const Vertex& v : moved.vertices)
    if (!odcheck::areFinite(v.point, v.startWidth, v.endWidth)) return false;
  if (!odcheck::areFinite(moved.elevation, moved.extrusion.thickness())) return false;
  assertWriteEnabled();
  m_polyline = std::move(moved);
  return true;
}
