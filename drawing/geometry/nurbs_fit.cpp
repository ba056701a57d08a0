// Splines through points.
#include "drawing/geometry/nurbs.h"

#include <algorithm>

namespace {

/// Solves rows of three diagonals; `right` becomes the solution.
void solve(std::vector<double>& low, std::vector<double>& middle, std::vector<double>& high,
           std::vector<OdGeVector3d>& right) {
  const std::size_t n = middle.size();
  for (std::size_t i = 1; i < n; ++i) {
    const double f = low[i] / middle[i - 1];
    middle[i] -= f * high[i - 1];
    right[i] = right[i] - right[i - 1] * f;
  }
  right[n - 1] = right[n - 1] * (1 / middle[n - 1]);
  for (std::size_t i = n - 1; i-- > 0;)
    right[i] = (right[i] - right[i + 1] * high[i]) * (1 / middle[i]);
}

/// The derivatives at the points of the smooth curve, whose parameters are given.
std::vector<OdGeVector3d> slopes(const std::vector<OdGePoint3d>& points,
                                 const std::vector<double>& params, const OdGeVector3d& first,
                                 const OdGeVector3d& last) {
  const std::size_t n = points.size();
  std::vector<double> low(n), middle(n), high(n);
  std::vector<OdGeVector3d> right(n);
  const auto step = [&](std::size_t i) { return params[i + 1] - params[i]; };
  const auto rise = [&](std::size_t i) { return (points[i + 1] - points[i]) * (1 / step(i)); };
  const auto end = [&](std::size_t row, std::size_t piece, const OdGeVector3d& given,
                       std::vector<double>& beside) {
    if (given.isZeroLength()) {
      // No bend at the end.
      middle[row] = 2;
      beside[row] = 1;
      right[row] = rise(piece) * 3;
    } else {
      middle[row] = 1;
      right[row] = given.normal();
    }
  };
  end(0, 0, first, high);
  end(n - 1, n - 2, last, low);
  for (std::size_t i = 1; i + 1 < n; ++i) {
    low[i] = step(i);
    high[i] = step(i - 1);
    middle[i] = 2 * (step(i - 1) + step(i));
    right[i] = (rise(i - 1) * step(i) + rise(i) * step(i - 1)) * 3;
  }
  solve(low, middle, high, right);
  return right;
}

/// The points without those that repeat the one before; of a closed curve the first ends it.
std::vector<OdGePoint3d> pathOf(const std::vector<OdGePoint3d>& given, bool closed) {
  std::vector<OdGePoint3d> points;
  for (const OdGePoint3d& p : given)
    if (points.empty() || !(p == points.back())) points.push_back(p);
  if (closed && points.size() > 2 && !(points.front() == points.back()))
    points.push_back(points.front());
  return points;
}

/// The parameters of the points: how far each lies along the chords.
std::vector<double> chordParams(const std::vector<OdGePoint3d>& points) {
  std::vector<double> params{0};
  for (std::size_t i = 1; i < points.size(); ++i)
    params.push_back(params.back() + points[i].distanceTo(points[i - 1]));
  return params;
}

/// The slopes of a curve that goes on smoothly where its ends meet.
std::vector<OdGeVector3d> closedSlopes(const std::vector<OdGePoint3d>& points,
                                       const std::vector<double>& params) {
  // Some neighbours beyond the seam on both sides see to that.
  constexpr std::size_t kNeighbours = 8;
  const std::size_t n = points.size(), around = std::min(n - 1, kNeighbours);
  const double whole = params.back();
  std::vector<OdGePoint3d> more;
  std::vector<double> moreParams;
  for (std::size_t i = n - 1 - around; i + 1 < n; ++i) {
    more.push_back(points[i]);
    moreParams.push_back(params[i] - whole);
  }
  more.insert(more.end(), points.begin(), points.end());
  moreParams.insert(moreParams.end(), params.begin(), params.end());
  for (std::size_t i = 1; i <= around; ++i) {
    more.push_back(points[i]);
    moreParams.push_back(params[i] + whole);
  }
  const auto all = slopes(more, moreParams, {}, {});
  std::vector<OdGeVector3d> at(all.begin() + static_cast<std::ptrdiff_t>(around),
                               all.begin() + static_cast<std::ptrdiff_t>(around + n));
  at.back() = at.front();
  return at;
}

/// Bezier pieces that share their ends: every knot inside stands twice, since the curve is smooth.
OdGeNurbs piecesThrough(const std::vector<OdGePoint3d>& points, const std::vector<double>& params,
                        const std::vector<OdGeVector3d>& at) {
  OdGeNurbs curve;
  curve.degree = 3;
  curve.knots.assign(4, params.front());
  curve.points.push_back(points.front());
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    const double third = (params[i + 1] - params[i]) / 3;
    curve.points.push_back(points[i] + at[i] * third);
    curve.points.push_back(points[i + 1] - at[i + 1] * third);
    if (i + 2 < points.size()) curve.knots.insert(curve.knots.end(), 2, params[i + 1]);
  }
  curve.points.push_back(points.back());
  curve.knots.insert(curve.knots.end(), 4, params.back());
  return curve;
}

} // namespace

OdGeNurbs OdGeNurbs::through(const std::vector<OdGePoint3d>& given,
                             const OdGeVector3d& startTangent, const OdGeVector3d& endTangent,
                             bool closed) {
  const std::vector<OdGePoint3d> points = pathOf(given, closed);
  if (points.size() < 2) return {};
  const std::vector<double> params = chordParams(points);
  const bool hasSeam = closed && points.size() > 3;
  return piecesThrough(points, params,
                       hasSeam ? closedSlopes(points, params)
                               : slopes(points, params, startTangent, endTangent));
}
