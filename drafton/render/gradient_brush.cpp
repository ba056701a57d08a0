#include "drafton/render/gradient_brush.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

enum class Form { kLinear, kCylinder, kSphere, kHemisphere, kCurve };

struct Kind {
  const char16_t* name;
  Form form;
  bool isInverse; ///< the colours change places
};

constexpr Kind kKinds[] = {
    {u"LINEAR", Form::kLinear, false},
    {u"CYLINDER", Form::kCylinder, false},
    {u"INVCYLINDER", Form::kCylinder, true},
    {u"SPHERICAL", Form::kSphere, false},
    {u"INVSPHERICAL", Form::kSphere, true},
    {u"HEMISPHERICAL", Form::kHemisphere, false},
    {u"INVHEMISPHERICAL", Form::kHemisphere, true},
    {u"CURVED", Form::kCurve, false},
    {u"INVCURVED", Form::kCurve, true},
};

/// How far the middle moves, to the left and up, as a part of the area.
constexpr double kShiftReach = 0.25;
/// The radius of a ball, which leaves the corners of its square dark.
constexpr double kBall = 0.6;
/// Steps between the colours: enough for eyes not to see that they are steps.
constexpr int kSteps = 16;

QColor mixed(const QColor& a, const QColor& b, double part) {
  const auto mix = [&](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * part));
  };
  return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()),
                a.alpha());
}

/// Where a radial gradient has its middle, and the radii between which it runs, in the unit square.
struct Circles {
  QPointF middle;
  double inner, outer;
};

Circles circlesOf(Form form, double shift) {
  const double left = 0.5 - kShiftReach * shift;
  switch (form) {
  case Form::kSphere:
    return {{left, 1 - left}, 0, kBall};
  case Form::kHemisphere:
    return {{left, 0}, 0, std::hypot(1 - left, 1)};
  default:
    // The fronts bend about a place far below.
    return {{left, -1}, 1, std::hypot(1 - left, 2)};
  }
}

/// Over a square of 1, from one edge to the other.
QBrush linearBrush(Form form, double shift, const QColor& first, const QColor& second) {
  const bool isCylinder = form == Form::kCylinder;
  QLinearGradient linear(0, 0, 1, 0);
  linear.setColorAt(0, first);
  linear.setColorAt(0.5 - kShiftReach * shift, isCylinder ? second : mixed(first, second, 0.5));
  linear.setColorAt(1, isCylinder ? first : second);
  return linear;
}

/// Over a square of 1, around a middle.
QBrush radialBrush(Form form, double shift, const QColor& first, const QColor& second) {
  const Circles circles = circlesOf(form, shift);
  QRadialGradient radial(circles.middle, circles.outer);
  for (int i = 0; i <= kSteps; ++i) {
    const double part = static_cast<double>(i) / kSteps;
    // A ball is brightest near to its middle and darkens towards its edge.
    const double tone = form == Form::kCurve ? 1 - part : std::cos(part * kOdaPi / 2);
    const double at = (circles.inner + (circles.outer - circles.inner) * part) / circles.outer;
    radial.setColorAt(at, mixed(first, second, tone));
  }
  return radial;
}

} // namespace

QBrush gradientBrush(const OdGiGradient& gradient, const QPolygonF& outline, const QPointF& right,
                     const QPointF& up, const Ground& ground, std::uint8_t alpha) {
  const auto found = std::ranges::find_if(kKinds, [&](const Kind& kind) {
    return gradient.name.compare(QStringView(kind.name), Qt::CaseInsensitive) == 0;
  });
  const Kind kind = found != std::end(kKinds) ? *found : kKinds[0];
  QColor first = QColor::fromRgb(ground.shade(gradient.first.color()));
  QColor second = QColor::fromRgb(ground.shade(gradient.second.color()));
  first.setAlpha(alpha);
  second.setAlpha(alpha);
  if (kind.isInverse) std::swap(first, second);

  // The box around the area in the gradient's own directions.
  const QTransform axes(right.x(), right.y(), up.x(), up.y(), 0, 0);
  bool canInvert = false;
  const QTransform toAxes = axes.inverted(&canInvert);
  if (!canInvert) return first;
  const QRectF box = toAxes.map(outline).boundingRect();
  if (box.width() <= 0 || box.height() <= 0) return first;
  const QTransform unit = QTransform::fromScale(box.width(), box.height()) *
                          QTransform::fromTranslate(box.left(), box.top()) * axes;

  const double shift = std::clamp(gradient.shift, 0.0, 1.0);
  const bool isLinear = kind.form == Form::kLinear || kind.form == Form::kCylinder;
  QBrush brush = (isLinear ? linearBrush : radialBrush)(kind.form, shift, first, second);
  brush.setTransform(unit);
  return brush;
}

} // namespace drafton
