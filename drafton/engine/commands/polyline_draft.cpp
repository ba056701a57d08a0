#include "drafton/engine/commands/polyline_draft.h"

#include "drafton/engine/commands/new_entities.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

OdDbPolyline::Vertex cornerOf(const ArcPath& path, const PolylineDraft::Widths& widths) {
  return {{path.start.x, path.start.y}, path.bulge, widths.start, widths.end};
}

} // namespace

PolylineDraft::PolylineDraft(OdDbDatabase& database, const OdGePoint3d& start, Widths widths)
  : m_database(database)
  , m_start(start)
  , m_widths(widths) {}

const OdGePoint3d& PolylineDraft::end() const {
  return m_pieces.empty() ? m_start : m_pieces.back().path.end;
}

double PolylineDraft::direction() const {
  return m_pieces.empty() ? 0 : endDirectionOf(m_pieces.back().path);
}

OdDbEntityPtr PolylineDraft::shown(const ArcPath& piece) const {
  const auto made = odrxMake<OdDbPolyline>();
  const OdDbPolyline::Vertex corner = cornerOf(piece, m_widths);
  made->addVertexAt(0, corner.point, corner.bulge, corner.startWidth, corner.endWidth);
  made->addVertexAt(1, {piece.end.x, piece.end.y});
  made->setElevation(m_start.z);
  made->setDatabaseDefaults(m_database);
  return made;
}

void PolylineDraft::add(const ArcPath& piece) {
  const OdGePoint3d end{piece.end.x, piece.end.y, m_start.z};
  m_pieces.push_back({{piece.start, end, piece.bulge}, m_widths});
  const Piece& added = m_pieces.back();
  const OdDbPolyline::Vertex last{{end.x, end.y}, 0, m_widths.end, m_widths.end};
  if (m_pieces.size() == 1) {
    const OdDbPolylinePtr made = odrxMake<OdDbPolyline>();
    made->addVertexAt(0, {m_start.x, m_start.y});
    made->setVertexAt(0, cornerOf(added.path, added.widths));
    made->addVertexAt(1, last.point, last.bulge, last.startWidth, last.endWidth);
    made->setElevation(m_start.z);
    made->setPlinegen(m_database.sysVarInt("PLINEGEN") != 0);
    m_polyline = addNewThickEntity(m_database, *made);
  } else {
    const auto polyline = m_polyline.openAs<OdDbPolyline>(OdDb::kForWrite);
    const unsigned corner = polyline->numVerts() - 1;
    polyline->setVertexAt(corner, cornerOf(added.path, added.widths));
    polyline->addVertexAt(corner + 1, last.point, last.bulge, last.startWidth, last.endWidth);
  }
  m_widths.start = m_widths.end;
}

bool PolylineDraft::takeBack() {
  if (m_pieces.empty()) return false;
  m_widths = m_pieces.back().widths;
  m_pieces.pop_back();
  const auto polyline = m_polyline.openAs<OdDbPolyline>(OdDb::kForWrite);
  if (m_pieces.empty()) {
    polyline->erase();
    return true;
  }
  polyline->removeVertexAt(polyline->numVerts() - 1);
  const unsigned last = polyline->numVerts() - 1;
  const double width = m_pieces.back().widths.end;
  polyline->setVertexAt(last, {polyline->getPointAt(last), 0, width, width});
  return true;
}

void PolylineDraft::close(double bulge) {
  const auto polyline = m_polyline.openAs<OdDbPolyline>(OdDb::kForWrite);
  const unsigned last = polyline->numVerts() - 1;
  polyline->setVertexAt(last, {polyline->getPointAt(last), bulge, m_widths.start, m_widths.end});
  polyline->setClosed(true);
}

} // namespace drafton
