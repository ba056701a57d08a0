#include "drafton/engine/commands/joined_curves.h"

#include "drafton/engine/commands/entity_thickness.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <ranges>

namespace drafton {
namespace {

/// Places that differ by less, measured by how large things are, are one.
constexpr double kNear = 1e-8;

template <class Entity>
std::vector<OdSmartPtr<Entity>> allOf(const Selection& curves) {
  std::vector<OdSmartPtr<Entity>> all;
  for (const OdDbObjectId& id : curves) {
    const OdDbObjectPtr object = id.openObject();
    if (!odrxCast<Entity>(object.get())) return {};
    all.push_back(object);
  }
  return all;
}

/// One side of a polyline to be, in world coordinates.
struct Side {
  OdGePoint3d start, end;
  double bulge = 0, startWidth = 0, endWidth = 0;

  Side reversed() const { return {end, start, -bulge, endWidth, startWidth}; }
};
using Sides = std::vector<Side>;

void turnRound(Sides& sides) {
  std::ranges::reverse(sides);
  for (Side& side : sides) side = side.reversed();
}

Sides sidesOf(const OdDbPolyline& polyline) {
  Sides sides;
  const double sign = polyline.normal().z < 0 ? -1 : 1;
  for (unsigned i = 0; i + 1 < polyline.numVerts(); ++i) {
    const auto v = polyline.vertexAt(i);
    const bool isOwn = v.startWidth != 0 || v.endWidth != 0;
    sides.push_back({polyline.worldPointAt(i), polyline.worldPointAt(i + 1), sign * v.bulge,
                     isOwn ? v.startWidth : polyline.constantWidth(),
                     isOwn ? v.endWidth : polyline.constantWidth()});
  }
  return sides;
}

bool isUpright(const OdGeVector3d& normal) { return normal.x == 0 && normal.y == 0; }

/// The sides of an open curve that lies level; none for others.
Sides sidesOf(const OdDbEntity& entity) {
  if (const auto* const line = odrxCast<OdDbLine>(&entity))
    return line->startPoint().z == line->endPoint().z && !(line->startPoint() == line->endPoint())
               ? Sides{{line->startPoint(), line->endPoint()}}
               : Sides();
  if (const auto* const arc = odrxCast<OdDbArc>(&entity)) {
    const double sweep = odgeNormalAngle(arc->endAngle() - arc->startAngle());
    const double sign = arc->normal().z < 0 ? -1 : 1;
    return isUpright(arc->normal()) && sweep > 0
               ? Sides{{arc->getStartPoint(), arc->getEndPoint(), sign * std::tan(sweep / 4)}}
               : Sides();
  }
  const auto* const polyline = odrxCast<OdDbPolyline>(&entity);
  return polyline && !polyline->isClosed() && isUpright(polyline->normal()) ? sidesOf(*polyline)
                                                                            : Sides();
}

/// One of the curves that may be joined.
struct Link {
  OdDbObjectId id;
  std::size_t place; ///< in the choice
  Sides sides;
  bool isUsed = false;
};

/// Finds links by where they end.
class LinkEnds {
 public:
  explicit LinkEnds(std::vector<Link>& links) {
    OdGeExtents3d box;
    for (const Link& link : links)
      for (const OdGePoint3d& end : {link.sides.front().start, link.sides.back().end})
        box.addPoint(end);
    if (box.isEmpty()) return;
    const OdGePoint3d& low = box.minPoint();
    const OdGePoint3d& high = box.maxPoint();
    // Numbers too large to calculate with touch only where they are equal.
    if (const double near = kNear * (high - low).length(); std::isfinite(near)) m_near = near;
    for (Link& link : links) {
      m_ends.emplace(link.sides.front().start.x, &link);
      m_ends.emplace(link.sides.back().end.x, &link);
    }
  }

  bool areOne(const OdGePoint3d& a, const OdGePoint3d& b) const {
    return a.distanceTo(b) <= m_near;
  }
  /// One that is not used yet and begins or ends at a point, turned so that it begins there.
  Link* takeFrom(const OdGePoint3d& point) {
    const auto last = m_ends.upper_bound(point.x + m_near);
    for (auto at = m_ends.lower_bound(point.x - m_near); at != last;) {
      Link& link = *at->second;
      if (link.isUsed) {
        at = m_ends.erase(at);
        continue;
      }
      const bool ends = areOne(link.sides.back().end, point);
      if (ends || areOne(link.sides.front().start, point)) {
        if (!areOne(link.sides.front().start, point)) turnRound(link.sides);
        link.isUsed = true;
        return &link;
      }
      ++at;
    }
    return nullptr;
  }

