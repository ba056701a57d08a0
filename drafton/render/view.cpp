#include "drafton/render/view.h"

#include <algorithm>
#include <cmath>

namespace drafton {

Projection Projection::after(const OdGeMatrix3d& placed) const {
  const auto row = [&](const std::array<double, 4>& r) {
    std::array<double, 4> result{};
    for (int c = 0; c < 4; ++c) {
      double& sum = result[static_cast<std::size_t>(c)];
      for (int k = 0; k < 3; ++k) sum += r[static_cast<std::size_t>(k)] * placed(k, c);
    }
    result[3] += r[3];
    return result;
  };
  return {row(m_x), row(m_y)};
}

QRectF Projection::boxOf(const OdGeExtents3d& box) const {
  const OdGePoint3d& low = box.minPoint();
  const OdGePoint3d& high = box.maxPoint();
  const OdGePoint3d middle{(low.x + high.x) / 2, (low.y + high.y) / 2, (low.z + high.z) / 2};
  const OdGeVector3d half{high.x - middle.x, high.y - middle.y, high.z - middle.z};
  const QPointF at = (*this)(middle);
  const auto reach = [&](const std::array<double, 4>& r) {
    return std::abs(r[0]) * half.x + std::abs(r[1]) * half.y + std::abs(r[2]) * half.z;
  };
  const double w = reach(m_x), h = reach(m_y);
  return {at.x() - w, at.y() - h, 2 * w, 2 * h};
}

double Projection::scale() const {
  double most = 0;
  for (std::size_t i = 0; i < 3; ++i) most = std::max(most, std::hypot(m_x[i], m_y[i]));
  return most;
}

std::array<OdGeVector3d, 3> View::axes() const {
  const OdGeVector3d z = direction.isZeroLength() ? OdGeVector3d::zAxis() : direction.normal();
  const OdGeMatrix3d plane = OdGeMatrix3d::planeToWorld(z);
  const OdGeVector3d x = plane * OdGeVector3d::xAxis(), y = plane * OdGeVector3d::yAxis();
  const double c = std::cos(twist), s = std::sin(twist);
  return {x * c - y * s, x * s + y * c, z};
}

std::optional<QRectF> planeUnder(const QRectF& rect, const Projection& projection) {
  const QPointF height = projection(OdGeVector3d::zAxis());
  const double scale = projection.scale();
  if (!(scale > 0) || std::hypot(height.x(), height.y()) > 1e-9 * scale) return std::nullopt;
  bool canInvert = false;
  const QTransform back = projection.planeTransform().inverted(&canInvert);
  if (!canInvert) return std::nullopt;
  return back.mapRect(rect);
}

Projection View::projection() const {
  const auto [right, up, towards] = axes();
  const OdGeVector3d from = target.asVector();
  const double middleX = origin.x() + size.width() / 2, middleY = origin.y() + size.height() / 2;
  const auto placed = [this](double offset) { return isSettled ? std::round(offset) : offset; };
  const std::array x{right.x * scale, right.y * scale, right.z * scale,
                     placed(middleX - (right.dotProduct(from) + center.x) * scale)};
  const std::array y{-up.x * scale, -up.y * scale, -up.z * scale,
                     placed(middleY + (up.dotProduct(from) + center.y) * scale)};
  return {x, y};
}

View View::settled() const {
  View view = *this;
  view.isSettled = false;
  const QPointF zero = view.projection()(OdGePoint3d{});
  view = view.panned({std::round(zero.x()) - zero.x(), std::round(zero.y()) - zero.y()});
  view.isSettled = true;
  return view;
}

OdGePoint3d View::unproject(const QPointF& pixel) const {
  const auto [right, up, towards] = axes();
  const double x = center.x + (pixel.x() - origin.x() - size.width() / 2) / scale;
  const double y = center.y - (pixel.y() - origin.y() - size.height() / 2) / scale;
  return target + right * x + up * y;
}

View View::fitted(const OdGeExtents3d& box, double margin) const {
  View view = *this;
  if (box.isEmpty()) {
    view.center = {};
    view.scale = 1;
    return view;
  }
  View unit = *this;
  unit.center = {};
  unit.scale = 1;
  unit.origin = {};
  const QRectF seen = unit.projection().boxOf(box);
  view.center = {seen.center().x() - size.width() / 2, size.height() / 2 - seen.center().y()};
  const double part = std::max(0.01, 1 - 2 * margin);
  const double byWidth = seen.width() > 0 ? size.width() * part / seen.width() : 0;
  const double byHeight = seen.height() > 0 ? size.height() * part / seen.height() : 0;
  if (byWidth > 0 && byHeight > 0)
    view.scale = std::min(byWidth, byHeight);
  else
    view.scale = std::max(byWidth, byHeight) > 0 ? std::max(byWidth, byHeight) : 1;
  return view;
}

View View::panned(const QPointF& pixels) const {
  View view = *this;
  view.center = {center.x - pixels.x() / scale, center.y + pixels.y() / scale};
  return view;
}

View View::zoomed(double factor, const QPointF& pixel) const {
  View view = *this;
  const double dx = pixel.x() - origin.x() - size.width() / 2;
  const double dy = pixel.y() - origin.y() - size.height() / 2;
  view.scale = scale * factor;
  view.center = {center.x + dx / scale - dx / view.scale, center.y - dy / scale + dy / view.scale};
  return view;
}

} // namespace drafton
