// Transformations.
#pragma once

#include "drawing/geometry/geometry.h"

#include <array>

/// An affine transformation of space: rows of three factors and a shift.
class OdGeMatrix3d {
 public:
  /// The transformation that changes nothing.
  OdGeMatrix3d();

  static OdGeMatrix3d translation(const OdGeVector3d& shift);
  /// Turns by `angle` (radians, by the right hand) about the line through `center` along `axis`.
  static OdGeMatrix3d rotation(double angle, const OdGeVector3d& axis,
                               const OdGePoint3d& center = {});
  static OdGeMatrix3d scaling(double factor, const OdGePoint3d& center = {});
  static OdGeMatrix3d scaling(double fx, double fy, double fz, const OdGePoint3d& center = {});
  /// Mirrors at the plane through `origin` that stands on `normal`.
  static OdGeMatrix3d mirroring(const OdGePoint3d& origin, const OdGeVector3d& normal);
  /// Takes the coordinates of the plane that belongs to `normal` by the arbitrary axis rule to
  /// those of the world.
  static OdGeMatrix3d planeToWorld(const OdGeVector3d& normal);
  /// A frame: the images of the axes and of the origin.
  static OdGeMatrix3d coordSystem(const OdGePoint3d& origin, const OdGeVector3d& x,
                                  const OdGeVector3d& y, const OdGeVector3d& z);

  /// This after `first`.
  OdGeMatrix3d operator*(const OdGeMatrix3d& first) const;
  OdGePoint3d operator*(const OdGePoint3d& p) const;
  OdGeVector3d operator*(const OdGeVector3d& v) const;
  double operator()(int row, int column) const {
    return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  }

  double det() const;
  /// Raises OdError(eInvalidInput) for a transformation that cannot be undone.
  OdGeMatrix3d inverse() const;
  /// True if every direction is scaled alike and right angles stay right.
  bool isUniScaledOrtho() const;
  /// The factor by which lengths grow; of use where isUniScaledOrtho() holds.
  double scale() const;
  bool operator==(const OdGeMatrix3d&) const = default;

 private:
  std::array<std::array<double, 4>, 3> m_rows;
};
