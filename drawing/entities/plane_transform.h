// Moving flat entities. Not for use outside of the library.
#pragma once

#include "drawing/geometry/matrix.h"

/// True for a transformation that only shifts: directions, angles and sizes stay as they stood.
bool odgeIsShift(const OdGeMatrix3d& transform);

/// The normal that an image has; the former one if only rounding parts them.
OdGeVector3d odgeSettledNormal(const OdGeVector3d& normal, const OdGeVector3d& former);

/// What a transformation makes of a plane with its own coordinates.
struct OdGePlaneImage {
  OdGeVector3d normal;  ///< of the new plane; the side from which the plane is seen stays
  OdGeMatrix3d inPlane; ///< from the old plane's coordinates to the new plane's
  double size = 1;      ///< the factor for lengths in the plane, by the area
  double rise = 1;      ///< the factor for thicknesses
  bool mirrors = false; ///< turns around the normal run the other way
  bool valid = false;   ///< false if the plane is squeezed, or beyond numbers

  OdGePlaneImage(const OdGeMatrix3d& transform, const OdGeVector3d& oldNormal);
  /// Where a direction at an angle in the old plane points in the new one.
  double angle(double old) const;

 private:
  bool m_isShift = false;
};

/// The same for what keeps its shape: not valid if the plane is scaled unequally.
struct OdGePlaneTransform : OdGePlaneImage {
  OdGePlaneTransform(const OdGeMatrix3d& transform, const OdGeVector3d& oldNormal);
  /// The factor for lengths in the plane.
  double scale() const { return (inPlane * OdGeVector3d::xAxis()).length(); }
};
