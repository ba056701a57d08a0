#include "drawing/geometry/nurbs.h"

#include "drawing/geometry/quadrature.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kHighestDegree = 25;

/// A point with its weight multiplied in.
struct Weighted {
  double x = 0, y = 0, z = 0, w = 0;

  Weighted operator+(const Weighted& o) const { return {x + o.x, y + o.y, z + o.z, w + o.w}; }
  Weighted operator-(const Weighted& o) const { return {x - o.x, y - o.y, z - o.z, w - o.w}; }
  Weighted operator*(double f) const { return {x * f, y * f, z * f, w * f}; }
  OdGePoint3d place() const { return {x / w, y / w, z / w}; }
  OdGeVector3d part() const { return {x, y, z}; }
};

Weighted weighted(const OdGeNurbs& n, std::size_t i) {
  const double w = n.weights.empty() ? 1 : n.weights[i];
  return {n.points[i].x * w, n.points[i].y * w, n.points[i].z * w, w};
}

void putWeighted(OdGeNurbs& n, const std::vector<Weighted>& all) {
  n.points.clear();
  const bool rational = !n.weights.empty();
  n.weights.clear();
  for (const Weighted& p : all) {
    n.points.push_back(p.place());
    if (rational) n.weights.push_back(p.w);
  }
}

/// The span of knots that a parameter lies in: knots[span] <= t < knots[span + 1].
std::size_t spanOf(const OdGeNurbs& n, double t) {
  const auto first = n.knots.begin() + n.degree;
  const auto last = n.knots.begin() + static_cast<std::ptrdiff_t>(n.points.size());
  auto at = std::upper_bound(first, last, t);
  if (at == last) // the end belongs to the last span that has a length
    at = std::lower_bound(first, last + 1, *last);
  return static_cast<std::size_t>(at - n.knots.begin()) - 1;
}

/// De Boor's scheme with up to two derivatives of the weighted curve.
void evaluate(const OdGeNurbs& n, double t, int derivs, std::array<Weighted, 3>& out) {
  const auto p = static_cast<std::size_t>(n.degree);
  const std::size_t span = spanOf(n, t);
  std::array<Weighted, kHighestDegree + 1> base;
  for (std::size_t i = 0; i <= p; ++i) base[i] = weighted(n, span - p + i);
  out = {};
  for (int d = 0; d <= derivs && d <= n.degree; ++d) {
    const std::size_t q = p - static_cast<std::size_t>(d);
    auto work = base;
    for (std::size_t r = 1; r <= q; ++r)
      for (std::size_t i = q; i >= r; --i) {
        const double low = n.knots[span - q + i];
        const double high = n.knots[span + 1 + i - r];
        const double a = high > low ? (t - low) / (high - low) : 0;
        work[i] = work[i - 1] * (1 - a) + work[i] * a;
      }
    out[static_cast<std::size_t>(d)] = work[q];
    if (q == 0) break;
    // The control points of the derivative.
    for (std::size_t i = 0; i < q; ++i) {
      const double low = n.knots[span - q + 1 + i];
      const double high = n.knots[span + 1 + i];
      base[i] = high > low ? (base[i + 1] - base[i]) * (static_cast<double>(q) / (high - low))
                           : Weighted{};
    }
  }
}

/// Where the function has its least value between two parameters, if it has one valley there.
template <class Function>
double goldenSection(const Function& function, double low, double high) {
  constexpr double kGolden = 0.6180339887498949;
  constexpr int kSteps = 60;
  for (int i = 0; i < kSteps; ++i) {
    const double a = high - (high - low) * kGolden;
    const double b = low + (high - low) * kGolden;
    if (function(a) < function(b))
      high = b;
    else
      low = a;
  }
  return (low + high) / 2;
}

} // namespace

bool OdGeNurbs::isValid() const {
  if (degree < 1 || degree > kHighestDegree) return false;
  const auto p = static_cast<std::size_t>(degree);
  if (points.size() <= p || knots.size() != points.size() + p + 1) return false;
  if (!weights.empty() && weights.size() != points.size()) return false;
  return std::is_sorted(knots.begin(), knots.end()) && end() > start() &&
         std::all_of(knots.begin(), knots.end(), [](double k) { return std::isfinite(k); }) &&
         std::all_of(points.begin(), points.end(), odgeIsFinite) &&
         std::all_of(weights.begin(), weights.end(),
                     [](double w) { return std::isfinite(w) && w > 0; });
}

