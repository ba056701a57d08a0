#include "drawing/entities/face.h"

#include "drawing/checks.h"
#include "drawing/graphics/world_draw.h"

namespace {

constexpr OdGePoint3d OdDbFace::Data::*kCorners[] = {&OdDbFace::Data::p0, &OdDbFace::Data::p1,
                                                     &OdDbFace::Data::p2, &OdDbFace::Data::p3};
constexpr unsigned kCount = 4;

void checkIndex(unsigned index) {
  if (index >= kCount) throw OdError_InvalidIndex(index, kCount);
}

} // namespace

OdDbFace::OdDbFace() = default;

OdDbFace::OdDbFace(const OdGePoint3d& p0, const OdGePoint3d& p1, const OdGePoint3d& p2,
                   const OdGePoint3d& p3) {
  const OdGePoint3d corners[] = {p0, p1, p2, p3};
  for (unsigned i = 0; i < kCount; ++i) setVertexAt(i, corners[i]);
}

void OdDbFace::assignFrom(const OdDbObject& other) {
  OdDbEntity::assignFrom(other);
  m_face = static_cast<const OdDbFace&>(other).m_face;
}

OdGePoint3d OdDbFace::getVertexAt(unsigned index) const {
  checkIndex(index);
  return m_face.*kCorners[index];
}

void OdDbFace::setVertexAt(unsigned index, const OdGePoint3d& point) {
  checkIndex(index);
  odcheck::finite(point);
  assertWriteEnabled();
  m_face.*kCorners[index] = point;
}

bool OdDbFace::isEdgeVisibleAt(unsigned index) const {
  checkIndex(index);
  return (m_face.invisibleEdges & 1 << index) == 0;
}

void OdDbFace::setEdge(unsigned index, bool visible) {
  checkIndex(index);
  assertWriteEnabled();
  if (visible)
    m_face.invisibleEdges &= ~(1 << index);
  else
    m_face.invisibleEdges |= 1 << index;
}

void OdDbFace::worldDraw(OdGiWorldDraw& draw) const {
  // Edges that meet are one line, so that line types run on around the corner.
  std::vector<OdGePoint3d> line;
  const auto show = [&] {
    if (line.size() > 1) draw.polyline(line, false);
    line.clear();
  };
  bool allAround = true;
  for (unsigned i = 0; i < kCount; ++i) allAround = allAround && isEdgeVisibleAt(i);
  for (unsigned i = 0; i < kCount; ++i) {
    const OdGePoint3d& from = m_face.*kCorners[i];
    const OdGePoint3d& to = m_face.*kCorners[(i + 1) % kCount];
    if (!isEdgeVisibleAt(i)) {
      show();
      continue;
    }
    if (line.empty()) line.push_back(from);
    if (!(to == line.back())) line.push_back(to);
  }
  if (allAround && line.size() > 1) {
    if (line.back() == line.front()) line.pop_back();
    draw.polyline(line, line.size() > 2);
  } else {
    show();
  }
}

bool OdDbFace::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  for (const auto corner : kCorners) extents.addPoint(m_face.*corner);
  return true;
}

bool OdDbFace::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_face;
  for (const auto corner : kCorners) {
    moved.*corner = transform * (m_face.*corner);
    if (!odgeIsFinite(moved.*corner)) return false;
  }
  assertWriteEnabled();
  m_face = moved;
  return true;
}
