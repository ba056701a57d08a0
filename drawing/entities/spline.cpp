#include "drawing/entities/spline.h"

#include "drawing/checks.h"
#include "drawing/entities/smooth_offset.h"
#include "drawing/graphics/world_draw.h"

#include <algorithm>

namespace {
constexpr int kClosed = 1, kPeriodic = 2, kRational = 4, kPlanar = 8;

/// The normal of the plane that all points lie in; nothing if there is none, the z axis for those
/// on a line that lies flat.
OdGeVector3d planeOf(const std::vector<OdGePoint3d>& points) {
  OdGeVector3d best;
  double size = 0;
  for (const OdGePoint3d& p : points) size = std::max(size, p.distanceTo(points.front()));
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    const OdGeVector3d n =
        (points[i] - points.front()).crossProduct(points[i + 1] - points.front());
    if (n.lengthSqrd() > best.lengthSqrd()) best = n;
  }
  OdGeVector3d normal = best.length() > 1e-12 * size * size ? best.normal() : OdGeVector3d::zAxis();
  if (normal.z < 0) normal = -normal;
  for (const OdGePoint3d& p : points)
    if (std::abs(normal.dotProduct(p - points.front())) > 1e-6 * size) return {};
  return normal;
}
} // namespace

OdDbSpline::OdDbSpline() = default;

OdDbSpline::OdDbSpline(const std::vector<OdGePoint3d>& fitPoints, const OdGeVector3d& startTangent,
                       const OdGeVector3d& endTangent) {
  setFitData(fitPoints, startTangent, endTangent);
}

OdDbSpline::OdDbSpline(int degree, const std::vector<OdGePoint3d>& controlPoints,
                       const std::vector<double>& knots, const std::vector<double>& weights) {
  setNurbsData(degree, controlPoints, knots, weights);
}

void OdDbSpline::assignFrom(const OdDbObject& other) {
  OdDbCurve::assignFrom(other);
  m_spline = static_cast<const OdDbSpline&>(other).m_spline;
  m_curveMade = false;
}

const OdGeNurbs& OdDbSpline::curve() const {
  if (m_curveMade) return m_curve;
  m_curve = {m_spline.degree, m_spline.controlPoints, m_spline.knots, m_spline.weights};
  if (!m_curve.isValid())
    m_curve = OdGeNurbs::through(m_spline.fitPoints, m_spline.startTangent, m_spline.endTangent,
                                 m_spline.flags & kClosed);
  m_curveMade = true;
  return m_curve;
}

void OdDbSpline::changed() { m_curveMade = false; }

bool OdDbSpline::isPeriodic() const { return m_spline.flags & kPeriodic; }

void OdDbSpline::setNurbsData(int degree, const std::vector<OdGePoint3d>& controlPoints,
                              const std::vector<double>& knots,
                              const std::vector<double>& weights) {
  const OdGeNurbs wanted{degree, controlPoints, knots, weights};
  if (!wanted.isValid())
    throw OdError(eInvalidInput,
                  QStringLiteral("%1 control points, %2 knots and %3 weights make no spline of "
                                 "degree %4")
                      .arg(controlPoints.size())
                      .arg(knots.size())
                      .arg(weights.size())
                      .arg(degree));
  assertWriteEnabled();
  m_spline.degree = degree;
  m_spline.controlPoints = controlPoints;
  m_spline.knots = knots;
  m_spline.weights = weights;
  m_spline.fitPoints.clear();
  m_spline.startTangent = m_spline.endTangent = {};
  const OdGeVector3d normal = planeOf(controlPoints);
  m_spline.flags = (weights.empty() ? 0 : kRational) | (wanted.isClosed() ? kClosed : 0) |
                   (normal.isZeroLength() ? 0 : kPlanar);
  if (!normal.isZeroLength()) m_spline.normal = normal;
  changed();
}

void OdDbSpline::setFitData(const std::vector<OdGePoint3d>& fitPoints,
                            const OdGeVector3d& startTangent, const OdGeVector3d& endTangent) {
  for (const OdGePoint3d& p : fitPoints) odcheck::finite(p);
  const OdGeNurbs made = OdGeNurbs::through(fitPoints, startTangent, endTangent);
  if (!made.isValid())
    throw OdError(eInvalidInput, QStringLiteral("A spline has to pass at least two places"));
  setNurbsData(made.degree, made.points, made.knots);
  m_spline.fitPoints = fitPoints;
  m_spline.startTangent = startTangent;
  m_spline.endTangent = endTangent;
}

void OdDbSpline::setControlPointAt(unsigned index, const OdGePoint3d& point) {
  if (index >= numControlPoints()) throw OdError_InvalidIndex(index, numControlPoints());
  odcheck::finite(point);
  std::vector<OdGePoint3d> points = m_spline.controlPoints;
  points[index] = point;
  setNurbsData(m_spline.degree, points, m_spline.knots, m_spline.weights);
}

bool OdDbSpline::isClosed() const {
  return (m_spline.flags & kClosed) || (curve().isValid() && curve().isClosed());
}

double OdDbSpline::getStartParam() const { return curve().isValid() ? curve().start() : 0; }
double OdDbSpline::getEndParam() const { return curve().isValid() ? curve().end() : 0; }

OdGePoint3d OdDbSpline::getPointAtParam(double param) const {
  if (!curve().isValid()) throw OdError(eInvalidInput, QStringLiteral("The spline has no shape"));
  return curve().pointAt(checkedParam(param));
}

