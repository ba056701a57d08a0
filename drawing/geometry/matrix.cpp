#include "drawing/geometry/matrix.h"

#include "frame/error.h"

OdGeMatrix3d::OdGeMatrix3d()
  : m_rows{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}}} {}

OdGeMatrix3d OdGeMatrix3d::translation(const OdGeVector3d& shift) {
  return coordSystem({shift.x, shift.y, shift.z}, OdGeVector3d::xAxis(), OdGeVector3d::yAxis(),
                     OdGeVector3d::zAxis());
}

OdGeMatrix3d OdGeMatrix3d::rotation(double angle, const OdGeVector3d& axis,
                                    const OdGePoint3d& center) {
  const OdGeVector3d a = axis.normal();
  const double s = std::sin(angle);
  const double c = std::cos(angle);
  const auto turned = [&](const OdGeVector3d& v) {
    return v * c + a.crossProduct(v) * s + a * (a.dotProduct(v) * (1 - c));
  };
  const OdGeMatrix3d turn =
      coordSystem({}, turned(OdGeVector3d::xAxis()), turned(OdGeVector3d::yAxis()),
                  turned(OdGeVector3d::zAxis()));
  return translation(center - turn * center) * turn;
}

OdGeMatrix3d OdGeMatrix3d::scaling(double factor, const OdGePoint3d& center) {
  return scaling(factor, factor, factor, center);
}

OdGeMatrix3d OdGeMatrix3d::scaling(double fx, double fy, double fz, const OdGePoint3d& center) {
  const OdGeMatrix3d scale = coordSystem({}, {fx, 0, 0}, {0, fy, 0}, {0, 0, fz});
  return translation(center - scale * center) * scale;
}

OdGeMatrix3d OdGeMatrix3d::mirroring(const OdGePoint3d& origin, const OdGeVector3d& normal) {
  const OdGeVector3d n = normal.normal();
  const auto mirrored = [&](const OdGeVector3d& v) { return v - n * (2 * n.dotProduct(v)); };
  const OdGeMatrix3d mirror =
      coordSystem({}, mirrored(OdGeVector3d::xAxis()), mirrored(OdGeVector3d::yAxis()),
                  mirrored(OdGeVector3d::zAxis()));
  return translation(origin - mirror * origin) * mirror;
}

OdGeMatrix3d OdGeMatrix3d::planeToWorld(const OdGeVector3d& normal) {
  const OdGeVector3d n = normal.normal();
  if (n == OdGeVector3d::zAxis()) return {};
  // The arbitrary axis rule of the file format, its limit included.
  constexpr double kNearZ = 1.0 / 64.0;
  const OdGeVector3d up = std::abs(n.x) < kNearZ && std::abs(n.y) < kNearZ ? OdGeVector3d::yAxis()
                                                                           : OdGeVector3d::zAxis();
  const OdGeVector3d x = up.crossProduct(n).normal();
  return coordSystem({}, x, n.crossProduct(x).normal(), n);
}

OdGeMatrix3d OdGeMatrix3d::coordSystem(const OdGePoint3d& origin, const OdGeVector3d& x,
                                       const OdGeVector3d& y, const OdGeVector3d& z) {
  OdGeMatrix3d m;
  m.m_rows = {{{x.x, y.x, z.x, origin.x}, {x.y, y.y, z.y, origin.y}, {x.z, y.z, z.z, origin.z}}};
  return m;
}

OdGeMatrix3d OdGeMatrix3d::operator*(const OdGeMatrix3d& first) const {
  OdGeMatrix3d m;
  for (std::size_t r = 0; r < 3; ++r)
    for (std::size_t c = 0; c < 4; ++c) {
      double sum = c == 3 ? m_rows[r][3] : 0;
      for (std::size_t k = 0; k < 3; ++k) sum += m_rows[r][k] * first.m_rows[k][c];
      m.m_rows[r][c] = sum;
    }
  return m;
}

OdGeVector3d OdGeMatrix3d::operator*(const OdGeVector3d& v) const {
  // The zero at the end takes the sign from negative ones.
  const auto row = [&](std::size_t r) {
    return m_rows[r][0] * v.x + m_rows[r][1] * v.y + m_rows[r][2] * v.z + 0.0;
  };
  return {row(0), row(1), row(2)};
}

OdGePoint3d OdGeMatrix3d::operator*(const OdGePoint3d& p) const {
  const OdGeVector3d v = *this * p.asVector();
  return {v.x + m_rows[0][3], v.y + m_rows[1][3], v.z + m_rows[2][3]};
}

double OdGeMatrix3d::det() const {
  const auto& m = m_rows;
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
         m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

OdGeMatrix3d OdGeMatrix3d::inverse() const {
  const double d = det();
  if (d == 0 || !std::isfinite(d))
    throw OdError(eInvalidInput, QStringLiteral("The transformation cannot be undone"));
  OdGeMatrix3d inv;
  for (std::size_t r = 0; r < 3; ++r)
    for (std::size_t c = 0; c < 3; ++c) {
      const std::size_t r1 = (c + 1) % 3, r2 = (c + 2) % 3, c1 = (r + 1) % 3, c2 = (r + 2) % 3;
      inv.m_rows[r][c] = (m_rows[r1][c1] * m_rows[r2][c2] - m_rows[r1][c2] * m_rows[r2][c1]) / d;
    }
  const OdGeVector3d shift = inv * OdGeVector3d{m_rows[0][3], m_rows[1][3], m_rows[2][3]};
  inv.m_rows[0][3] = -shift.x;
  inv.m_rows[1][3] = -shift.y;
  inv.m_rows[2][3] = -shift.z;
  return inv;
}

bool OdGeMatrix3d::isUniScaledOrtho() const {
  const OdGeVector3d x = *this * OdGeVector3d::xAxis();
  const OdGeVector3d y = *this * OdGeVector3d::yAxis();
  const OdGeVector3d z = *this * OdGeVector3d::zAxis();
  const double size = x.lengthSqrd();
  const double slack = 1e-9 * size;
  return size > 0 && std::abs(y.lengthSqrd() - size) <= slack &&
         std::abs(z.lengthSqrd() - size) <= slack && std::abs(x.dotProduct(y)) <= slack &&
         std::abs(y.dotProduct(z)) <= slack && std::abs(z.dotProduct(x)) <= slack;
}

double OdGeMatrix3d::scale() const { return (*this * OdGeVector3d::xAxis()).length(); }
