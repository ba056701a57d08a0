// Draws lines that have widths of their own.
#include "drafton/render/piece_painter.h"

#include <algorithm>

namespace drafton {
namespace {

/// Adds the outline of a part of a line between its edges.
void addRibbon(std::vector<QPolygonF>& rings, std::span<const OdGiWidePoint> points,
               const Projection& projection) {
  QPolygonF outline;
  for (const OdGiWidePoint& p : points) outline << projection(p.left);
  for (std::size_t i = points.size(); i-- > 0;) outline << projection(points[i].right);
  rings.push_back(std::move(outline));
}

OdGiWidePoint between(const OdGiWidePoint& a, const OdGiWidePoint& b, double part) {
  return {a.middle + (b.middle - a.middle) * part, a.left + (b.left - a.left) * part,
          a.right + (b.right - a.right) * part, false};
}

/// The points of one piece, which are in front.
std::span<const OdGiWidePoint> pieceOf(std::span<const OdGiWidePoint> points) {
  std::size_t count = 1;
  while (count < points.size() && !points[count].startsPiece) ++count;
  return points.first(count);
}

} // namespace

void PiecePainter::wide(std::span<const OdGiWidePoint> points, bool dashesRunThrough) {
  const Projection& project = *m_projection;
  const bool dashes = isDashed();
  double widest = 0;
  for (const OdGiWidePoint& p : points)
    widest = std::max(widest, QLineF(project(p.left), project(p.right)).length());
  // All at once: what overlaps or touches is painted once, without seams.
  std::vector<QPolygonF> rings;
  for (std::size_t count = 0; !points.empty(); points = points.subspan(count)) {
    const auto piece = dashes && dashesRunThrough ? points : pieceOf(points);
    count = piece.size();
    if (widest < 1) {
      // What is thinner than a pixel is a line, so that it does not fade away.
      std::vector<OdGePoint3d> middle;
      for (const OdGiWidePoint& p : piece) middle.push_back(p.middle);
      polyline(middle, false);
    } else if (dashes) {
      dashedWide(piece, rings);
    } else {
      addRibbon(rings, piece, project);
    }
  }
  if (!rings.empty()) m_surface.fill(rings, Qt::WindingFill);
}

void PiecePainter::dashedWide(std::span<const OdGiWidePoint> points,
                              std::vector<QPolygonF>& rings) {
  std::vector<OdGePoint3d> middle;
  std::vector<double> lengths;
  double widest = 0;
  for (const OdGiWidePoint& p : points) {
    lengths.push_back(middle.empty() ? 0 : lengths.back() + middle.back().distanceTo(p.middle));
    middle.push_back(p.middle);
    widest = std::max(widest, p.left.distanceTo(p.right));
  }
  const double total = lengths.back();
  const double dot = 0.5 / m_scale; // half a pixel to each side
  const auto at = [&](double position) {
    const auto next = std::ranges::upper_bound(lengths, position);
    const auto i = static_cast<std::size_t>(next - lengths.begin());
    if (i == lengths.size()) return points.back();
    return between(points[i - 1], points[i],
                   (position - lengths[i - 1]) / (lengths[i] - lengths[i - 1]));
  };
  const auto drawDash = [&](double from, double to) {
    if (from == to) {
      from = std::max(0.0, from - dot);
      to = std::min(total, to + dot);
    }
    std::vector<OdGiWidePoint> part{at(from)};
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (lengths[i] <= from || lengths[i] >= to) continue;
      // Pieces overlap at their corners, and would tie a bow in one outline.
      if (points[i].startsPiece && part.size() > 1) {
        addRibbon(rings, part, *m_projection);
        part.clear();
      }
      part.push_back(points[i]);
    }
    part.push_back(at(to));
    addRibbon(rings, part, *m_projection);
  };
  dashed(middle, false, widest / 2, drawDash);
}

} // namespace drafton
