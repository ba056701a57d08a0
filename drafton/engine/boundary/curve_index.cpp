#include "drafton/engine/boundary/curve_index.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/index/rtree.hpp>

namespace drafton {
namespace {

namespace bgi = boost::geometry::index;
using Point = boost::geometry::model::d2::point_xy<double>;
using Box = boost::geometry::model::box<Point>;
using Entry = std::pair<Box, std::uint32_t>;

Box grown(const Box& box, double reach) {
  return {{box.min_corner().x() - reach, box.min_corner().y() - reach},
          {box.max_corner().x() + reach, box.max_corner().y() + reach}};
}

Box boxOf(const OdGeExtents3d& box) {
  return {{box.minPoint().x, box.minPoint().y}, {box.maxPoint().x, box.maxPoint().y}};
}

} // namespace

struct CurveIndex::Tree {
  bgi::rtree<Entry, bgi::linear<16>> entries;
  std::vector<Box> boxes;
};

CurveIndex::CurveIndex(std::span<const OdGeCurveSegment> curves)
  : m_tree(std::make_unique<Tree>()) {
  std::vector<Entry> entries;
  entries.reserve(curves.size());
  for (const OdGeCurveSegment& curve : curves) {
    const Box box = boxOf(curve.extents());
    entries.emplace_back(box, static_cast<std::uint32_t>(entries.size()));
    m_tree->boxes.push_back(box);
  }
  // All at once they are packed tightly.
  m_tree->entries = {entries.begin(), entries.end()};
}

CurveIndex::~CurveIndex() = default;

std::vector<std::uint32_t> CurveIndex::in(const OdGeExtents3d& box, double reach) const {
  std::vector<std::uint32_t> found;
  const Box wanted = grown(boxOf(box), reach);
  for (auto at = m_tree->entries.qbegin(bgi::intersects(wanted)); at != m_tree->entries.qend();
       ++at)
    found.push_back(at->second);
  return found;
}

void CurveIndex::forEachPair(
    double reach, const std::function<void(std::uint32_t a, std::uint32_t b)>& take) const {
  std::vector<Entry> near;
  for (std::uint32_t a = 0; a < m_tree->boxes.size(); ++a) {
    near.clear();
    m_tree->entries.query(bgi::intersects(grown(m_tree->boxes[a], reach)),
                          std::back_inserter(near));
    for (const Entry& entry : near)
      if (a < entry.second) take(a, entry.second);
  }
}

std::vector<std::uint32_t> CurveIndex::nearest(const OdGePoint3d& point, unsigned count) const {
  std::vector<Entry> near;
  m_tree->entries.query(bgi::nearest(Point(point.x, point.y), count), std::back_inserter(near));
  std::vector<std::uint32_t> found;
  for (const Entry& entry : near) found.push_back(entry.second);
  return found;
}

} // namespace drafton
