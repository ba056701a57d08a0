#include "drawing/geometry/flat_path.h"

#include <algorithm>

namespace {

OdGePoint2d operator-(const OdGePoint2d& a, const OdGePoint2d& b) { return {a.x - b.x, a.y - b.y}; }
OdGePoint2d operator+(const OdGePoint2d& a, const OdGePoint2d& b) { return {a.x + b.x, a.y + b.y}; }
OdGePoint2d operator*(const OdGePoint2d& a, double f) { return {a.x * f, a.y * f}; }
double dot(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.x + a.y * b.y; }
double cross(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.y - a.y * b.x; }
double size(const OdGePoint2d& a) { return std::hypot(a.x, a.y); }

constexpr double kSame = 1e-9;

/// The part of an arc at an angle; the nearest one outside of 0 to 1.
double partOf(const OdGeFlatPiece& arc, double angle) {
  double turned = arc.sweep > 0 ? angle - arc.from : arc.from - angle;
  const double whole = std::abs(arc.sweep);
  turned = odgeNormalAngle(turned);
  // As near to the arc's own range as a full turn allows.
  const double above = turned - whole;
  const double below = 2 * kOdaPi - turned;
  if (above > 0 && below < above) turned -= 2 * kOdaPi;
  return turned / whole;
}

double partOf(const OdGeFlatPiece& p, const OdGePoint2d& point) {
  if (!p.isLine()) return partOf(p, std::atan2(point.y - p.center.y, point.x - p.center.x));
  const OdGePoint2d along = p.end - p.start;
  const double square = dot(along, along);
  return square > 0 ? dot(point - p.start, along) / square : 0;
}

/// Places where the whole lines or circles meet; none if they lie on top of each other.
std::vector<OdGePoint2d> crossings(const OdGeFlatPiece& a, const OdGeFlatPiece& b, double slack,
                                   bool& onTop) {
  onTop = false;
  if (a.isLine() && b.isLine()) {
    const OdGePoint2d u = a.end - a.start;
    const OdGePoint2d v = b.end - b.start;
    const double turn = cross(u, v);
    if (std::abs(turn) <= 1e-12 * size(u) * size(v)) {
      onTop = size(u) > 0 && std::abs(cross(u, b.start - a.start)) <= slack * size(u);
      return {};
    }
    return {a.start + u * (cross(b.start - a.start, v) / turn)};
  }
  if (!a.isLine() && !b.isLine()) {
    const OdGePoint2d d = b.center - a.center;
    const double far = size(d);
    if (far <= slack) {
      onTop = std::abs(a.radius - b.radius) <= slack;
      return {};
    }
    const double along = (far * far + a.radius * a.radius - b.radius * b.radius) / (2 * far);
    const double square = a.radius * a.radius - along * along;
    const OdGePoint2d unit = d * (1 / far);
    const OdGePoint2d foot = a.center + unit * along;
    if (std::abs(a.radius + b.radius - far) <= slack ||
        std::abs(std::abs(a.radius - b.radius) - far) <= slack)
      return {a.center + unit * (along > 0 ? a.radius : -a.radius)};
    if (square < 0) return {};
    const OdGePoint2d aside = OdGePoint2d{-unit.y, unit.x} * std::sqrt(square);
    return {foot + aside, foot - aside};
  }
  const OdGeFlatPiece& line = a.isLine() ? a : b;
  const OdGeFlatPiece& arc = a.isLine() ? b : a;
  const OdGePoint2d along = line.end - line.start;
  const double length = size(along);
  if (!(length > 0)) return {};
  const OdGePoint2d unit = along * (1 / length);
  const OdGePoint2d foot = line.start + unit * dot(arc.center - line.start, unit);
  const double far = size(foot - arc.center);
  if (std::abs(far - arc.radius) <= slack) return {foot};
  if (far > arc.radius) return {};
  const double half = std::sqrt(arc.radius * arc.radius - far * far);
  return {foot + unit * half, foot - unit * half};
}

} // namespace

OdGeFlatPiece::OdGeFlatPiece(const OdGePoint2d& first, const OdGePoint2d& last, double b)
  : start(first)
  , end(last)
  , bulge(b) {
  const OdGePoint2d chord = end - start;
  // An arc that hardly leaves its chord is the chord.
  if (std::abs(bulge) < 1e-10 || size(chord) == 0) {
    bulge = 0;
    return;
  }
  // The centre lies beside the middle of the chord, by this part of the chord's length.
  const double aside = (1 - bulge * bulge) / (4 * bulge);
  center = start + chord * 0.5 + OdGePoint2d{-chord.y, chord.x} * aside;
  radius = size(start - center);
  from = std::atan2(start.y - center.y, start.x - center.x);
  sweep = 4 * std::atan(bulge);
}

OdGePoint2d OdGeFlatPiece::pointAt(double part) const {
  if (isLine()) return start + (end - start) * part;
  if (part == 0) return start;
  if (part == 1) return end;
  const double angle = from + sweep * part;
  return center + OdGePoint2d{std::cos(angle), std::sin(angle)} * radius;
}

OdGePoint2d OdGeFlatPiece::directionAt(double part) const {
  if (isLine()) {
    const OdGePoint2d along = end - start;
    const double l = size(along);
    return l > 0 ? along * (1 / l) : OdGePoint2d{};
  }
  const double angle = from + sweep * part;
  const double sense = sweep > 0 ? 1 : -1;
  return {-std::sin(angle) * sense, std::cos(angle) * sense};
}

double OdGeFlatPiece::length() const {
  return isLine() ? size(end - start) : radius * std::abs(sweep);
}

double OdGeFlatPiece::closestTo(const OdGePoint2d& point) const {
  const double part = partOf(*this, point);
  if (part >= 0 && part <= 1) return part;
  return size(point - start) <= size(point - end) ? 0 : 1;
}

OdGeFlatPiece OdGeFlatPiece::between(double first, double second) const {
  return {pointAt(first), pointAt(second), isLine() ? 0 : std::tan(sweep * (second - first) / 4)};
}

std::vector<OdGeFlatPiece> odge::piecesOf(const OdGeFlatPath& path) {
  std::vector<OdGeFlatPiece> all;
  const std::size_t count = path.corners.size();
  for (std::size_t i = 0; i < path.pieces(); ++i)
    all.emplace_back(path.corners[i].point, path.corners[(i + 1) % count].point,
                     path.corners[i].bulge);
  return all;
}

std::vector<odge::Meeting> odge::meetings(const OdGeFlatPiece& a, const OdGeFlatPiece& b,
                                          bool extended) {
  const double scale = std::max({1.0, std::abs(a.start.x), std::abs(a.start.y), std::abs(b.start.x),
                                 std::abs(b.start.y), a.radius, b.radius});
  const double slack = kSame * scale;
  bool onTop = false;
  std::vector<OdGePoint2d> places = crossings(a, b, slack, onTop);
  if (onTop) places = {a.start, a.end, b.start, b.end};
  std::vector<Meeting> all;
  for (const OdGePoint2d& p : places) {
    Meeting m{partOf(a, p), partOf(b, p)};
    if (!extended) {
      // What misses an end by a hair is at that end.
      const double slackA = a.length() > 0 ? slack / a.length() : 1;
      const double slackB = b.length() > 0 ? slack / b.length() : 1;
      if (m.first < -slackA || m.first > 1 + slackA || m.second < -slackB || m.second > 1 + slackB)
        continue;
      m.first = std::clamp(m.first, 0.0, 1.0);
      m.second = std::clamp(m.second, 0.0, 1.0);
    }
    all.push_back(m);
  }
  return all;
}
