// Old polylines as curves, and the edges of meshes.
#include "drawing/checks.h"
#include "drawing/entities/flat_polyline.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/polyline2d.h"
#include "drawing/graphics/world_draw.h"

#include <algorithm>

std::vector<const OdDbVertexData*> OdDb2dPolyline::shown() const {
  std::vector<const Vertex*> all;
  const auto& vertices = m_polyline.vertices;
  // The frame hides behind its curve, unless a file has the frame alone.
  const bool fitted = std::any_of(vertices.begin(), vertices.end(),
                                  [](const Vertex& v) { return v.flags & Vertex::kSplineFit; });
  for (const Vertex& v : vertices)
    if (!v.isFace() && !(fitted && (v.flags & Vertex::kSplineFrame))) all.push_back(&v);
  return all;
}

OdDbFlatPolyline OdDb2dPolyline::flat() const {
  OdDbFlatPolyline flat;
  flat.closed = isClosed();
  flat.toWorld =
      OdGeMatrix3d::planeToWorld(normal()) * OdGeMatrix3d::translation({0, 0, elevation()});
  for (const Vertex* v : shown())
    flat.corners.push_back({{v->point.x, v->point.y}, v->bulge, v->startWidth, v->endWidth});
  return flat;
}

void OdDb2dPolyline::appendSegments(OdGeCurveSegments& segments, double) const {
  if (kind() == k2d) return flat().appendSegments(segments);
  if (kind() != k3d) {
    const std::vector<OdGePoint3d> ends = edges();
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
      segments.push_back(OdGeCurveSegment::line(ends[i], ends[i + 1]));
    return;
  }
  const auto corners = shown();
  for (std::size_t i = 0; i + 1 < corners.size(); ++i)
    segments.push_back(OdGeCurveSegment::line(corners[i]->point, corners[i + 1]->point));
  if (isClosed() && corners.size() > 1)
    segments.push_back(OdGeCurveSegment::line(corners.back()->point, corners.front()->point));
}

double OdDb2dPolyline::getEndParam() const { return static_cast<double>(segments().size()); }

OdGePoint3d OdDb2dPolyline::getPointAtParam(double param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) throw OdError(eInvalidInput, QStringLiteral("The polyline has no pieces"));
  const double at = checkedParam(param);
  const auto index = std::min(static_cast<std::size_t>(at), all.size() - 1);
  return all[index].pointAt(at - static_cast<double>(index));
}

OdGeVector3d OdDb2dPolyline::getFirstDeriv(double param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) throw OdError(eInvalidInput, QStringLiteral("The polyline has no pieces"));
  const double at = checkedParam(param);
  const auto index = std::min(static_cast<std::size_t>(at), all.size() - 1);
  return all[index].derivAt(at - static_cast<double>(index));
}

std::vector<OdDbEntityPtr> OdDb2dPolyline::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  if (kind() != k2d) return {};
  std::vector<OdDbEntityPtr> all;
  const OdDbFlatPolyline shape = flat();
  const double width = shape.corners.empty() ? 0 : shape.corners.front().startWidth;
  const bool even = std::all_of(shape.corners.begin(), shape.corners.end(), [&](const auto& c) {
    return c.startWidth == width && c.endWidth == width;
  });
  for (const OdGeFlatPath& path : odge::offset(shape.path(), distance)) {
    const auto moved = odrxMake<OdDb2dPolyline>(k2d);
    moved->setNormal(normal());
    moved->setElevation(elevation());
    moved->setThickness(thickness());
    for (const OdGeFlatCorner& c : path.corners)
      moved->addVertexAt(moved->numVerts(), {c.point.x, c.point.y, elevation()}, c.bulge,
                         even ? width : 0, even ? width : 0);
    moved->setClosed(path.closed);
    moved->setPlinegen(hasPlinegen());
    moved->setPropertiesFrom(*this);
    all.push_back(moved);
  }
  return all;
}

bool OdDb2dPolyline::getSplitCurves(const std::vector<double>& params,
                                    std::vector<OdDbEntityPtr>& pieces) const {
  const OdGeCurveSegments all = segments();
  if (kind() > k3d || all.empty() || (isClosed() && params.empty())) return false;
  std::vector<double> bounds;
  for (const double p : params) bounds.push_back(checkedParam(p));
  if (isClosed()) {
    bounds.push_back(bounds.front());
  } else {
    bounds.insert(bounds.begin(), 0.0);
    bounds.push_back(getEndParam());
  }
  OdDbFlatPolyline shape;
  if (kind() == k2d) {
    shape = flat();
  } else {
    // A polyline in space is cut by the numbers of its corners alone.
    shape.closed = isClosed();
    shape.corners.resize(shown().size());
  }
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
    const bool through = isClosed() && i + 2 == bounds.size();
    if (!through && bounds[i + 1] <= bounds[i]) continue;
    const auto piece = odrxMake<OdDb2dPolyline>(kind());
    piece->setNormal(normal());
    piece->setElevation(elevation());
    piece->setThickness(thickness());
    piece->setPlinegen(hasPlinegen());
    piece->setPropertiesFrom(*this);
    if (kind() == k2d) {
      for (const auto& c : shape.between(bounds[i], bounds[i + 1]))
        piece->addVertexAt(piece->numVerts(), {c.point.x, c.point.y, elevation()}, c.bulge,
                           c.startWidth, c.endWidth);
    } else {
      const double end =
          through && bounds[i + 1] <= bounds[i] ? bounds[i + 1] + getEndParam() : bounds[i + 1];
      const auto at = [&](double t) {
        return getPointAtParam(t > getEndParam() ? t - getEndParam() : t);
      };
      piece->addVertexAt(0, at(bounds[i]));
      for (double t = std::floor(bounds[i]) + 1; t < end; ++t)
        piece->addVertexAt(piece->numVerts(), at(t));
      piece->addVertexAt(piece->numVerts(), at(end));
    }
    pieces.push_back(piece);
  }
  return true;
}

