// Checks that setters share. Not for use outside of the library.
#pragma once

#include "drawing/geometry/geometry.h"
#include "frame/error.h"

namespace odcheck {

/// Raises OdError(eInvalidInput) unless the number is finite.
inline void finite(double value) {
  if (!std::isfinite(value)) throw OdError(eInvalidInput, QStringLiteral("A number is not finite"));
}
inline void finite(const OdGePoint3d& p) {
  finite(p.x);
  finite(p.y);
  finite(p.z);
}
inline void finite(const OdGePoint2d& p) {
  finite(p.x);
  finite(p.y);
}

/// True if none of the numbers is infinite or none at all.
inline bool isFinite(double value) { return std::isfinite(value); }
inline bool isFinite(const OdGePoint2d& p) { return std::isfinite(p.x) && std::isfinite(p.y); }
inline bool isFinite(const OdGePoint3d& p) { return odgeIsFinite(p); }
inline bool isFinite(const OdGeVector3d& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}
template <class... T>
bool areFinite(const T&... values) {
  return (isFinite(values) && ...);
}
/// Raises OdError(eInvalidInput) unless the number is finite and above 0.
inline void positive(double value) {
  finite(value);
  if (!(value > 0)) throw OdError(eInvalidInput, QStringLiteral("%1 is not above 0").arg(value));
}
/// A direction of length 1; raises OdError(eInvalidInput) for one without length.
inline OdGeVector3d direction(const OdGeVector3d& v) {
  positive(v.length());
  return v.normal();
}

} // namespace odcheck
