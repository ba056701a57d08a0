#include "drafton/engine/entity_shape.h"

#include "drafton/engine/flat_geometry.h"
#include "drawing/database.h"
#include "drawing/entities/raster_image.h"
#include "drawing/entities/viewport.h"
#include "drawing/graphics/world_draw.h"

#include <algorithm>
#include <limits>

namespace drafton {
namespace {

/// Blocks that stand in each other beyond this depth are not looked into.
constexpr int kDeepestBlock = 32;
/// Lines without ends are as long as nobody looks, to either side.
constexpr double kEndless = 1e9;

/// Gathers what entities show.
class ShapeGatherer : public OdGiWorldDraw {
 public:
  explicit ShapeGatherer(double deviation)
    : m_deviation(deviation) {}

  double deviation() const override { return m_deviation; }
  void polyline(std::span<const OdGePoint3d> points, bool closed) override {
    Outline line;
    line.reserve(points.size() + 1);
    for (const OdGePoint3d& p : points) line.push_back(placed(p));
    if (closed && !line.empty()) line.push_back(line.front());
    for (const OdGePoint2d& p : line) m_shape.box.add(p);
    if (!line.empty()) m_shape.lines.push_back(std::move(line));
  }
  void arc(const OdGiArc& arc) override {
    const OdGiArc now{m_transform * arc.center, m_transform * arc.u, m_transform * arc.v, arc.start,
                      arc.sweep};
    std::vector<OdGePoint3d> points;
    odgi::appendChords(now, m_deviation, points);
    Outline line;
    line.reserve(points.size());
    for (const OdGePoint3d& p : points) line.push_back(flat(p));
    m_shape.lines.push_back(std::move(line));
    const OdGeExtents3d box = odgi::extentsOf(now);
    m_shape.box.add(flat(box.minPoint()));
    m_shape.box.add(flat(box.maxPoint()));
  }
  void endless(const OdGePoint3d& origin, const OdGeVector3d& direction, bool bothWays) override {
    const OdGeVector3d way = direction.normal() * kEndless;
    const OdGePoint3d ends[] = {origin - way, origin, origin + way};
    polyline(std::span(ends).subspan(bothWays ? 0 : 1), false);
  }
  void area(const OdGiRings& rings) override {
    std::vector<Outline> area;
    for (const auto& ring : rings) {
      Outline corners;
      for (const OdGePoint3d& p : ring) corners.push_back(placed(p));
      if (corners.empty()) continue;
      for (const OdGePoint2d& p : corners) m_shape.box.add(p);
      corners.push_back(corners.front());
      area.push_back(std::move(corners));
    }
    if (!area.empty()) m_shape.areas.push_back(std::move(area));
  }
  void gradient(const OdGiRings& rings, const OdGiGradient&) override { area(rings); }
  void strokes(std::span<const OdGePoint3d> ends) override {
    for (std::size_t i = 1; i < ends.size(); i += 2) polyline(ends.subspan(i - 1, 2), false);
  }
  void text(const OdGiTextRun& run) override {
    const OdGiTextMetrics& metrics = OdGiTextMetrics::current();
    const double letters = metrics.advance(run.text, run.font);
    if (letters <= 0) return;
    const double width = letters + run.tracking * static_cast<double>(run.text.size());
    const double below = metrics.descent(run.font);
    const OdGePoint3d low = run.origin - run.up * below;
    const OdGePoint3d high = run.origin + run.up;
    area({{low, low + run.along * width, high + run.along * width, high}});
  }
  void point(const OdGePoint3d& position, const OdGeVector3d&) override {
    polyline({&position, 1}, false);
  }
  void block(OdDbObjectId block, const OdGeMatrix3d& transform, const OdDbEntity&) override {
    const OdDbBlockTableRecordPtr record = block.openObject();
    if (!record || m_depth >= kDeepestBlock) return;
    const OdGeMatrix3d outer = m_transform;
    m_transform = m_transform * transform;
    ++m_depth;
    for (auto at = record->newIterator(); !at->done(); at->step())
      if (const OdDbEntityPtr entity = at->entity(); entity && isShown(*entity))
        entity->worldDraw(*this);
    --m_depth;
    m_transform = outer;
  }
  // Of these the edges are taken hold of, so that what lies on them can be reached.
  void image(const OdDbRasterImage& image) override { polyline(image.shownBoundary(), true); }
  void viewport(const OdDbViewport& viewport) override {
    polyline(viewport.boundary(m_deviation), true);
  }
  void setPieceColor(const std::optional<OdCmColor>&) override {}

  EntityShape take() { return std::move(m_shape); }

 private:
  OdGePoint2d placed(const OdGePoint3d& p) const { return flat(m_transform * p); }
  static bool isShown(const OdDbEntity& entity) {
    if (!entity.isVisible()) return false;
    const OdDbLayerTableRecordPtr layer = entity.layerId().openObject();
    return !layer || !(layer->isOff() || layer->isFrozen());
  }

  double m_deviation;
  OdGeMatrix3d m_transform;
  int m_depth = 0;
  EntityShape m_shape;
};

} // namespace

void FlatBox::add(const OdGePoint2d& p) {
  low = {std::min(low.x, p.x), std::min(low.y, p.y)};
  high = {std::max(high.x, p.x), std::max(high.y, p.y)};
}

bool FlatBox::contains(const OdGePoint2d& p, double tolerance) const {
  return p.x >= low.x - tolerance && p.x <= high.x + tolerance && p.y >= low.y - tolerance &&
         p.y <= high.y + tolerance;
}

bool FlatBox::contains(const FlatBox& other, double tolerance) const {
  return !other.isEmpty() && contains(other.low, tolerance) && contains(other.high, tolerance);
}

bool FlatBox::meets(const FlatBox& other) const {
  return !isEmpty() && low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y &&
         other.low.y <= high.y;
}

EntityShape shapeOf(const OdDbEntity& entity, double deviation) {
  ShapeGatherer gatherer(deviation);
  entity.worldDraw(gatherer);
  EntityShape shape = gatherer.take();
  OdGeExtents3d box;
  if (!shape.isEmpty() || !entity.getGeomExtents(box) || box.isEmpty()) return shape;
  const OdGePoint2d low = flat(box.minPoint()), high = flat(box.maxPoint());
  shape.box.add(low);
  shape.box.add(high);
  shape.areas = {{{low, {high.x, low.y}, high, {low.x, high.y}, low}}};
  return shape;
}

double distanceTo(const EntityShape& shape, const OdGePoint2d& point) {
  double nearest = std::numeric_limits<double>::infinity();
  const auto approach = [&](const Outline& line) {
    if (!line.empty()) nearest = std::min(nearest, line.front().distanceTo(point));
    for (std::size_t i = 1; i < line.size(); ++i)
      nearest = std::min(nearest, distanceToPiece(line[i - 1], line[i], point));
  };
  for (const Outline& line : shape.lines) approach(line);
  for (const std::vector<Outline>& area : shape.areas) {
    if (isInRings(area, point)) return 0;
    for (const Outline& ring : area) approach(ring);
  }
  return nearest;
}

} // namespace drafton
