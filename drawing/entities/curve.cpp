#include "drawing/entities/curve.h"

#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/graphics/world_draw.h"

namespace {

/// Where a parameter lies among pieces that share the range of parameters evenly.
struct Place {
  std::size_t segment;
  double part;

  Place(double param, double first, double last, std::size_t count)
    : segment(0)
    , part(0) {
    if (!(last > first)) return;
    const double at =
        std::clamp((param - first) / (last - first), 0.0, 1.0) * static_cast<double>(count);
    segment = std::min(static_cast<std::size_t>(at), count - 1);
    part = at - static_cast<double>(segment);
  }
};

double paramAt(std::size_t segment, double part, const OdDbCurve& curve, std::size_t count) {
  const double first = curve.getStartParam();
  return first + (curve.getEndParam() - first) * (static_cast<double>(segment) + part) /
                     static_cast<double>(count);
}

OdGeVector3d sweptArea(const OdGeCurveSegment& s, const OdGePoint3d& origin) {
  const OdGeVector3d fromTo = (s.start - origin).crossProduct(s.end - origin);
  if (s.isLine()) return fromTo * 0.5;
  const OdGeVector3d around = s.u.crossProduct(s.v) * s.sweep;
  return ((s.center - origin).crossProduct(s.end - s.start) + around) * 0.5;
}

void show(const OdGeCurveSegment& s, OdGiWorldDraw& draw) {
  if (!s.isLine()) return draw.arc({s.center, s.u, s.v, s.from, s.sweep});
  const OdGePoint3d ends[] = {s.start, s.end};
  draw.polyline(ends, false);
}

void appendChords(const OdGeCurveSegment& s, double deviation, std::vector<OdGePoint3d>& points) {
  if (!points.empty()) points.pop_back();
  if (s.isLine()) {
    points.push_back(s.start);
    points.push_back(s.end);
  } else {
    odgi::appendChords({s.center, s.u, s.v, s.from, s.sweep}, deviation, points);
  }
}

} // namespace

OdDbCurve::OdDbCurve() = default;

OdGeCurveSegments OdDbCurve::segments(double deviation) const {
  OdGeCurveSegments all;
  appendSegments(all, deviation);
  return all;
}

bool OdDbCurve::hasShape() const { return !segments().empty(); }

double OdDbCurve::length() const {
  double sum = 0;
  for (const OdGeCurveSegment& s : segments()) sum += s.length();
  return sum;
}

OdGePoint3d OdDbCurve::getClosestPointTo(const OdGePoint3d& point, double* param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty())
    throw OdError(eInvalidInput, QStringLiteral("%1 has no shape").arg(QLatin1String(dxfName())));
  std::size_t best = 0;
  double bestPart = 0;
  double bestDistance = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < all.size(); ++i) {
    const double part = all[i].closestTo(point);
    const double distance = all[i].pointAt(part).distanceTo(point);
    if (!(distance < bestDistance)) continue;
    best = i;
    bestPart = part;
    bestDistance = distance;
  }
  if (param) *param = paramAt(best, bestPart, *this, all.size());
  return all[best].pointAt(bestPart);
}

double OdDbCurve::getDistAtParam(double param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) return 0;
  const Place place(param, getStartParam(), getEndParam(), all.size());
  double sum = 0;
  for (std::size_t i = 0; i < place.segment; ++i) sum += all[i].length();
  return sum + all[place.segment].lengthTo(place.part);
}

double OdDbCurve::getParamAtDist(double distance) const {
  const OdGeCurveSegments all = segments();
  double left = std::max(distance, 0.0);
  for (std::size_t i = 0; i < all.size(); ++i) {
    const double length = all[i].length();
    if (left <= length) return paramAt(i, all[i].partAtLength(left), *this, all.size());
    left -= length;
  }
  return getEndParam();
}

bool OdDbCurve::getSplitCurves(const std::vector<double>&, std::vector<OdDbEntityPtr>&) const {
  return false;
}

double OdDbCurve::getArea() const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) return 0;
  const OdGePoint3d origin = all.front().start;
  OdGeVector3d area;
  OdGeExtents3d box;
  for (const OdGeCurveSegment& s : all) {
    area = area + sweptArea(s, origin);
    box.addExt(s.extents());
  }
  area = area + sweptArea(OdGeCurveSegment::line(all.back().end, origin), origin);
  const OdGeVector3d normal = area.normal();
  const double slack = 1e-6 * (box.maxPoint() - box.minPoint()).length();
  for (const OdGeCurveSegment& s : all)
    for (const double part : {0.0, 0.3, 0.7})
      if (std::abs(normal.dotProduct(s.pointAt(part) - origin)) > slack) return 0;
  return area.length();
}

bool OdDbCurve::mayHaveDashes() const {
  if (!database()) return true;
  OdDbObjectId id = linetypeId();
  if (id == database()->getLinetypeContinuousId()) return false;
  if (id.isNull() || id == database()->getLinetypeByLayerId()) {
    const auto layer = odrxCast<OdDbLayerTableRecord>(layerId().openObject().get());
    if (!layer) return true;
    id = layer->linetypeObjectId();
  }
  const auto linetype = odrxCast<OdDbLinetypeTableRecord>(id.openObject().get());
  return !linetype || id == database()->getLinetypeByBlockId() || linetype->numDashes() > 0;
}

void OdDbCurve::worldDraw(OdGiWorldDraw& draw) const {
  const OdGeCurveSegments all = segments(draw.deviation());
  if (all.empty()) return;
  const OdGeMatrix3d up = OdGeMatrix3d::translation(rise());
  const bool isThick = !rise().isZeroLength();
  const auto both = [&](const OdGeCurveSegment& s) {
    show(s, draw);
    if (isThick) show(s.transformed(up), draw);
  };
  if (all.size() == 1) {
    both(all.front());
  } else if (dashesRunThrough() || !mayHaveDashes()) {
    std::vector<OdGePoint3d> points;
    for (const OdGeCurveSegment& s : all) appendChords(s, draw.deviation(), points);
    const bool closed = isClosed();
    if (closed) points.pop_back();
    draw.polyline(points, closed);
    if (isThick) {
      for (OdGePoint3d& p : points) p = p + rise();
      draw.polyline(points, closed);
    }
  } else {
    for (const OdGeCurveSegment& s : all) both(s);
  }
  if (!isThick) return;
  const auto post = [&](const OdGePoint3d& foot) {
    const OdGePoint3d ends[] = {foot, foot + rise()};
    draw.polyline(ends, false);
  };
  for (const OdGeCurveSegment& s : all) post(s.start);
  if (!isClosed()) post(all.back().end);
}

bool OdDbCurve::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  for (const OdGeCurveSegment& s : segments()) extents.addExt(s.extents());
  if (extents.isEmpty()) return false;
  if (const OdGeVector3d up = rise(); !up.isZeroLength()) {
    const OdGeExtents3d base = extents;
    extents.addPoint(base.minPoint() + up);
    extents.addPoint(base.maxPoint() + up);
  }
  return true;
}

double OdDbCurve::checkedParam(double param) const {
  const double first = getStartParam();
  const double last = getEndParam();
  const double slack = 1e-9 * (1 + std::abs(first) + std::abs(last));
  if (!(param >= first - slack && param <= last + slack))
    throw OdError(eInvalidInput, QStringLiteral("The parameter %1 is outside of the curve, which "
                                                "runs from %2 to %3")
                                     .arg(param)
                                     .arg(first)
                                     .arg(last));
  return std::clamp(param, first, last);
}