bool OdGeNurbs::isClosed() const {
  const OdGePoint3d a = pointAt(start());
  const OdGePoint3d b = pointAt(end());
  double size = 0;
  for (const OdGePoint3d& p : points) size = std::max(size, p.distanceTo(a));
  return a.distanceTo(b) <= 1e-9 * size;
}

OdGePoint3d OdGeNurbs::pointAt(double param) const {
  std::array<Weighted, 3> values;
  evaluate(*this, std::clamp(param, start(), end()), 0, values);
  return values[0].place();
}

OdGeVector3d OdGeNurbs::derivAt(double param, OdGeVector3d* second) const {
  std::array<Weighted, 3> v;
  evaluate(*this, std::clamp(param, start(), end()), second ? 2 : 1, v);
  const OdGeVector3d place = v[0].place().asVector();
  const OdGeVector3d first = (v[1].part() - place * v[1].w) * (1 / v[0].w);
  if (second) *second = (v[2].part() - first * (2 * v[1].w) - place * v[2].w) * (1 / v[0].w);
  return first;
}

std::vector<double> OdGeNurbs::breaks() const {
  std::vector<double> all;
  for (std::size_t i = static_cast<std::size_t>(degree); i <= points.size(); ++i)
    if (all.empty() || knots[i] > all.back()) all.push_back(knots[i]);
  return all;
}

void OdGeNurbs::appendChordParams(double deviation, std::vector<double>& params) const {
  constexpr int kMostHalvings = 10;
  const std::vector<double> bounds = breaks();
  params.push_back(bounds.front());
  // A span of degree p has at most p - 1 turns: a few pieces cannot miss one.
  const int pieces = degree == 1 ? 1 : degree + 1;
  const auto refine = [&](auto& self, double a, const OdGePoint3d& pa, double b,
                          const OdGePoint3d& pb, int depth) -> void {
    if (depth > 0 && degree > 1) {
      const double middle = (a + b) / 2;
      const OdGePoint3d pm = pointAt(middle);
      const OdGeVector3d chord = pb - pa;
      const double length = chord.length();
      const double far =
          length > 0 ? (pm - pa).crossProduct(chord).length() / length : pm.distanceTo(pa);
      if (far > deviation) {
        self(self, a, pa, middle, pm, depth - 1);
        self(self, middle, pm, b, pb, depth - 1);
        return;
      }
    }
    params.push_back(b);
  };
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i)
    for (int k = 0; k < pieces; ++k) {
      const double step = (bounds[i + 1] - bounds[i]) / pieces;
      const double a = bounds[i] + step * k;
      const double b = k + 1 == pieces ? bounds[i + 1] : a + step;
      refine(refine, a, pointAt(a), b, pointAt(b), kMostHalvings);
    }
}

void OdGeNurbs::appendChords(double deviation, std::vector<OdGePoint3d>& chords) const {
  std::vector<double> params;
  appendChordParams(deviation, params);
  for (const double t : params) chords.push_back(pointAt(t));
}

double OdGeNurbs::lengthBetween(double first, double second) const {
  double sum = 0;
  std::vector<double> bounds{first};
  for (const double b : breaks())
    if (b > first && b < second) bounds.push_back(b);
  bounds.push_back(second);
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i)
    sum += odge::integrated([&](double t) { return derivAt(t).length(); }, bounds[i], bounds[i + 1],
                            8);
  return sum;
}

double OdGeNurbs::closestTo(const OdGePoint3d& point) const {
  const auto distance = [&](double t) { return (pointAt(t) - point).lengthSqrd(); };
  const std::vector<double> bounds = breaks();
  const int pieces = 4 * degree;
  double best = start();
  double bestDistance = distance(best);
  double reach = 0;
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i)
    for (int k = 1; k <= pieces; ++k) {
      const double step = (bounds[i + 1] - bounds[i]) / pieces;
      const double t = bounds[i] + step * k;
      if (const double d = distance(t); d < bestDistance) {
        best = t;
        bestDistance = d;
        reach = step;
      } else if (reach == 0) {
        reach = step;
      }
    }
  // The golden section works for corners, too; what it finds is made exact by steps.
  double t =
      goldenSection(distance, std::max(best - reach, start()), std::min(best + reach, end()));
  for (int i = 0; i < 4; ++i) {
    OdGeVector3d second;
    const OdGeVector3d first = derivAt(t, &second);
    const OdGeVector3d away = pointAt(t) - point;
    const double slope = first.lengthSqrd() + away.dotProduct(second);
    if (!(slope > 0)) break;
    const double next = std::clamp(t - away.dotProduct(first) / slope, start(), end());
    if (!(distance(next) <= distance(t))) break;
    t = next;
  }
  for (const double e : {start(), end(), best})
    if (distance(e) < distance(t)) t = e;
  return t;
}

