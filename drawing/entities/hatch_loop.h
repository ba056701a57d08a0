// The boundary of a hatch.
#pragma once

#include "drawing/geometry/curve_segment.h"
#include "drawing/object_id.h"

#include <array>
#include <variant>

/// One edge of a boundary, in the plane of the hatch.
namespace OdHatchEdge {

struct Line {
  OdGePoint2d start, end;
  bool operator==(const Line&) const = default;
};
/// A part of a circle. Angles are radians in the sense of the running direction: of a clockwise arc
/// they are counted clockwise, as files have them.
struct Arc {
  OdGePoint2d center;
  double radius = 1, startAngle = 0, endAngle = 2 * kOdaPi;
  bool counterclockwise = true;
  bool operator==(const Arc&) const = default;
};
/// A part of an ellipse. Angles as those of Arc, from the major axis.
struct Ellipse {
  OdGePoint2d center, majorAxis;
  double ratio = 1, startAngle = 0, endAngle = 2 * kOdaPi;
  bool counterclockwise = true;
  bool operator==(const Ellipse&) const = default;
};
struct Spline {
  int degree = 3;
  bool rational = false, periodic = false;
  std::vector<double> knots, weights;
  std::vector<OdGePoint2d> controlPoints, fitPoints;
  OdGePoint2d startTangent, endTangent;
  /// How many counts a file had behind it: of its fit points, and of the sources of its loop.
  int countsBehind = 0;
  bool operator==(const Spline&) const = default;
};

} // namespace OdHatchEdge
using OdDbHatchEdge =
    std::variant<OdHatchEdge::Line, OdHatchEdge::Arc, OdHatchEdge::Ellipse, OdHatchEdge::Spline>;

/// One closed line of a boundary: a polyline, or edges one behind the other.
struct OdDbHatchLoop {
  enum Flag : int {
    kExternal = 1,
    kPolyline = 2,
    kDerived = 4,
    kTextbox = 8, ///< the box around a text, which is always an island
    kOutermost = 16,
    kNotClosed = 32,
    kSelfIntersecting = 64,
    kTextIsland = 128,
    kDuplicate = 256
  };
  struct Vertex {
    OdGePoint2d point;
    double bulge = 0;
    bool operator==(const Vertex&) const = default;
  };

  int flags = kExternal;
  std::vector<Vertex> vertices; ///< of a polyline
  bool closed = true;           ///< of a polyline
  std::vector<OdDbHatchEdge> edges;
  std::vector<OdDbObjectId> sources; ///< the entities that the loop follows

  bool isPolyline() const { return flags & kPolyline; }
  /// The loop's corners and chords of its curves, which leave them by no more than `deviation`.
  std::vector<OdGePoint2d> points(double deviation) const;
  /// The exact pieces in the plane; splines as chords.
  OdGeCurveSegments segments(double deviation) const;
  /// Moves the loop by what a plane's transformation does to it. Curves that cannot take their
  /// shape become others: a bulge among unequal scales becomes an elliptic edge.
  void transformBy(const OdGeMatrix3d& inPlane);

  /// A loop from exact pieces in the plane, as OdDbCurve gives them; a polyline where all pieces
  /// are lines and arcs of circles.
  static OdDbHatchLoop fromSegments(const OdGeCurveSegments& segments, int flags = kExternal);
  bool operator==(const OdDbHatchLoop&) const = default;
};
