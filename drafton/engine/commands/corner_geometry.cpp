#include "drafton/engine/commands/corner_geometry.h"

#include "drafton/engine/boundary/flat_segment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drafton {
namespace {

/// Directions that differ by less are the same.
constexpr double kParallel = 1e-9;

OdGeVector3d turnedLeft(const OdGeVector3d& v) { return {-v.y, v.x, 0}; }

/// An endless line, or a whole circle.
struct Locus {
  OdGePoint3d at; ///< on the line, or the centre
  OdGeVector3d along;
  double radius = 0;
  bool isLine = false;
};

/// Where the centres of all circles of a radius lie that touch a piece.
std::vector<Locus> centersOf(const OdGeCurveSegment& piece, double radius) {
  std::vector<Locus> loci;
  if (piece.isLine()) {
    const OdGeVector3d along = (piece.end - piece.start).normal();
    for (const double side : {radius, -radius})
      loci.push_back({piece.start + turnedLeft(along) * side, along, 0, true});
  } else {
    const double own = piece.radius();
    loci.push_back({piece.center, {}, own + radius, false});
    if (std::abs(own - radius) > kParallel * own)
      loci.push_back({piece.center, {}, std::abs(own - radius), false});
  }
  if (radius == 0) loci.resize(1);
  return loci;
}

void appendMeeting(const Locus& line, const Locus& circle, std::vector<OdGePoint3d>& points) {
  const OdGePoint3d foot = line.at + line.along * (circle.at - line.at).dotProduct(line.along);
  const double away = foot.distanceTo(circle.at);
  if (away > circle.radius * (1 + kParallel)) return;
  const double half = std::sqrt(std::max(0.0, circle.radius * circle.radius - away * away));
  for (const double side : {half, -half}) points.push_back(foot + line.along * side);
}

void appendMeetingOfCircles(const Locus& a, const Locus& b, std::vector<OdGePoint3d>& points) {
  const double away = a.at.distanceTo(b.at);
  const double slack = kParallel * (a.radius + b.radius);
  if (!(away > slack) || away > a.radius + b.radius + slack ||
      away < std::abs(a.radius - b.radius) - slack)
    return;
  const OdGeVector3d towards = (b.at - a.at).normal();
  const double along = (away * away + a.radius * a.radius - b.radius * b.radius) / (2 * away);
  const double half = std::sqrt(std::max(0.0, a.radius * a.radius - along * along));
  for (const double side : {half, -half})
    points.push_back(a.at + towards * along + turnedLeft(towards) * side);
}

std::vector<OdGePoint3d> meetings(const Locus& a, const Locus& b) {
  std::vector<OdGePoint3d> points;
  if (a.isLine && b.isLine) {
    const double cross = crossOf(a.along, b.along);
    if (std::abs(cross) > kParallel)
      points.push_back(a.at + a.along * (crossOf(b.at - a.at, b.along) / cross));
  } else if (a.isLine) {
    appendMeeting(a, b, points);
  } else if (b.isLine) {
    appendMeeting(b, a, points);
  } else {
    appendMeetingOfCircles(a, b, points);
  }
  std::erase_if(points, [](const OdGePoint3d& p) { return !odgeIsFinite(p); });
  return points;
}

/// The point of a piece that is nearest to a centre; for one that goes on for ever.
OdGePoint3d touching(const OdGeCurveSegment& piece, const OdGePoint3d& center) {
  if (!piece.isLine()) return piece.center + (center - piece.center).normal() * piece.radius();
  const OdGeVector3d along = (piece.end - piece.start).normal();
  return piece.start + along * (center - piece.start).dotProduct(along);
}

/// The direction along a piece from one of its points towards the side that was pointed at.
OdGeVector3d towardsPicked(const CornerSide& side, const OdGePoint3d& from) {
  const OdGeCurveSegment& piece = side.piece;
  const OdGeVector3d along = piece.isLine() ? (piece.end - piece.start).normal()
                                            : turnedLeft((from - piece.center).normal());
  const double way = (side.picked - from).dotProduct(along);
  return way < 0 ? along * -1 : along;
}

double wayOf(const Corner& corner, const CornerSide& first, const CornerSide& second) {
  return corner.first.point.distanceTo(first.picked) +
         corner.second.point.distanceTo(second.picked);
}

bool isFinite(const Corner& corner) {
  return odgeIsFinite(corner.first.point) && odgeIsFinite(corner.second.point);
}

/// The corner around a centre; none if the arc would be nothing, or a half circle.
std::optional<Corner> cornerAround(const OdGePoint3d& center, const CornerSide& first,
                                   const CornerSide& second, double radius) {
  Corner corner;
  corner.first.point = touching(first.piece, center);
  corner.second.point = touching(second.piece, center);
  const OdGeVector3d from = corner.first.point - center, to = corner.second.point - center;
  // A centre on the piece's own touches nothing.
  if (!(std::abs(from.length() - radius) <= 1e-6 * radius) ||
      !(std::abs(to.length() - radius) <= 1e-6 * radius))
    return std::nullopt;
  const double turn = crossOf(from, to);
  if (!(std::abs(turn) > kParallel * radius * radius)) return std::nullopt;
  const double sweep = std::atan2(turn, from.dotProduct(to));
  const double sign = turn > 0 ? 1 : -1;
  // The curves go on where the arc comes from, and where it goes.
  corner.first.rest = turnedLeft(from).normal() * -sign;
  corner.second.rest = turnedLeft(to).normal() * sign;
  corner.center = center;
  corner.bulge = std::tan(sweep / 4);
  return corner;
}

} // namespace

std::optional<Corner> roundedCorner(const CornerSide& first, const CornerSide& second,
                                    double radius) {
  std::optional<Corner> best;
  double bestWay = std::numeric_limits<double>::infinity();
  for (const Locus& a : centersOf(first.piece, radius))
    for (const Locus& b : centersOf(second.piece, radius))
      for (const OdGePoint3d& center : meetings(a, b)) {
        std::optional<Corner> corner;
        if (radius > 0)
          corner = cornerAround(center, first, second, radius);
        else
          corner = Corner{{center, towardsPicked(first, center)},
                          {center, towardsPicked(second, center)},
                          {},
                          0};
        const double way = corner && isFinite(*corner) ? wayOf(*corner, first, second) : bestWay;
        if (!(way < bestWay)) continue;
        best = corner;
        bestWay = way;
      }
  return best;
}

std::optional<Corner> cutCorner(const CornerSide& first, const CornerSide& second, double fromFirst,
                                double fromSecond) {
  if (!first.piece.isLine() || !second.piece.isLine()) return std::nullopt;
  std::optional<Corner> corner = roundedCorner(first, second, 0);
  if (!corner) return std::nullopt;
  corner->first.point = corner->first.point + corner->first.rest * fromFirst;
  corner->second.point = corner->second.point + corner->second.rest * fromSecond;
  return isFinite(*corner) ? corner : std::nullopt;
}

} // namespace drafton
