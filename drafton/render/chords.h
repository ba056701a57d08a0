// Lengths on a picture, and the chords that stand for curves on it.
#pragma once

#include <QPointF>

#include <algorithm>
#include <cmath>

namespace drafton {

/// How far a chord may leave its curve, in pixels.
constexpr double kChordError = 0.2;

inline double lengthOf(const QPointF& p) { return std::sqrt(QPointF::dotProduct(p, p)); }

/// Chords of an arc whose radius on the picture is `radius`.
inline int chordCount(double radius, double sweep) {
  if (!(radius > kChordError)) return 1;
  // The cosine of small angles, solved for the angle.
  const double step = 2 * std::sqrt(2 * kChordError / radius);
  return static_cast<int>(std::clamp(std::ceil(std::abs(sweep) / step), 1.0, 1e7));
}

} // namespace drafton
