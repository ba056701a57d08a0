// Lines and arcs in a plane.
#pragma once

#include "drawing/geometry/geometry.h"

#include <vector>

/// One corner of a path, with the piece that follows it; the bulge is the tangent of a quarter of
/// that piece's angle, positive counterclockwise.
struct OdGeFlatCorner {
  OdGePoint2d point;
  double bulge = 0;
};

/// Lines and arcs one behind the other.
struct OdGeFlatPath {
  std::vector<OdGeFlatCorner> corners;
  bool closed = false;

  std::size_t pieces() const { return corners.size() < 2 ? 0 : corners.size() - (closed ? 0 : 1); }
};

/// One piece of a path.
struct OdGeFlatPiece {
  OdGePoint2d start, end;
  double bulge = 0;
  // Of an arc.
  OdGePoint2d center;
  double radius = 0, from = 0, sweep = 0;

  OdGeFlatPiece() = default;
  OdGeFlatPiece(const OdGePoint2d& start, const OdGePoint2d& end, double bulge);
  bool isLine() const { return bulge == 0; }
  /// Places are told by a part from 0 to 1.
  OdGePoint2d pointAt(double part) const;
  /// The running direction, of length 1; nothing for a piece without length.
  OdGePoint2d directionAt(double part) const;
  double length() const;
  double closestTo(const OdGePoint2d& point) const;
  double distanceTo(const OdGePoint2d& point) const {
    return pointAt(closestTo(point)).distanceTo(point);
  }
  OdGeFlatPiece between(double first, double second) const;
};

namespace odge {

std::vector<OdGeFlatPiece> piecesOf(const OdGeFlatPath& path);

/// A meeting of two pieces, by the parts of both.
struct Meeting {
  double first, second;
};
/// Where two pieces meet. With `extended`, lines go on for ever and arcs are whole circles: parts
/// may then lie outside of 0 to 1. Lines or arcs on top of each other meet at the ends that lie on
/// the other.
std::vector<Meeting> meetings(const OdGeFlatPiece& a, const OdGeFlatPiece& b,
                              bool extended = false);

/// The paths at a distance from a path, to the right of its running direction for a positive one.
/// Straight pieces are prolonged until they meet, other gaps are bridged by arcs; what would come
/// nearer to the path than the distance is cut away. Empty if nothing is left.
std::vector<OdGeFlatPath> offset(const OdGeFlatPath& path, double distance);

} // namespace odge
