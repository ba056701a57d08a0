// Polylines as curves.
#include "drawing/checks.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/flat_polyline.h"
#include "drawing/entities/line.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/entities/polyline.h"
#include "drawing/graphics/world_draw.h"

OdDbFlatPolyline OdDbPolyline::flat() const {
  OdDbFlatPolyline flat;
  flat.closed = isClosed();
  flat.toWorld = OdGeMatrix3d::planeToWorld(normal()) *
                 OdGeMatrix3d::translation({0, 0, m_polyline.elevation});
  const double constant = m_polyline.constantWidth;
  for (const Vertex& v : m_polyline.vertices) {
    const bool own = v.startWidth != 0 || v.endWidth != 0;
    flat.corners.push_back(
        {v.point, v.bulge, own ? v.startWidth : constant, own ? v.endWidth : constant});
  }
  return flat;
}

bool OdDbPolyline::isCounterClockwise() const {
  double area = 0;
  for (const OdGeFlatPiece& p : odge::piecesOf(flat().path())) {
    area += p.start.x * p.end.y - p.start.y * p.end.x;
    if (!p.isLine()) area += p.radius * p.radius * (p.sweep - std::sin(p.sweep));
  }
  const auto& vertices = m_polyline.vertices;
  if (!isClosed() && vertices.size() > 1) {
    const OdGePoint2d& a = vertices.pointAt(vertices.size() - 1);
    const OdGePoint2d& b = vertices.pointAt(0);
    area += a.x * b.y - a.y * b.x;
  }
  return area > 0;
}

double OdDbPolyline::getEndParam() const { return static_cast<double>(flat().pieces()); }

void OdDbPolyline::appendSegments(OdGeCurveSegments& segments, double) const {
  flat().appendSegments(segments);
}

OdGePoint3d OdDbPolyline::getPointAtParam(double param) const {
  const double at = checkedParam(param);
  if (numVerts() == 0) throw OdError(eInvalidInput, QStringLiteral("The polyline has no corners"));
  const OdGeCurveSegments all = segments();
  if (all.empty()) return worldPointAt(0);
  const auto index = std::min(static_cast<std::size_t>(at), all.size() - 1);
  return all[index].pointAt(at - static_cast<double>(index));
}

OdGeVector3d OdDbPolyline::getFirstDeriv(double param) const {
  const double at = checkedParam(param);
  const OdGeCurveSegments all = segments();
  if (all.empty()) throw OdError(eInvalidInput, QStringLiteral("The polyline has no pieces"));
  const auto index = std::min(static_cast<std::size_t>(at), all.size() - 1);
  return all[index].derivAt(at - static_cast<double>(index));
}

std::vector<OdDbEntityPtr> OdDbPolyline::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  const OdDbFlatPolyline shape = flat();
  std::vector<OdDbEntityPtr> all;
  for (const OdGeFlatPath& path : odge::offset(shape.path(), distance)) {
    const OdDbPolylinePtr moved = clone();
    // Only a polyline of which nothing was cut has its widths corner by corner.
    const bool whole = path.corners.size() == numVerts();
    OdDbPolylineVertices vertices;
    for (std::size_t i = 0; i < path.corners.size(); ++i) {
      Vertex v = whole ? m_polyline.vertices[i] : Vertex();
      v.point = path.corners[i].point;
      v.bulge = path.corners[i].bulge;
      vertices.push_back(v);
    }
    moved->m_polyline.vertices = std::move(vertices);
    moved->setClosed(path.closed);
    all.push_back(moved);
  }
  return all;
}

bool OdDbPolyline::getSplitCurves(const std::vector<double>& params,
                                  std::vector<OdDbEntityPtr>& pieces) const {
  const OdDbFlatPolyline shape = flat();
  if (shape.pieces() == 0 || (isClosed() && params.empty())) return false;
  std::vector<double> bounds;
  for (const double p : params) bounds.push_back(checkedParam(p));
  if (isClosed()) {
    bounds.push_back(bounds.front());
  } else {
    bounds.insert(bounds.begin(), 0.0);
    bounds.push_back(getEndParam());
  }
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
    const bool through = isClosed() && i + 2 == bounds.size();
    if (!through && bounds[i + 1] <= bounds[i]) continue;
    const OdDbPolylinePtr piece = clone();
    piece->setClosed(false);
    OdDbPolylineVertices vertices;
    for (const auto& c : shape.between(bounds[i], bounds[i + 1])) {
      const bool own =
          c.startWidth != m_polyline.constantWidth || c.endWidth != m_polyline.constantWidth;
      vertices.push_back({c.point, c.bulge, own ? c.startWidth : 0, own ? c.endWidth : 0, 0});
    }
    piece->m_polyline.vertices = std::move(vertices);
    pieces.push_back(piece);
  }
  return true;
}

