#include "drafton/engine/boundary/ellipse_meetings.h"

#include <algorithm>

namespace drafton {
namespace {

/// How far the second ellipse lies outside of the first, around itself: in the coordinates of the
/// first's axes the first is the circle of radius 1, and this is the square of the distance less 1.
class Outside {
 public:
  Outside(const OdGeCurveSegment& first, const OdGeCurveSegment& second)
    : m_first(first)
    , m_area(crossOf(first.u, first.v))
    , m_center(toAxes(second.center - first.center))
    , m_u(toAxes(second.u))
    , m_v(toAxes(second.v)) {}

  OdGeVector3d placeAt(double t) const { return m_center + m_u * std::cos(t) + m_v * std::sin(t); }
  double operator()(double t) const { return placeAt(t).lengthSqrd() - 1; }
  double slope(double t) const {
    return 2 * placeAt(t).dotProduct(m_v * std::cos(t) - m_u * std::sin(t));
  }

 private:
  OdGeVector3d toAxes(const OdGeVector3d& w) const {
    return {crossOf(w, m_first.v) / m_area, crossOf(m_first.u, w) / m_area, 0};
  }

  const OdGeCurveSegment& m_first;
  double m_area;
  OdGeVector3d m_center, m_u, m_v;
};

/// The place of a change of sign between `low` and `high`.
template <class Function>
double zeroBetween(const Function& value, double low, double high) {
  const bool isLowPositive = value(low) > 0;
  for (int i = 0; i < 60 && low < high; ++i) {
    const double middle = (low + high) / 2;
    if (middle == low || middle == high) break;
    ((value(middle) > 0) == isLowPositive ? low : high) = middle;
  }
  return (low + high) / 2;
}

} // namespace

std::vector<AnglePair> ellipseMeetings(const OdGeCurveSegment& first,
                                       const OdGeCurveSegment& second, double tolerance) {
  const Outside outside(first, second);
  // The function has four turning points at most. A step may hide a pair of them only where the
  // curves nearly touch, and there the slope's own change of sign shows it.
  constexpr int kSteps = 128;
  const double size = std::min(first.u.length(), first.v.length());
  const double near = 2 * tolerance / size;
  const auto angle = [](int step) { return 2 * kOdaPi * step / kSteps; };
  std::vector<AnglePair> found;
  int away = 0;
  for (int i = 0; i < kSteps; ++i) away += std::abs(outside(angle(i))) > near;
  if (away == 0) return found;

  const auto add = [&](double t) {
    const OdGeVector3d place = outside.placeAt(t);
    found.push_back({std::atan2(place.y, place.x), t});
  };
  const auto slope = [&](double t) { return outside.slope(t); };
  for (int i = 0; i < kSteps; ++i) {
    const double low = angle(i), high = angle(i + 1);
    std::vector<double> stops{low};
    if ((slope(low) > 0) != (slope(high) > 0)) {
      const double turn = zeroBetween(slope, low, high);
      if (std::abs(outside(turn)) <= near) {
        add(turn);
        continue;
      }
      stops.push_back(turn);
    }
    stops.push_back(high);
    for (std::size_t k = 1; k < stops.size(); ++k)
      if ((outside(stops[k - 1]) > 0) != (outside(stops[k]) > 0))
        add(zeroBetween(outside, stops[k - 1], stops[k]));
  }
  return found;
}

} // namespace drafton
