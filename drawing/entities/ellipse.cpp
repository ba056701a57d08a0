#include "drawing/entities/ellipse.h"

#include "drawing/checks.h"
#include "drawing/entities/plane_transform.h"
#include "drawing/entities/smooth_offset.h"
#include "drawing/geometry/start_angle.h"

namespace {
/// An ellipse that is flatter has no area that anyone could see.
constexpr double kSmallestRatio = 1e-9;

void requireRatio(double ratio) {
  odcheck::positive(ratio);
  if (ratio > 1) throw OdError(eInvalidInput, QStringLiteral("The ratio %1 is above 1").arg(ratio));
}
} // namespace

OdDbEllipse::OdDbEllipse() = default;

OdDbEllipse::OdDbEllipse(const OdGePoint3d& center, const OdGeVector3d& normal,
                         const OdGeVector3d& majorAxis, double radiusRatio, double startParam,
                         double endParam) {
  set(center, normal, majorAxis, radiusRatio, startParam, endParam);
}

void OdDbEllipse::assignFrom(const OdDbObject& other) {
  OdDbCurve::assignFrom(other);
  m_ellipse = static_cast<const OdDbEllipse&>(other).m_ellipse;
}

void OdDbEllipse::set(const OdGePoint3d& center, const OdGeVector3d& normal,
                      const OdGeVector3d& majorAxis, double radiusRatio, double startParam,
                      double endParam) {
  odcheck::finite(center);
  const OdGeVector3d n = odcheck::direction(normal);
  odcheck::positive(majorAxis.length());
  if (std::abs(n.dotProduct(majorAxis)) > 1e-6 * majorAxis.length())
    throw OdError(eInvalidInput, QStringLiteral("The axis does not stand on the normal"));
  requireRatio(radiusRatio);
  odcheck::finite(startParam);
  odcheck::finite(endParam);
  assertWriteEnabled();
  m_ellipse = {center, majorAxis, n, radiusRatio, startParam, endParam};
}

OdDbEllipsePtr OdDbEllipse::fromConjugates(const OdGePoint3d& center, const OdGeVector3d& u,
                                           const OdGeVector3d& v, double from, double sweep) {
  // The axes are where the two directions of the turned frame stand on each other.
  const double turn = std::atan2(2 * u.dotProduct(v), u.lengthSqrd() - v.lengthSqrd()) / 2;
  OdGeVector3d major = u * std::cos(turn) + v * std::sin(turn);
  OdGeVector3d minor = v * std::cos(turn) - u * std::sin(turn);
  double start = (sweep < 0 ? from + sweep : from) - turn;
  double end = start + std::abs(sweep);
  OdGeVector3d normal = major.crossProduct(minor);
  if (!odcheck::areFinite(center, normal) || !(minor.length() > kSmallestRatio * major.length()))
    return {};
  normal = normal.normal();
  // Seen from above where the plane lies flat.
  if (normal.z < -1 + 1e-12) {
    normal = -normal;
    minor = -minor;
    start = std::exchange(end, -start);
    start = -start;
  }
  const bool full = std::abs(sweep) >= 2 * kOdaPi * (1 - 1e-12);
  const auto ellipse = odrxMake<OdDbEllipse>();
  ellipse->m_ellipse = {center,
                        major,
                        normal,
                        std::min(minor.length() / major.length(), 1.0),
                        full ? 0 : odgeNormalAngle(start),
                        full ? 2 * kOdaPi : odgeNormalAngle(end)};
  if (!full && ellipse->m_ellipse.endParam <= ellipse->m_ellipse.startParam)
    ellipse->m_ellipse.endParam += 2 * kOdaPi;
  return ellipse;
}

void OdDbEllipse::setCenter(const OdGePoint3d& center) {
  odcheck::finite(center);
  assertWriteEnabled();
  m_ellipse.center = center;
}

OdGeVector3d OdDbEllipse::minorAxis() const {
  return m_ellipse.normal.crossProduct(m_ellipse.majorAxis) * m_ellipse.ratio;
}

void OdDbEllipse::setRadiusRatio(double ratio) {
  requireRatio(ratio);
  assertWriteEnabled();
  m_ellipse.ratio = ratio;
}

void OdDbEllipse::setStartParam(double param) {
  odcheck::finite(param);
  assertWriteEnabled();
  m_ellipse.startParam = param;
}

void OdDbEllipse::setEndParam(double param) {
  odcheck::finite(param);
  assertWriteEnabled();
  m_ellipse.endParam = param;
}

double OdDbEllipse::getStartParam() const { return odgeStartAngle(m_ellipse.startParam); }

double OdDbEllipse::getEndParam() const {
  const double sweep = odgeNormalAngle(odgeStartAngle(m_ellipse.endParam) - getStartParam());
  // A full turn may miss itself by the last digits of a file.
  const bool full = sweep < 1e-9 || sweep > 2 * kOdaPi - 1e-9;
  return getStartParam() + (full ? 2 * kOdaPi : sweep);
}