OdGeVector3d OdDbSpline::getFirstDeriv(double param) const {
  if (!curve().isValid()) throw OdError(eInvalidInput, QStringLiteral("The spline has no shape"));
  return curve().derivAt(checkedParam(param));
}

void OdDbSpline::appendSegments(OdGeCurveSegments& segments, double deviation) const {
  if (!curve().isValid()) return;
  if (deviation <= 0) {
    OdGeExtents3d box;
    for (const OdGePoint3d& p : curve().points) box.addPoint(p);
    deviation = 1e-4 * (box.maxPoint() - box.minPoint()).length();
  }
  std::vector<OdGePoint3d> points;
  curve().appendChords(deviation, points);
  for (std::size_t i = 0; i + 1 < points.size(); ++i)
    segments.push_back(OdGeCurveSegment::line(points[i], points[i + 1]));
}

OdGePoint3d OdDbSpline::getClosestPointTo(const OdGePoint3d& point, double* param) const {
  if (!curve().isValid()) throw OdError(eInvalidInput, QStringLiteral("The spline has no shape"));
  const double t = curve().closestTo(point);
  if (param) *param = t;
  return curve().pointAt(t);
}

double OdDbSpline::getDistAtParam(double param) const {
  if (!curve().isValid()) return 0;
  return curve().lengthBetween(curve().start(), std::clamp(param, curve().start(), curve().end()));
}

double OdDbSpline::getParamAtDist(double distance) const {
  const OdGeNurbs& c = curve();
  if (!c.isValid()) return 0;
  double low = c.start();
  double left = std::max(distance, 0.0);
  // First the span, then the place in it.
  for (const double b : c.breaks()) {
    const double length = c.lengthBetween(low, b);
    if (left > length) {
      left -= length;
      low = b;
      continue;
    }
    if (length == 0) continue;
    double a = low;
    double high = b;
    for (int i = 0; i < 60 && high - a > 1e-14 * (1 + std::abs(high)); ++i) {
      const double middle = (a + high) / 2;
      (c.lengthBetween(low, middle) < left ? a : high) = middle;
    }
    return (a + high) / 2;
  }
  return c.end();
}

bool OdDbSpline::getSplitCurves(const std::vector<double>& params,
                                std::vector<OdDbEntityPtr>& pieces) const {
  if (!curve().isValid()) return false;
  double from = curve().start();
  for (std::size_t i = 0; i <= params.size(); ++i) {
    const double to = i < params.size() ? checkedParam(params[i]) : curve().end();
    if (to > from) {
      const OdGeNurbs part = curve().between(from, to);
      const OdDbSplinePtr piece = clone();
      piece->setNurbsData(part.degree, part.points, part.knots, part.weights);
      pieces.push_back(piece);
    }
    from = to;
  }
  return true;
}

std::vector<OdDbEntityPtr> OdDbSpline::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  if (!curve().isValid()) return {};
  OdDbSmoothCurve smooth;
  smooth.start = curve().start();
  smooth.end = curve().end();
  smooth.closed = isClosed();
  smooth.normal = planeOf(curve().points);
  if (smooth.normal.isZeroLength()) return {};
  smooth.at = [this](double t, OdGeVector3d& first, OdGeVector3d& second) {
    first = curve().derivAt(t, &second);
    return curve().pointAt(t);
  };
  return oddbOffset(smooth, distance, *this);
}

bool OdDbSpline::reverseCurve() {
  if (!curve().isValid()) return false;
  assertWriteEnabled();
  Data turned = m_spline;
  const OdGeNurbs r = curve().reversed();
  turned.controlPoints = r.points;
  turned.knots = r.knots;
  turned.weights = r.weights;
  turned.degree = r.degree;
  std::reverse(turned.fitPoints.begin(), turned.fitPoints.end());
  turned.startTangent = -m_spline.endTangent;
  turned.endTangent = -m_spline.startTangent;
  m_spline = turned;
  changed();
  return true;
}

void OdDbSpline::worldDraw(OdGiWorldDraw& draw) const {
  if (!curve().isValid()) return;
  std::vector<OdGePoint3d> points;
  curve().appendChords(draw.deviation(), points);
  draw.polyline(points, false);
}

bool OdDbSpline::getGeomExtents(OdGeExtents3d& extents) const {
  extents = {};
  if (!curve().isValid()) return false;
  extents = curve().extents();
  return true;
}

bool OdDbSpline::transformBy(const OdGeMatrix3d& transform) {
  Data moved = m_spline;
  bool finite = true;
  for (auto* points : {&moved.controlPoints, &moved.fitPoints})
    for (OdGePoint3d& p : *points) {
      p = transform * p;
      finite = finite && odgeIsFinite(p);
    }
  moved.startTangent = transform * m_spline.startTangent;
  moved.endTangent = transform * m_spline.endTangent;
  // The image of a plane's normal is no normal of the plane's image under unequal scales.
  const OdGeMatrix3d plane = transform * OdGeMatrix3d::planeToWorld(m_spline.normal);
  const OdGeVector3d n =
      (plane * OdGeVector3d::xAxis()).crossProduct(plane * OdGeVector3d::yAxis());
  if (!finite || !odcheck::areFinite(moved.startTangent, moved.endTangent, n)) return false;
  if (!n.isZeroLength())
    moved.normal = n.dotProduct(plane * OdGeVector3d::zAxis()) < 0 ? -n.normal() : n.normal();
  assertWriteEnabled();
  m_spline = moved;
  changed();
  return true;
}