bool OdDbPolyline::reverseCurve() {
  assertWriteEnabled();
  const OdDbPolylineVertices old = m_polyline.vertices;
  const std::size_t count = old.size();
  if (count < 2) return true;
  for (std::size_t i = 0; i < count; ++i) {
    Vertex v = old[count - 1 - i];
    // The piece behind a corner is now the one that was before it.
    const Vertex piece = old[(2 * count - 2 - i) % count];
    v.bulge = -piece.bulge;
    v.startWidth = piece.endWidth;
    v.endWidth = piece.startWidth;
    m_polyline.vertices.set(i, v);
  }
  return true;
}

void OdDbPolyline::worldDraw(OdGiWorldDraw& draw) const {
  const OdDbFlatPolyline shape = flat();
  if (shape.isWide())
    shape.drawWide(draw, dashesRunThrough());
  else
    OdDbCurve::worldDraw(draw);
}

bool OdDbPolyline::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  if (numVerts() == 0) return false;
  extents = flat().extents();
  if (extents.isEmpty()) extents.addPoint(worldPointAt(0));
  if (thickness() == 0) return true;
  const OdGeExtents3d base = extents;
  extents.addPoint(base.minPoint() + rise());
  extents.addPoint(base.maxPoint() + rise());
  return true;
}

OdDbEntityPtr OdDbPolyline::getTransformedCopy(const OdGeMatrix3d& transform) const {
  if (const OdDbEntityPtr moved = OdDbEntity::getTransformedCopy(transform)) return moved;
  const OdGeMatrix3d toWorld = transform * OdGeMatrix3d::planeToWorld(normal());
  const OdGeVector3d x = toWorld * OdGeVector3d::xAxis();
  const OdGeVector3d y = toWorld * OdGeVector3d::yAxis();
  OdGeVector3d n = x.crossProduct(y);
  if (!(n.lengthSqrd() > 0) || !std::isfinite(n.lengthSqrd())) return {};
  if (n.dotProduct(toWorld * OdGeVector3d::zAxis()) < 0) n = -n;
  const OdGeMatrix3d toPlane = OdGeMatrix3d::planeToWorld(n.normal()).inverse();
  OdGeCurveSegments moved;
  for (const OdGeCurveSegment& s : segments()) moved.push_back(s.transformed(transform));
  if (moved.empty()) return {};
  const OdDbPolylinePtr copy = clone();
  auto corners = OdDbFlatPolyline::chordsOf(moved, toPlane);
  if (isClosed()) corners.pop_back();
  // Widths grow by what areas grow by, and along the chords of an arc as they did along the arc.
  const double factor = std::sqrt(n.length());
  const auto widthAt = [&](std::size_t piece, double part) {
    const Vertex& v = m_polyline.vertices[piece];
    return factor * (v.startWidth + (v.endWidth - v.startWidth) * part);
  };
  OdDbPolylineVertices vertices;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const auto& [point, piece, part] = corners[i];
    if (!odcheck::isFinite(point)) return {};
    Vertex v = part == 0 ? m_polyline.vertices[piece] : Vertex();
    v.point = point;
    v.bulge = 0;
    const bool endsPiece = i + 1 == corners.size() || corners[i + 1].piece != piece;
    v.startWidth = widthAt(piece, part);
    v.endWidth = widthAt(piece, endsPiece ? 1 : corners[i + 1].part);
    vertices.push_back(v);
  }
  copy->m_polyline.vertices = std::move(vertices);
  copy->m_polyline.constantWidth *= factor;
  copy->m_polyline.elevation = (toPlane * moved.front().start).z;
  copy->m_polyline.extrusion.setThickness(thickness() * (transform * normal()).length());
  copy->m_polyline.extrusion.setNormal(n.normal());
  return copy;
}

bool OdDbPolyline::explode(std::vector<OdDbEntityPtr>& pieces) const {
  for (const OdGeCurveSegment& s : segments()) {
    OdDbEntityPtr piece;
    if (s.isLine()) {
      const auto line = odrxMake<OdDbLine>(s.start, s.end);
      line->setNormal(normal());
      line->setThickness(thickness());
      piece = line;
    } else {
      const double from = s.sweep > 0 ? s.from : s.from + s.sweep;
      const auto arc = odrxMake<OdDbArc>(s.center, normal(), s.radius(), odgeNormalAngle(from),
                                         odgeNormalAngle(from + std::abs(s.sweep)));
      arc->setThickness(thickness());
      piece = arc;
    }
    piece->setPropertiesFrom(*this);
    pieces.push_back(piece);
  }
  return true;
}
