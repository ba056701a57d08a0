// Moving flat entities. Not for use outside of the library.
#pragma once

#include "drawing/geometry/matrix.h"

/// What a transformation makes of a plane with its own coordinates.
struct OdGePlaneTransform {
  OdGeVector3d normal;  ///< of the new plane
  OdGeMatrix3d inPlane; ///< from the old plane's coordinates to the new plane's
  bool mirrors = false; ///< turns around the normal run the other way
  bool valid = false;   ///< false if the plane is scaled unequally, squeezed, or beyond numbers

  OdGePlaneTransform(const OdGeMatrix3d& transform, const OdGeVector3d& oldNormal);
  /// The factor for lengths in the plane.
  double scale() const { return (inPlane * OdGeVector3d::xAxis()).length(); }
  /// Where a direction at an angle in the old plane points in the new one.
  double angle(double old) const;
};