bool OdDb2dPolyline::reverseCurve() {
  if (kind() > k3d) return false;
  assertWriteEnabled();
  auto& vertices = m_polyline.vertices;
  const std::vector<Vertex> old = vertices;
  const std::size_t count = old.size();
  for (std::size_t i = 0; i < count; ++i) {
    vertices[i] = old[count - 1 - i];
    const Vertex& piece = old[(2 * count - 2 - i) % count];
    vertices[i].bulge = -piece.bulge;
    vertices[i].startWidth = piece.endWidth;
    vertices[i].endWidth = piece.startWidth;
    vertices[i].tangent = odgeNormalAngle(vertices[i].tangent + kOdaPi);
    if (!(vertices[i].flags & Vertex::kTangentUsed)) vertices[i].tangent = 0;
  }
  return true;
}

std::vector<OdGePoint3d> OdDb2dPolyline::edges() const {
  std::vector<OdGePoint3d> ends;
  const auto corners = shown();
  const auto edge = [&](std::size_t a, std::size_t b) {
    if (a >= corners.size() || b >= corners.size()) return;
    ends.push_back(corners[a]->point);
    ends.push_back(corners[b]->point);
  };
  if (kind() == kPolyface) {
    // The sign only tells whether the edge behind is shown.
    const auto number = [](int corner) {
      return static_cast<std::size_t>(std::abs(static_cast<std::int64_t>(corner))) - 1;
    };
    for (const Vertex& v : m_polyline.vertices) {
      if (!v.isFace()) continue;
      std::vector<int> around;
      for (const int corner : v.face)
        if (corner != 0) around.push_back(corner);
      for (std::size_t i = 0; i < around.size(); ++i)
        if (around[i] > 0) edge(number(around[i]), number(around[(i + 1) % around.size()]));
    }
    return ends;
  }
  // A smoothed mesh has as many corners as its densities say.
  const bool smooth = m_polyline.smoothType != 0 && m_polyline.mDensity > 0;
  const int mCount = smooth ? m_polyline.mDensity : m_polyline.mCount;
  const int nCount = smooth ? m_polyline.nDensity : m_polyline.nCount;
  if (mCount < 1 || nCount < 1) return ends;
  const auto m = static_cast<std::size_t>(mCount);
  const auto n = static_cast<std::size_t>(nCount);
  // Counts of a file are only believed as far as there are corners.
  for (std::size_t i = 0; i < m && i * n < corners.size(); ++i)
    for (std::size_t k = 0; k < n && i * n + k < corners.size(); ++k) {
      if (k + 1 < n || isClosedN()) edge(i * n + k, i * n + (k + 1) % n);
      if (i + 1 < m || isClosed()) edge(i * n + k, (i + 1) % m * n + k);
    }
  return ends;
}

void OdDb2dPolyline::worldDraw(OdGiWorldDraw& draw) const {
  if (kind() > k3d) {
    const std::vector<OdGePoint3d> ends = edges();
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
      draw.polyline(std::span(ends).subspan(i, 2), false);
    return;
  }
  if (kind() == k2d)
    if (const OdDbFlatPolyline shape = flat(); shape.isWide()) return shape.drawWide(draw, dashesRunThrough());
  OdDbCurve::worldDraw(draw);
}

bool OdDb2dPolyline::getGeomExtents(OdGeExtents3d& extents) const {
  if (kind() != k2d) return OdDbCurve::getGeomExtents(extents);
  extents = flat().extents();
  if (extents.isEmpty()) return false;
  const OdGeExtents3d base = extents;
  extents.addPoint(base.minPoint() + rise());
  extents.addPoint(base.maxPoint() + rise());
  return true;
}

OdDbPolylinePtr OdDb2dPolyline::asLight() const {
  const auto light = odrxMake<OdDbPolyline>();
  light->setPropertiesFrom(*this);
  light->setNormal(normal());
  light->setElevation(elevation());
  light->setThickness(thickness());
  for (const auto& c : flat().corners)
    light->addVertexAt(light->numVerts(), c.point, c.bulge, c.startWidth, c.endWidth);
  light->setClosed(isClosed());
  light->setPlinegen(hasPlinegen());
  return light;
}

OdDbEntityPtr OdDb2dPolyline::getTransformedCopy(const OdGeMatrix3d& transform) const {
  if (const OdDbEntityPtr moved = OdDbEntity::getTransformedCopy(transform)) return moved;
  return kind() == k2d ? asLight()->getTransformedCopy(transform) : OdDbEntityPtr();
}

bool OdDb2dPolyline::explode(std::vector<OdDbEntityPtr>& pieces) const {
  if (kind() == k2d) return asLight()->explode(pieces);
  for (const OdGeCurveSegment& s : segments()) {
    const auto line = odrxMake<OdDbLine>(s.start, s.end);
    line->setPropertiesFrom(*this);
    pieces.push_back(line);
  }
  return true;
}