 private:
  std::multimap<double, Link*> m_ends; ///< by x
  double m_near = 0;
};

OdDbPolylinePtr polylineAlong(const Sides& sides, bool isClosed) {
  const OdDbPolylinePtr polyline = odrxMake<OdDbPolyline>();
  const double width = sides.front().startWidth;
  const bool isEven = std::ranges::all_of(sides, [width](const Side& side) {
    return side.startWidth == width && side.endWidth == width;
  });
  for (const Side& side : sides)
    polyline->addVertexAt(polyline->numVerts(), {side.start.x, side.start.y}, side.bulge,
                          isEven ? 0 : side.startWidth, isEven ? 0 : side.endWidth);
  if (!isClosed)
    polyline->addVertexAt(polyline->numVerts(), {sides.back().end.x, sides.back().end.y});
  polyline->setClosed(isClosed);
  polyline->setElevation(sides.front().start.z);
  if (isEven) polyline->setConstantWidth(width);
  return polyline;
}

} // namespace

std::optional<JoinedCurve> joinedLine(const Selection& curves) {
  const auto lines = allOf<OdDbLine>(curves);
  if (lines.size() < 2) return std::nullopt;
  const OdGePoint3d origin = lines.front()->startPoint();
  const OdGeVector3d whole = lines.front()->endPoint() - origin;
  if (whole.isZeroLength() || !std::isfinite(whole.length())) return std::nullopt;
  const OdGeVector3d along = whole.normal();
  double low = 0, high = whole.length();
  for (const OdDbLinePtr& line : lines) {
    for (const OdGePoint3d& end : {line->startPoint(), line->endPoint()}) {
      const double at = (end - origin).dotProduct(along);
      low = std::min(low, at);
      high = std::max(high, at);
    }
  }
  if (!std::isfinite(high - low)) return std::nullopt;
  for (const OdDbLinePtr& line : lines)
    for (const OdGePoint3d& end : {line->startPoint(), line->endPoint()})
      if ((end - origin).crossProduct(along).length() > kNear * (high - low)) return std::nullopt;
  const OdDbLinePtr joined = lines.front()->clone();
  joined->setStartPoint(origin + along * low);
  joined->setEndPoint(origin + along * high);
  return JoinedCurve{joined, curves};
}

std::optional<JoinedCurve> joinedArc(const Selection& curves) {
  const auto arcs = allOf<OdDbArc>(curves);
  if (arcs.size() < 2) return std::nullopt;
  const OdDbArcPtr& first = arcs.front();
  const double start = first->startAngle(), radius = first->radius();
  double sweep = 0;
  for (const OdDbArcPtr& arc : arcs) {
    if (arc->center().distanceTo(first->center()) > kNear * radius ||
        std::abs(arc->radius() - radius) > kNear * radius ||
        (arc->normal() - first->normal()).length() > kNear)
      return std::nullopt;
    double from = odgeNormalAngle(arc->startAngle() - start);
    if (2 * kOdaPi - from <= kNear) from = 0;
    sweep = std::max(sweep, from + odgeNormalAngle(arc->endAngle() - arc->startAngle()));
  }
  if (sweep >= 2 * kOdaPi - kNear) {
    const auto circle = odrxMake<OdDbCircle>(first->center(), first->normal(), radius);
    circle->setThickness(first->thickness());
    circle->setPropertiesFrom(*first);
    return JoinedCurve{circle, curves};
  }
  const OdDbArcPtr joined = first->clone();
  joined->setEndAngle(odgeNormalAngle(start + sweep));
  return JoinedCurve{joined, curves};
}

std::vector<JoinedCurve> joinedPolylines(const Selection& curves) {
  std::vector<Link> links;
  for (const OdDbObjectId& id : curves)
    if (Sides sides = sidesOf(*id.openAs<OdDbEntity>()); !sides.empty())
      links.push_back({id, links.size(), std::move(sides)});
  LinkEnds ends(links);
  std::vector<JoinedCurve> joined;
  for (Link& link : links) {
    if (std::exchange(link.isUsed, true)) continue;
    std::vector<const Link*> used{&link};
    Sides sides = link.sides;
    const auto isClosed = [&] { return ends.areOne(sides.front().start, sides.back().end); };
    // First onward from its end, then, turned round, onward from its start.
    for (int turn = 0; turn < 2; ++turn) {
      while (!isClosed()) {
        const Link* const next = ends.takeFrom(sides.back().end);
        if (!next) break;
        sides.insert(sides.end(), next->sides.begin(), next->sides.end());
        used.push_back(next);
      }
      turnRound(sides);
    }
    if (used.size() < 2) continue;
    std::ranges::sort(used, {}, &Link::place);
    const OdDbPolylinePtr polyline = polylineAlong(sides, isClosed());
    const OdDbEntityPtr first = used.front()->id.openAs<OdDbEntity>();
    polyline->setPropertiesFrom(*first);
    polyline->setThickness(thicknessOf(*first).value_or(0));
    JoinedCurve& made = joined.emplace_back();
    made.curve = polyline;
    for (const Link* const one : used) made.from.push_back(one->id);
  }
  return joined;
}

} // namespace drafton