OdGeExtents3d OdGeNurbs::extents() const {
  OdGeExtents3d box, hull;
  for (const OdGePoint3d& p : points) hull.addPoint(p);
  const double size = (hull.maxPoint() - hull.minPoint()).length();
  std::vector<double> params;
  appendChordParams(size * 1e-4, params);
  for (const double t : params) box.addPoint(pointAt(t));
  // Between neighbours where a coordinate turns back lies its extreme.
  double OdGeVector3d::*const axes[] = {&OdGeVector3d::x, &OdGeVector3d::y, &OdGeVector3d::z};
  for (std::size_t i = 0; i + 1 < params.size(); ++i)
    for (const auto axis : axes) {
      double a = params[i];
      double b = params[i + 1];
      const double slope = derivAt(a).*axis;
      if (slope * derivAt(b).*axis >= 0) continue;
      for (int k = 0; k < 50; ++k) {
        const double middle = (a + b) / 2;
        (derivAt(middle).*axis * slope > 0 ? a : b) = middle;
      }
      box.addPoint(pointAt((a + b) / 2));
    }
  return box;
}

OdGeNurbs OdGeNurbs::splitAt(double param) const {
  OdGeNurbs n = *this;
  const auto p = static_cast<std::size_t>(degree);
  auto times = static_cast<std::size_t>(std::count(knots.begin(), knots.end(), param));
  for (; times < p; ++times) {
    const std::size_t span = spanOf(n, param);
    std::vector<Weighted> made;
    for (std::size_t i = 0; i <= n.points.size(); ++i) {
      if (i + p <= span) {
        made.push_back(weighted(n, i));
      } else if (i > span) {
        made.push_back(weighted(n, i - 1));
      } else {
        const double low = n.knots[i];
        const double high = n.knots[i + p];
        const double a = high > low ? (param - low) / (high - low) : 0;
        made.push_back(weighted(n, i - 1) * (1 - a) + weighted(n, i) * a);
      }
    }
    n.knots.insert(n.knots.begin() + static_cast<std::ptrdiff_t>(span) + 1, param);
    putWeighted(n, made);
  }
  return n;
}

OdGeNurbs OdGeNurbs::between(double first, double second) const {
  const OdGeNurbs n = splitAt(first).splitAt(second);
  OdGeNurbs part;
  part.degree = degree;
  // From the last knot at the first place to the first knot at the second.
  const auto low = std::upper_bound(n.knots.begin(), n.knots.end(), first) - n.knots.begin();
  const auto high = std::lower_bound(n.knots.begin(), n.knots.end(), second) - n.knots.begin();
  part.knots.assign(static_cast<std::size_t>(degree) + 1, first);
  part.knots.insert(part.knots.end(), n.knots.begin() + low, n.knots.begin() + high);
  part.knots.insert(part.knots.end(), static_cast<std::size_t>(degree) + 1, second);
  const auto from = low - 1 - degree;
  const auto count =
      static_cast<std::ptrdiff_t>(part.knots.size()) - static_cast<std::ptrdiff_t>(degree) - 1;
  part.points.assign(n.points.begin() + from, n.points.begin() + from + count);
  if (!n.weights.empty())
    part.weights.assign(n.weights.begin() + from, n.weights.begin() + from + count);
  return part;
}

OdGeNurbs OdGeNurbs::reversed() const {
  OdGeNurbs n = *this;
  std::reverse(n.points.begin(), n.points.end());
  std::reverse(n.weights.begin(), n.weights.end());
  const double sum = knots.front() + knots.back();
  std::transform(knots.rbegin(), knots.rend(), n.knots.begin(), [&](double k) { return sum - k; });
  return n;
}
