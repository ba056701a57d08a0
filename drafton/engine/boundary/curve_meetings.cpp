#include "drafton/engine/boundary/curve_meetings.h"

#include "drafton/engine/boundary/ellipse_meetings.h"

#include <algorithm>

namespace drafton {
namespace {

/// Collects the meetings of two segments, each once.
class Meetings {
 public:
  Meetings(const OdGeCurveSegment& first, const OdGeCurveSegment& second, double tolerance,
           std::vector<CurveMeeting>& out)
    : m_first(first)
    , m_second(second)
    , m_tolerance(tolerance)
    , m_out(out)
    , m_begin(out.size()) {}

  void find() {
    if (isAside(m_first, m_second) || isAside(m_second, m_first)) return;
    addEnds(m_second, m_first, false);
    addEnds(m_first, m_second, true);
    if (m_first.isLine() && m_second.isLine()) return meetLines();
    if (m_first.isLine()) return meetLineAndArc(m_first, m_second, false);
    if (m_second.isLine()) return meetLineAndArc(m_second, m_first, true);
    if (m_first.isCircular() && m_second.isCircular()) return meetCircles();
    for (const AnglePair& pair : ellipseMeetings(m_first, m_second, m_tolerance))
      addInside(partOfAngle(m_first, pair.first), partOfAngle(m_second, pair.second));
  }

 private:
  /// True if the whole of `other` lies on one side of a line: most neighbours do.
  bool isAside(const OdGeCurveSegment& line, const OdGeCurveSegment& other) const {
    if (!line.isLine() || !other.isLine()) return false;
    const OdGeVector3d along = line.end - line.start;
    const double margin = m_tolerance * along.length();
    const double start = crossOf(along, other.start - line.start);
    const double end = crossOf(along, other.end - line.start);
    return (start > margin && end > margin) || (start < -margin && end < -margin);
  }

  /// Ends of `from` that touch `other`.
  void addEnds(const OdGeCurveSegment& from, const OdGeCurveSegment& other, bool isSwapped) {
    for (const double part : {0.0, 1.0}) {
      const OdGePoint3d end = part == 0 ? from.start : from.end;
      const double onOther = other.closestTo(end);
      if (other.pointAt(onOther).distanceTo(end) > m_tolerance) continue;
      if (isSwapped)
        add(part, onOther);
      else
        add(onOther, part);
    }
  }

  /// A meeting within both; what lies at an end is known from addEnds().
  void addInside(double onFirst, double onSecond) {
    if (onFirst > 0 && onFirst < 1 && onSecond > 0 && onSecond < 1) add(onFirst, onSecond);
  }

  void add(double onFirst, double onSecond) {
    const OdGePoint3d point = m_first.pointAt(onFirst);
    for (std::size_t i = m_begin; i < m_out.size(); ++i)
      if (m_first.pointAt(m_out[i].onFirst).distanceTo(point) <= 2 * m_tolerance &&
          m_second.pointAt(m_out[i].onSecond).distanceTo(point) <= 3 * m_tolerance)
        return;
    m_out.push_back({onFirst, onSecond});
  }

  void meetLines() {
    const OdGeVector3d a = m_first.end - m_first.start, b = m_second.end - m_second.start;
    const double cross = crossOf(a, b);
    // Lines this close to parallel leave each other's tolerance far outside of any drawing.
    if (std::abs(cross) <= 1e-14 * a.length() * b.length()) return;
    const OdGeVector3d between = m_second.start - m_first.start;
    addInside(crossOf(between, b) / cross, crossOf(between, a) / cross);
  }

  void meetLineAndArc(const OdGeCurveSegment& line, const OdGeCurveSegment& arc, bool isSwapped) {
    // In the coordinates of its axes the curve is the circle of radius 1.
    const double area = crossOf(arc.u, arc.v);
    const auto toAxes = [&](const OdGeVector3d& w) {
      return OdGeVector3d{crossOf(w, arc.v) / area, crossOf(arc.u, w) / area, 0};
    };
    const OdGeVector3d start = toAxes(line.start - arc.center);
    const OdGeVector3d way = toAxes(line.end - line.start);
    const double square = way.lengthSqrd();
    const double nearest = -start.dotProduct(way) / square;
    const OdGeVector3d foot = start + way * nearest;
    const double inside = 1 - foot.lengthSqrd();
    const double size = std::min(arc.u.length(), arc.v.length());
    const auto addAt = [&](double part) {
      const OdGeVector3d place = start + way * part;
      const double onArc = partOfAngle(arc, std::atan2(place.y, place.x));
      if (isSwapped)
        addInside(onArc, part);
      else
        addInside(part, onArc);
    };
    if (std::abs(1 - foot.length()) * size <= m_tolerance) return addAt(nearest);
    if (inside < 0) return;
    const double aside = std::sqrt(inside / square);
    addAt(nearest - aside);
    addAt(nearest + aside);
  }

  void meetCircles() {
    const OdGeVector3d between = m_second.center - m_first.center;
    const double distance = between.length();
    const double r1 = m_first.radius(), r2 = m_second.radius();
    if (distance <= m_tolerance) return; // one lies in or upon the other
    const double along = (distance + (r1 - r2) * (r1 + r2) / distance) / 2;
    const bool isTouch = std::abs(distance - (r1 + r2)) <= m_tolerance ||
                         std::abs(distance - std::abs(r1 - r2)) <= m_tolerance;
    const double square = r1 * r1 - along * along;
    if (!isTouch && square < 0) return;
    const double aside = isTouch ? 0 : std::sqrt(square);
    const OdGeVector3d x = between * (1 / distance), y{-x.y, x.x, 0};
    for (const double side : {aside, -aside}) {
      const OdGePoint3d point = m_first.center + x * along + y * side;
      addInside(partAt(m_first, point), partAt(m_second, point));
      if (isTouch) return;
    }
  }

  static double partAt(const OdGeCurveSegment& circle, const OdGePoint3d& point) {
    const OdGeVector3d w = point - circle.center;
    return partOfAngle(circle, std::atan2(w.dotProduct(circle.v), w.dotProduct(circle.u)));
  }

  const OdGeCurveSegment& m_first;
  const OdGeCurveSegment& m_second;
  double m_tolerance;
  std::vector<CurveMeeting>& m_out;
  std::size_t m_begin;
};

} // namespace

void appendMeetings(const OdGeCurveSegment& first, const OdGeCurveSegment& second, double tolerance,
                    std::vector<CurveMeeting>& meetings) {
  Meetings(first, second, tolerance, meetings).find();
}

} // namespace drafton
