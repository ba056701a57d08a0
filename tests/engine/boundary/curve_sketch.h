// Curves for tests, written shortly.
#pragma once

#include "drafton/engine/boundary/boundary_search.h"

#include <initializer_list>

/// A drawing of flat curves.
class Sketch {
 public:
  Sketch& line(double x1, double y1, double x2, double y2) {
    curves.push_back(OdGeCurveSegment::line({x1, y1, 0}, {x2, y2, 0}));
    return *this;
  }
  /// Lines from corner to corner.
  Sketch& path(std::initializer_list<OdGePoint2d> corners, bool closed = false) {
    const std::vector<OdGePoint2d> all(corners);
    for (std::size_t i = 1; i < all.size(); ++i)
      line(all[i - 1].x, all[i - 1].y, all[i].x, all[i].y);
    if (closed) line(all.back().x, all.back().y, all.front().x, all.front().y);
    return *this;
  }
  Sketch& box(double x1, double y1, double x2, double y2) {
    return path({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, true);
  }
  /// Angles in degrees.
  Sketch& arc(double x, double y, double r, double from, double sweep) {
    return ellipse(x, y, r, r, 0, from, sweep);
  }
  Sketch& circle(double x, double y, double r) { return arc(x, y, r, 0, 360); }
  Sketch& ellipse(double x, double y, double a, double b, double turned = 0, double from = 0,
                  double sweep = 360) {
    const double t = turned * kOdaPi / 180;
    curves.push_back(OdGeCurveSegment::arc({x, y, 0}, {a * std::cos(t), a * std::sin(t), 0},
                                           {-b * std::sin(t), b * std::cos(t), 0},
                                           from * kOdaPi / 180, sweep * kOdaPi / 180));
    return *this;
  }
  Sketch& text(double x1, double y1, double x2, double y2) {
    Sketch sides;
    sides.box(x1, y1, x2, y2);
    texts.push_back(drafton::loopOf(sides.curves));
    texts.back().isText = true;
    return *this;
  }
  /// Everything moved, as a drawing far from the origin is.
  Sketch& moved(double dx, double dy) {
    for (OdGeCurveSegment& curve : curves)
      curve = curve.transformed(OdGeMatrix3d::translation({dx, dy, 0}));
    return *this;
  }

  drafton::BoundarySearch::Result around(double x, double y,
                                         drafton::IslandStyle style = drafton::IslandStyle::kNormal,
                                         double gap = 0) const {
    return drafton::BoundarySearch(curves, texts, {}, gap).around({x, y, 0}, style);
  }

  OdGeCurveSegments curves;
  drafton::BoundaryLoops texts;
};

/// The area that is hatched: what odd numbers of loops enclose.
inline double areaOf(const drafton::BoundaryLoops& loops) {
  double area = 0;
  for (const drafton::BoundaryLoop& loop : loops)
    area += loop.depth % 2 == 0 ? loop.area : -loop.area;
  return area;
}

inline std::size_t arcsIn(const drafton::BoundaryLoop& loop) {
  std::size_t count = 0;
  for (const OdGeCurveSegment& piece : loop.pieces) count += !piece.isLine();
  return count;
}
