// Checks that setters share. Not for use outside of the library.
#pragma once

#include "drawing/geometry.h"
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
