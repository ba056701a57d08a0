#include "drafton/engine/grips.h"

#include "drafton/engine/commands/arc_path.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/line.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/point.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

#include <cmath>

namespace drafton {
namespace {

/// The number of the grip that moves all of an entity.
constexpr int kWhole = 0;

template <class T>
const T& as(const OdDbEntity& entity) {
  return static_cast<const T&>(entity);
}
template <class T>
T& as(OdDbEntity& entity) {
  return static_cast<T&>(entity);
}

bool liesFlat(const OdGeVector3d& normal) { return normal.x == 0 && normal.y == 0 && normal.z > 0; }

std::vector<Grip> lineGrips(const OdDbEntity& entity) {
  const auto& line = as<OdDbLine>(entity);
  const OdGePoint3d a = line.startPoint(), b = line.endPoint();
  return {
      {{(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2}, kWhole}, {a, 1, true}, {b, 2, true}};
}

bool stretchLine(OdDbEntity& entity, int number, const OdGePoint3d& to) {
  number == 1 ? as<OdDbLine>(entity).setStartPoint(to) : as<OdDbLine>(entity).setEndPoint(to);
  return true;
}

std::vector<Grip> circleGrips(const OdDbEntity& entity) {
  const auto& circle = as<OdDbCircle>(entity);
  const OdGePoint3d c = circle.center();
  std::vector<Grip> grips{{c, kWhole}};
  if (!liesFlat(circle.normal())) return grips;
  const double r = circle.radius();
  grips.insert(grips.end(), {{{c.x + r, c.y, c.z}, 1},
                             {{c.x, c.y + r, c.z}, 2},
                             {{c.x - r, c.y, c.z}, 3},
                             {{c.x, c.y - r, c.z}, 4}});
  return grips;
}

bool stretchCircle(OdDbEntity& entity, int, const OdGePoint3d& to) {
  auto& circle = as<OdDbCircle>(entity);
  const double radius = std::hypot(to.x - circle.center().x, to.y - circle.center().y);
  if (!(radius > 0)) return false;
  circle.setRadius(radius);
  return true;
}

OdGePoint3d middleOf(const OdDbArc& arc) {
  return arc.getPointAtParam((arc.getStartParam() + arc.getEndParam()) / 2);
}

std::vector<Grip> arcGrips(const OdDbEntity& entity) {
  const auto& arc = as<OdDbArc>(entity);
  std::vector<Grip> grips{{arc.center(), kWhole}};
  if (liesFlat(arc.normal()))
    grips.insert(grips.end(),
                 {{arc.startPoint(), 1, true}, {arc.endPoint(), 2, true}, {middleOf(arc), 3}});
  return grips;
}

/// Through the two other grips and the new place.
bool stretchArc(OdDbEntity& entity, int number, const OdGePoint3d& to) {
  auto& arc = as<OdDbArc>(entity);
  OdGePoint3d points[] = {arc.startPoint(), arc.endPoint(), middleOf(arc)};
  points[number - 1] = to;
  const auto path = arcThrough(points[0], points[2], points[1]);
  const auto shape = path ? circularArcOf(*path) : std::nullopt;
  if (!shape) return false;
  arc.setCenter({shape->center.x, shape->center.y, arc.center().z});
  arc.setRadius(shape->radius);
  arc.setStartAngle(shape->startAngle);
  arc.setEndAngle(shape->endAngle);
  return true;
}

std::vector<Grip> polylineGrips(const OdDbEntity& entity) {
  const auto& polyline = as<OdDbPolyline>(entity);
  std::vector<Grip> grips;
  if (!liesFlat(polyline.normal())) return grips;
  for (unsigned i = 0; i < polyline.numVerts(); ++i)
    grips.push_back({polyline.worldPointAt(i), static_cast<int>(i) + 1, true});
  return grips;
}

bool stretchPolyline(OdDbEntity& entity, int number, const OdGePoint3d& to) {
  as<OdDbPolyline>(entity).setPointAt(static_cast<unsigned>(number - 1), {to.x, to.y});
  return true;
}

std::vector<Grip> dimensionGrips(const OdDbEntity& entity) {
  const auto& dimension = as<OdDbAlignedDimension>(entity);
  return {{dimension.xLine1Point(), 1, true},
          {dimension.xLine2Point(), 2, true},
          {dimension.dimLinePoint(), 3, true}};
}

bool stretchDimension(OdDbEntity& entity, int number, const OdGePoint3d& to) {
  auto& dimension = as<OdDbAlignedDimension>(entity);
  if (number == 1) dimension.setXLine1Point(to);
  if (number == 2) dimension.setXLine2Point(to);
  if (number == 3) dimension.setDimLinePoint(to);
  // Without a drawing it has no block of its own.
  return !dimension.database() || dimension.recomputeDimBlock();
}

template <class T>
std::vector<Grip> atPosition(const OdDbEntity& entity) {
  return {{as<T>(entity).position(), kWhole}};
}

/// How the grips of one kind of entity are found and moved.
struct Row {
  OdRxClass* (*kind)();
  std::vector<Grip> (*grips)(const OdDbEntity& entity);
  bool (*stretch)(OdDbEntity& entity, int number, const OdGePoint3d& to);
};

const Row kRows[] = {
    {OdDbLine::desc, lineGrips, stretchLine},
    {OdDbCircle::desc, circleGrips, stretchCircle},
    {OdDbArc::desc, arcGrips, stretchArc},
    {OdDbPolyline::desc, polylineGrips, stretchPolyline},
    {OdDbAlignedDimension::desc, dimensionGrips, stretchDimension},
    {OdDbBlockReference::desc, atPosition<OdDbBlockReference>, nullptr},
    {OdDbText::desc, atPosition<OdDbText>, nullptr},
    {OdDbPoint::desc, atPosition<OdDbPoint>, nullptr},
    {OdDbMText::desc,
     [](const OdDbEntity& entity) -> std::vector<Grip> {
       return {{as<OdDbMText>(entity).location(), kWhole}};
     },
     nullptr},
};

const Row* rowOf(const OdDbEntity& entity) {
  for (const Row& row : kRows)
    if (entity.isKindOf(row.kind())) return &row;
  return nullptr;
}

} // namespace

std::vector<Grip> gripsOf(const OdDbEntity& entity) {
  const Row* const row = rowOf(entity);
  return row ? row->grips(entity) : std::vector<Grip>();
}

bool moveGrip(OdDbEntity& entity, int number, const OdGePoint3d& to) {
  const Row* const row = rowOf(entity);
  if (!row) return false;
  if (number != kWhole) return row->stretch && row->stretch(entity, number, to);
  for (const Grip& grip : row->grips(entity))
    if (grip.number == kWhole) return entity.transformBy(OdGeMatrix3d::translation(to - grip.at));
  return false;
}

} // namespace drafton
