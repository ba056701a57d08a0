#include "drafton/engine/commands/joined_curves.h"

#include "drafton/engine/commands/entity_thickness.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <ranges>
#include <utility>

namespace drafton {
namespace {

/// Places that differ by less, measured by how large things are, are one.
constexpr double kNear = 1e-8;
/// Ends that differ by less, measured by the largest coordinate, touch: what numbers lose on their
/// way through calculations and files, and no gap that somebody has drawn.
constexpr double kTouching = 1e-11;

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
    double largest = 0;
    for (const Link& link : links)
      for (const OdGePoint3d& end : {link.sides.front().start, link.sides.back().end})
        largest = std::max({largest, std::abs(end.x), std::abs(end.y), std::abs(end.z)});
    m_near = kTouching * largest;
    for (Link& link : links) {
      m_ends.emplace(cellOf(link.sides.front().start), &link);
      m_ends.emplace(cellOf(link.sides.back().end), &link);
    }
  }

  bool areOne(const OdGePoint3d& a, const OdGePoint3d& b) const {
    return a.distanceTo(b) <= m_near;
  }
  /// One that is not used yet and begins or ends at a point, turned so that it begins there.
  Link* takeFrom(const OdGePoint3d& point) {
    const Cell middle = cellOf(point);
    for (std::int64_t x = middle.first - 1; x <= middle.first + 1; ++x)
      for (std::int64_t y = middle.second - 1; y <= middle.second + 1; ++y)
        if (Link* const link = takeFrom({x, y}, point)) return link;
    return nullptr;
  }

 private:
  using Cell = std::pair<std::int64_t, std::int64_t>;

  /// Of a grid so wide that points which are one lie in the same cell or in neighbours.
  Cell cellOf(const OdGePoint3d& point) const {
    const auto across = [&](double value) {
      return m_near > 0 ? static_cast<std::int64_t>(std::floor(value / (2 * m_near))) : 0;
    };
    return {across(point.x), across(point.y)};
  }
  Link* takeFrom(const Cell& cell, const OdGePoint3d& point) {
    const auto [first, last] = m_ends.equal_range(cell);
    for (auto at = first; at != last;) {
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

  std::multimap<Cell, Link*> m_ends;
  double m_near = 0;
};

/// Angles from the start of the first of several arcs.
struct Reach {
  double from, to;
};

/// Of arcs that are joined counterclockwise from the first, over the gaps between them. What runs
/// into the first from before its start is joined in front of it.
Reach joinedReach(std::vector<Reach> reaches) {
  constexpr double kRound = 2 * kOdaPi;
  std::ranges::sort(reaches, std::greater(), &Reach::to);
  Reach whole{kRound, 0};
  for (const Reach& reach : reaches) {
    if (reach.to >= whole.from - kNear)
      whole.from = std::min(whole.from, reach.from);
    else
      whole.to = std::max(whole.to, reach.to);
    whole.to = std::max(whole.to, reach.to - kRound);
  }
  return {whole.from - kRound, std::min(whole.to, whole.from)};
}

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
  std::vector<Reach> reaches;
  for (const OdDbArcPtr& arc : arcs) {
    if (arc->center().distanceTo(first->center()) > kNear * radius ||
        std::abs(arc->radius() - radius) > kNear * radius ||
        (arc->normal() - first->normal()).length() > kNear)
      return std::nullopt;
    double from = odgeNormalAngle(arc->startAngle() - start);
    if (2 * kOdaPi - from <= kNear) from = 0;
    reaches.push_back({from, from + odgeNormalAngle(arc->endAngle() - arc->startAngle())});
  }
  const Reach whole = joinedReach(std::move(reaches));
  if (whole.to - whole.from >= 2 * kOdaPi - kNear) {
    const auto circle = odrxMake<OdDbCircle>(first->center(), first->normal(), radius);
    circle->setThickness(first->thickness());
    circle->setPropertiesFrom(*first);
    return JoinedCurve{circle, curves};
  }
  const OdDbArcPtr joined = first->clone();
  joined->setStartAngle(odgeNormalAngle(start + whole.from));
  joined->setEndAngle(odgeNormalAngle(start + whole.to));
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
