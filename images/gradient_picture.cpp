#include "images/gradient_picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>

namespace tc {
namespace {

/// The gradients in the unit square, its lower side at 1: all are a straight or a round gradient
/// between two colours, some with the colours exchanged.
struct Row {
  QStringView name;
  enum Form { kAcross, kThereAndBack, kRound } form;
  bool isInverse;
  QPointF middle = {}; ///< of round ones
  double inner = 0;    ///< the radius up to which the second colour stays
  double outer = 0;
};

constexpr Row kRows[] = {
    {u"LINEAR", Row::kAcross, false},
    {u"CYLINDER", Row::kThereAndBack, false},
    {u"INVCYLINDER", Row::kThereAndBack, true},
    {u"SPHERICAL", Row::kRound, false, {0.5, 0.5}, 0, 0.71},
    {u"INVSPHERICAL", Row::kRound, true, {0.5, 0.5}, 0, 0.71},
    {u"HEMISPHERICAL", Row::kRound, false, {0.5, 1}, 0, 1.12},
    {u"INVHEMISPHERICAL", Row::kRound, true, {0.5, 1}, 0, 1.12},
    {u"CURVED", Row::kRound, false, {0.5, 2}, 1, 2.06},
    {u"INVCURVED", Row::kRound, true, {0.5, 2}, 1, 2.06},
};

QBrush brushOf(const Row& row, QColor first, QColor second) {
  if (row.isInverse) std::swap(first, second);
  if (row.form == Row::kRound) {
    QRadialGradient round(row.middle, row.outer);
    round.setColorAt(0, second);
    round.setColorAt(row.inner / row.outer, second);
    round.setColorAt(1, first);
    return round;
  }
  QLinearGradient straight(0, 0, 1, 0);
  straight.setColorAt(0, first);
  if (row.form == Row::kThereAndBack) straight.setColorAt(0.5, second);
  straight.setColorAt(1, row.form == Row::kThereAndBack ? first : second);
  return straight;
}

} // namespace

QImage gradientPicture(const OdString& name, const OdCmColor& first, const OdCmColor& second,
                       int pixels) {
  const auto* const row = std::ranges::find_if(kRows, [&](const Row& r) { return name == r.name; });
  QImage picture(pixels, pixels, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.scale(pixels, pixels);
  painter.fillRect(QRectF(0, 0, 1, 1),
                   brushOf(row != std::end(kRows) ? *row : kRows[0], QColor::fromRgb(first.rgb()),
                           QColor::fromRgb(second.rgb())));
  return picture;
}

} // namespace tc
