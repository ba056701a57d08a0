#include "drawing/patterns/pattern_strokes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace odpattern {
namespace {

/// One edge of the area in the coordinates of a family: u along its lines, v counted in lines.
struct Edge {
  double u0, v0, u1, v1; // v0 <= v1
};

/// A family of lines with what is needed to walk it.
class Family {
 public:
  explicit Family(const OdHatchPatternLine& line)
    : m_dashes(line.dashes)
    , m_base(line.base)
    , m_cos(std::cos(line.angle))
    , m_sin(std::sin(line.angle)) {
    m_shift = line.offset.x * m_cos + line.offset.y * m_sin;
    m_distance = -line.offset.x * m_sin + line.offset.y * m_cos;
    for (const double dash : m_dashes) m_period += std::abs(dash);
    // A pattern of gaps, dashes that add up to nothing: nothing can be stepped along.
    const bool hasInk = std::ranges::any_of(m_dashes, [](double dash) { return dash >= 0; });
    const bool isDashed = !m_dashes.empty();
    m_isUsable = std::isfinite(m_distance) && std::isfinite(m_shift) && std::abs(m_distance) > 0 &&
                 std::isfinite(m_period) && (!isDashed || (m_period > 0 && hasInk));
  }

  bool isUsable() const { return m_isUsable; }
  bool isDashed() const { return !m_dashes.empty(); }
  double period() const { return m_period; }

  OdGePoint2d toFamily(const OdGePoint2d& p) const {
    const double x = p.x - m_base.x, y = p.y - m_base.y;
    return {x * m_cos + y * m_sin, (y * m_cos - x * m_sin) / m_distance};
  }
  OdGePoint2d fromFamily(double u, double line) const {
    const double v = line * m_distance;
    return {m_base.x + u * m_cos - v * m_sin, m_base.y + u * m_sin + v * m_cos};
  }

  /// Adds what the dashes of a line show between two places. False beyond the limit.
  bool appendSpan(double line, double from, double to, std::size_t mostEnds,
                  std::vector<OdGePoint2d>& ends) const {
    if (!isDashed()) {
      ends.push_back(fromFamily(from, line));
      ends.push_back(fromFamily(to, line));
      return ends.size() <= mostEnds;
    }
    const double phase = line * m_shift;
    const double first = std::floor((from - phase) / m_period);
    const double last = std::floor((to - phase) / m_period);
    for (double n = first; n <= last; ++n) {
      double at = phase + n * m_period;
      for (const double dash : m_dashes) {
        const double end = at + std::abs(dash);
        if (dash >= 0 && end >= from && at <= to) {
          ends.push_back(fromFamily(std::max(at, from), line));
          ends.push_back(fromFamily(std::min(end, to), line));
          if (ends.size() > mostEnds) return false;
        }
        at = end;
      }
    }
    return true;
  }

 private:
  const std::vector<double>& m_dashes;
  OdGePoint2d m_base;
  double m_cos, m_sin;
  double m_shift = 0, m_distance = 0, m_period = 0;
  bool m_isUsable = false;
};

std::vector<Edge> edgesOf(const Rings& rings, const Family& family) {
  std::vector<Edge> edges;
  for (const auto& ring : rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const OdGePoint2d a = family.toFamily(ring[i]);
      const OdGePoint2d b = family.toFamily(ring[(i + 1) % ring.size()]);
      if (!std::isfinite(a.x) || !std::isfinite(a.y) || !std::isfinite(b.x) || !std::isfinite(b.y))
        continue;
      if (a.y < b.y) {
        edges.push_back({a.x, a.y, b.x, b.y});
      } else if (b.y < a.y) {
        edges.push_back({b.x, b.y, a.x, a.y});
      }
    }
  }
  std::ranges::sort(edges, {}, &Edge::v0);
  return edges;
}

/// Walks the lines of one family over the area, bottom to top, with the edges that each crosses.
bool appendFamily(const Rings& rings, const OdHatchPatternLine& definition, std::size_t mostEnds,
                  std::vector<OdGePoint2d>& ends) {
  const Family family(definition);
  if (!family.isUsable()) return true;
  const std::vector<Edge> edges = edgesOf(rings, family);
  if (edges.empty()) return true;
  double top = -std::numeric_limits<double>::infinity();
  for (const Edge& edge : edges) top = std::max(top, edge.v1);
  const double firstLine = std::ceil(edges.front().v0), lastLine = std::floor(top);
  if (lastLine - firstLine > static_cast<double>(mostEnds)) return false;

  std::vector<const Edge*> active;
  std::vector<double> crossings;
  std::size_t next = 0;
  for (double line = firstLine; line <= lastLine; ++line) {
    while (next < edges.size() && edges[next].v0 <= line) active.push_back(&edges[next++]);
    // A corner on the line belongs to the edge above it, so that each crossing counts once.
    std::erase_if(active, [&](const Edge* edge) { return edge->v1 <= line; });
    crossings.clear();
    for (const Edge* edge : active) {
      const double part = (line - edge->v0) / (edge->v1 - edge->v0);
      crossings.push_back(edge->u0 + part * (edge->u1 - edge->u0));
    }
    std::ranges::sort(crossings);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      const double from = crossings[i], to = crossings[i + 1];
      if (!(from < to)) continue;
      if (family.isDashed() && (to - from) / family.period() > static_cast<double>(mostEnds))
        return false;
      if (!family.appendSpan(line, from, to, mostEnds, ends)) return false;
    }
  }
  return true;
}

} // namespace

bool appendStrokes(const Rings& rings, const std::vector<OdHatchPatternLine>& lines,
                   std::size_t limit, std::vector<OdGePoint2d>& ends) {
  const std::size_t before = ends.size();
  const std::size_t mostEnds = before + 2 * limit;
  bool anyUsable = false;
  for (const OdHatchPatternLine& line : lines) {
    anyUsable = anyUsable || Family(line).isUsable();
    if (!appendFamily(rings, line, mostEnds, ends)) {
      ends.resize(before);
      return false;
    }
  }
  return anyUsable;
}

} // namespace odpattern
