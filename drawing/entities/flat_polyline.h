// What LWPOLYLINE and the flat POLYLINE have in common. Not for use outside of the library.
#pragma once

#include "drawing/entities/curve.h"
#include "drawing/geometry/flat_path.h"

class OdGiWorldDraw;

/// A flat polyline as it is shown: corners with bulges and widths in a plane.
struct OdDbFlatPolyline {
  struct Corner {
    OdGePoint2d point;
    double bulge = 0, startWidth = 0, endWidth = 0;
  };
  std::vector<Corner> corners;
  bool closed = false;
  OdGeMatrix3d toWorld; ///< from the plane, elevation included

  std::size_t pieces() const { return corners.size() < 2 ? 0 : corners.size() - (closed ? 0 : 1); }
  const Corner& after(std::size_t index) const { return corners[(index + 1) % corners.size()]; }
  OdGeFlatPath path() const;
  bool isWide() const;
  void appendSegments(OdGeCurveSegments& segments) const;
  /// Wide pieces with their widths; narrow ones are shown as lines.
  void drawWide(OdGiWorldDraw& draw, bool dashesRunThrough) const;
  /// The box with the widths.
  OdGeExtents3d extents() const;
  /// The corners between two parameters.
  std::vector<Corner> between(double first, double second) const;
  /// A corner of chords, and where on the pieces it stands.
  struct ChordCorner {
    OdGePoint2d point;
    std::size_t piece;
    double part; ///< of the piece, from 0 to below 1
  };
  /// The same shape moved where arcs cannot stay arcs: chords take their place. Corners are then in
  /// the coordinates of `plane`; the last one ends the last piece and has the number behind it.
  static std::vector<ChordCorner> chordsOf(const OdGeCurveSegments& segments,
                                           const OdGeMatrix3d& worldToPlane);
};
