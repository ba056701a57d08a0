// Offsets of ellipses and splines. Not for use outside of the library.
#pragma once

#include "drawing/entities/curve.h"

#include <functional>

/// A flat curve with two derivatives.
struct OdDbSmoothCurve {
  double start = 0, end = 1;
  bool closed = false;
  OdGeVector3d normal; ///< of its plane
  std::function<OdGePoint3d(double, OdGeVector3d&, OdGeVector3d&)> at;
};

/// The curves at a distance to the right for a positive one: splines where they stay smooth, else
/// polylines of fine chords from which is cut what is too near. With the properties of `model`.
std::vector<OdDbEntityPtr> oddbOffset(const OdDbSmoothCurve& curve, double distance,
                                      const OdDbEntity& model);
