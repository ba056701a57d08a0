#include "drafton/engine/selection_region.h"

#include "drafton/engine/flat_geometry.h"

#include <algorithm>

namespace drafton {
namespace {

Outline flattened(const std::vector<OdGePoint3d>& points) {
  Outline outline;
  outline.reserve(points.size() + 1);
  for (const OdGePoint3d& p : points) outline.push_back(flat(p));
  return outline;
}

/// Calls `test` for each piece of a line until it is true. A single point is a piece of its own.
template <class Test>
bool anyPiece(const Outline& line, const Test& test) {
  if (line.size() == 1) return test(line[0], line[0]);
  for (std::size_t i = 1; i < line.size(); ++i)
    if (test(line[i - 1], line[i])) return true;
  return false;
}

} // namespace

SelectionRegion::SelectionRegion(Kind kind, Outline outline)
  : m_kind(kind) {
  for (const OdGePoint2d& p : outline) m_box.add(p);
  m_outline.push_back(std::move(outline));
  // Corners that were computed lie beside the border they were meant for.
  const double reach = std::max({std::abs(m_box.low.x), std::abs(m_box.low.y),
                                 std::abs(m_box.high.x), std::abs(m_box.high.y)});
  m_tolerance = reach * 1e-12;
}

SelectionRegion SelectionRegion::window(const OdGePoint3d& a, const OdGePoint3d& b) {
  return {Kind::kWindow, {flat(a), {b.x, a.y}, flat(b), {a.x, b.y}, flat(a)}};
}

SelectionRegion SelectionRegion::polygon(const std::vector<OdGePoint3d>& corners) {
  Outline outline = flattened(corners);
  outline.push_back(outline.front());
  return {Kind::kPolygon, std::move(outline)};
}

SelectionRegion SelectionRegion::fence(const std::vector<OdGePoint3d>& points) {
  return {Kind::kFence, flattened(points)};
}

double SelectionRegion::deviation() const {
  const double size = std::max(m_box.high.x - m_box.low.x, m_box.high.y - m_box.low.y);
  return std::max(size * 1e-5, 1e-12);
}

bool SelectionRegion::isInside(const OdGePoint2d& point) const {
  if (m_kind == Kind::kWindow) return m_box.contains(point, m_tolerance);
  if (m_kind == Kind::kPolygon && isInRings(m_outline, point)) return true;
  return anyPiece(m_outline[0], [&](const OdGePoint2d& a, const OdGePoint2d& b) {
    return distanceToPiece(a, b, point) <= m_tolerance;
  });
}

bool SelectionRegion::contains(const EntityShape& shape) const {
  if (m_kind == Kind::kFence || shape.isEmpty()) return false;
  if (m_kind == Kind::kWindow) return m_box.contains(shape.box, m_tolerance);
  // Both ends of a piece can lie in a polygon that the piece leaves in between.
  const auto isKept = [this](const Outline& line) {
    return std::all_of(line.begin(), line.end(),
                       [this](const OdGePoint2d& p) { return isInside(p); }) &&
           !anyPiece(line, [this](const OdGePoint2d& a, const OdGePoint2d& b) {
             return anyPiece(m_outline[0], [&](const OdGePoint2d& c, const OdGePoint2d& d) {
               return piecesCross(a, b, c, d);
             });
           });
  };
  return std::all_of(shape.lines.begin(), shape.lines.end(), isKept) &&
         std::all_of(shape.areas.begin(), shape.areas.end(), [&](const auto& rings) {
           return std::all_of(rings.begin(), rings.end(), isKept);
         });
}

bool SelectionRegion::meets(const Outline& line) const {
  if (line.empty()) return false;
  if (isInside(line.front())) return true;
  return anyPiece(line, [this](const OdGePoint2d& a, const OdGePoint2d& b) {
    return anyPiece(m_outline[0], [&](const OdGePoint2d& c, const OdGePoint2d& d) {
      return piecesMeet(a, b, c, d);
    });
  });
}

bool SelectionRegion::meets(const EntityShape& shape) const {
  const auto met = [this](const Outline& line) { return meets(line); };
  if (std::any_of(shape.lines.begin(), shape.lines.end(), met)) return true;
  return std::any_of(shape.areas.begin(), shape.areas.end(), [&](const auto& rings) {
    return std::any_of(rings.begin(), rings.end(), met) || isInRings(rings, m_outline[0].front());
  });
}

} // namespace drafton
