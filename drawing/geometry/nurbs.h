// B-splines.
#pragma once

#include "drawing/geometry/extents.h"

#include <vector>

/// A B-spline by its control points, knots and weights.
struct OdGeNurbs {
  int degree = 0;
  std::vector<OdGePoint3d> points;
  std::vector<double> knots;
  std::vector<double> weights; ///< empty: all 1

  /// True if the numbers fit together: points, knots that do not fall and span something, weights
  /// above 0.
  bool isValid() const;
  double start() const { return knots[static_cast<std::size_t>(degree)]; }
  double end() const { return knots[points.size()]; }
  bool isClosed() const;
  OdGePoint3d pointAt(double param) const;
  /// The first and, if wanted, the second derivative.
  OdGeVector3d derivAt(double param, OdGeVector3d* second = nullptr) const;
  /// The parameters at which the curve is pieced together, both ends included.
  std::vector<double> breaks() const;
  /// Adds the parameters of chords, both ends included, that leave the curve by about `deviation`.
  void appendChordParams(double deviation, std::vector<double>& params) const;
  /// Adds the points of such chords.
  void appendChords(double deviation, std::vector<OdGePoint3d>& chords) const;
  double lengthBetween(double first, double second) const;
  double closestTo(const OdGePoint3d& point) const;
  OdGeExtents3d extents() const;
  /// The part between two parameters as a curve of its own with the same parameters.
  OdGeNurbs between(double first, double second) const;
  OdGeNurbs reversed() const;
  /// The same curve with `param` among its knots as often as its degree.
  OdGeNurbs splitAt(double param) const;

  /// The smooth curve of degree 3 through points, parameters by the length of the chords. A
  /// direction without length leaves the curve's bend free at that end. Points that fall together
  /// count once; two points give a line. Empty for less.
  static OdGeNurbs through(const std::vector<OdGePoint3d>& points, const OdGeVector3d& startTangent,
                           const OdGeVector3d& endTangent, bool closed = false);
};
