// Points and vectors.
#pragma once

#include <cmath>

constexpr double kOdaPi = 3.14159265358979323846;

/// A direction with a length, in drawing units.
struct OdGeVector3d {
  double x = 0, y = 0, z = 0;

  double lengthSqrd() const { return x * x + y * y + z * z; }
  double length() const { return std::sqrt(lengthSqrd()); }
  /// The same direction with length 1; a zero vector stays as it is.
  OdGeVector3d normal() const {
    const double l = length();
    return l > 0 ? OdGeVector3d{x / l, y / l, z / l} : *this;
  }
  bool isZeroLength() const { return x == 0 && y == 0 && z == 0; }
  double dotProduct(const OdGeVector3d& o) const { return x * o.x + y * o.y + z * o.z; }
  OdGeVector3d crossProduct(const OdGeVector3d& o) const {
    return {y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x};
  }
  OdGeVector3d operator+(const OdGeVector3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
  OdGeVector3d operator-(const OdGeVector3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
  OdGeVector3d operator-() const { return {-x, -y, -z}; }
  OdGeVector3d operator*(double f) const { return {x * f, y * f, z * f}; }
  bool operator==(const OdGeVector3d&) const = default;

  static constexpr OdGeVector3d xAxis() { return {1, 0, 0}; }
  static constexpr OdGeVector3d yAxis() { return {0, 1, 0}; }
  static constexpr OdGeVector3d zAxis() { return {0, 0, 1}; }
};

/// A place in the drawing, in drawing units.
struct OdGePoint3d {
  double x = 0, y = 0, z = 0;

  OdGePoint3d operator+(const OdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  OdGePoint3d operator-(const OdGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  OdGeVector3d operator-(const OdGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
  double distanceTo(const OdGePoint3d& p) const { return (*this - p).length(); }
  OdGeVector3d asVector() const { return {x, y, z}; }
  bool operator==(const OdGePoint3d&) const = default;
};

/// A place in a plane.
struct OdGePoint2d {
  double x = 0, y = 0;

  double distanceTo(const OdGePoint2d& p) const { return std::hypot(p.x - x, p.y - y); }
  bool operator==(const OdGePoint2d&) const = default;
};

/// True if all three numbers are finite.
inline bool odgeIsFinite(const OdGePoint3d& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

/// An angle turned into the range from 0 (included) to two pi.
inline double odgeNormalAngle(double angle) {
  const double turned = std::fmod(angle, 2 * kOdaPi);
  return turned < 0 ? turned + 2 * kOdaPi : turned;
}