bool OdDbEllipse::isClosed() const { return getEndParam() - getStartParam() == 2 * kOdaPi; }

OdGePoint3d OdDbEllipse::getPointAtParam(double param) const {
  const double t = isClosed() ? param : checkedParam(param);
  odcheck::finite(t);
  return m_ellipse.center + m_ellipse.majorAxis * std::cos(t) + minorAxis() * std::sin(t);
}

OdGeVector3d OdDbEllipse::getFirstDeriv(double param) const {
  const double t = isClosed() ? param : checkedParam(param);
  odcheck::finite(t);
  return minorAxis() * std::cos(t) - m_ellipse.majorAxis * std::sin(t);
}

void OdDbEllipse::appendSegments(OdGeCurveSegments& segments, double) const {
  segments.push_back(OdGeCurveSegment::arc(m_ellipse.center, m_ellipse.majorAxis, minorAxis(),
                                           getStartParam(), getEndParam() - getStartParam()));
}

std::vector<OdDbEntityPtr> OdDbEllipse::getOffsetCurves(double distance) const {
  odcheck::finite(distance);
  const OdGeVector3d u = majorAxis();
  const OdGeVector3d v = minorAxis();
  OdDbSmoothCurve curve;
  curve.start = getStartParam();
  curve.end = getEndParam();
  curve.closed = isClosed();
  curve.normal = normal();
  curve.at = [this, u, v](double t, OdGeVector3d& first, OdGeVector3d& second) {
    first = v * std::cos(t) - u * std::sin(t);
    second = u * -std::cos(t) - v * std::sin(t);
    return center() + u * std::cos(t) + v * std::sin(t);
  };
  return oddbOffset(curve, distance, *this);
}

bool OdDbEllipse::getSplitCurves(const std::vector<double>& params,
                                 std::vector<OdDbEntityPtr>& pieces) const {
  if (isClosed() && params.empty()) return false;
  std::vector<double> bounds(params);
  if (isClosed()) {
    bounds.push_back(bounds.front() + 2 * kOdaPi);
  } else {
    for (double& p : bounds) p = checkedParam(p);
    bounds.insert(bounds.begin(), getStartParam());
    bounds.push_back(getEndParam());
  }
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
    if (!(bounds[i + 1] > bounds[i])) continue;
    const OdDbEllipsePtr piece = clone();
    piece->m_ellipse.startParam = bounds[i];
    piece->m_ellipse.endParam = bounds[i + 1];
    pieces.push_back(piece);
  }
  return true;
}

namespace {

/// The same ellipse, run through the other way.
void turnRound(OdDbEllipse::Data& ellipse, bool isClosed) {
  ellipse.normal = {0 - ellipse.normal.x, 0 - ellipse.normal.y, 0 - ellipse.normal.z};
  if (isClosed) return;
  const double start = odgeNormalAngle(0 - ellipse.endParam);
  ellipse.endParam = odgeNormalAngle(0 - ellipse.startParam);
  if (ellipse.endParam <= start) ellipse.endParam += 2 * kOdaPi;
  ellipse.startParam = start;
}

/// An ellipse that keeps its shape keeps the words that tell of it, too: only a mirror turns the
/// sense of its parameter. The side from which it is seen stays.
bool moveAlike(OdDbEllipse::Data& ellipse, const OdGeMatrix3d& transform, bool isClosed) {
  ellipse.center = transform * ellipse.center;
  if (odgeIsShift(transform)) return odcheck::isFinite(ellipse.center);
  const OdGePlaneImage plane(transform, ellipse.normal);
  ellipse.majorAxis = transform * ellipse.majorAxis;
  ellipse.normal = plane.mirrors ? -plane.normal : plane.normal;
  if (plane.mirrors) turnRound(ellipse, isClosed);
  return plane.valid && odcheck::areFinite(ellipse.center, ellipse.majorAxis);
}

} // namespace

bool OdDbEllipse::transformBy(const OdGeMatrix3d& transform) {
  Data data = m_ellipse;
  if (transform.isUniScaledOrtho()) {
    if (!moveAlike(data, transform, isClosed())) return false;
  } else {
    const OdDbEllipsePtr moved =
        fromConjugates(transform * m_ellipse.center, transform * m_ellipse.majorAxis,
                       transform * minorAxis(), getStartParam(), getEndParam() - getStartParam());
    if (!moved) return false;
    data = moved->m_ellipse;
    const OdGePlaneImage plane(transform, m_ellipse.normal);
    if (data.normal.dotProduct(plane.normal) < 0) turnRound(data, moved->isClosed());
  }
  assertWriteEnabled();
  m_ellipse = data;
  return true;
}
