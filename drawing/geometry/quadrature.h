// Sums over smooth functions.
#pragma once

namespace odge {

/// The integral of a smooth function from `a` to `b`, piece by piece with five places in each.
template <class F>
double integrated(F f, double a, double b, int pieces) {
  constexpr double kPlace[] = {0, 0.538469310105683091, 0.906179845938663993};
  constexpr double kWeight[] = {0.568888888888888889, 0.478628670499366468, 0.236926885056189088};
  const double half = (b - a) / (2 * pieces);
  double sum = 0;
  for (int i = 0; i < pieces; ++i) {
    const double middle = a + (2 * i + 1) * half;
    sum += kWeight[0] * f(middle);
    for (int k = 1; k < 3; ++k)
      sum += kWeight[k] * (f(middle - kPlace[k] * half) + f(middle + kPlace[k] * half));
  }
  return sum * half;
}

} // namespace odge
