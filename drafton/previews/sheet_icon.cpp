#include "drafton/previews/sheet_icon.h"

#include "drafton/previews/picture_tones.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace drafton {
namespace {

/// The shape of a sheet in a square of 16.
constexpr double kGrid = 16;
constexpr double kLeft = 3, kTop = 1, kRight = 13, kBottom = 15, kFold = 4;
/// The band that carries the words.
constexpr double kBandTop = 8.5, kBandBottom = 13;
constexpr QRgb kPaper = qRgb(245, 245, 245), kBand = qRgb(42, 116, 178);
constexpr int kLeastForWords = 24;
constexpr int kMostLetters = 4;

void drawWords(QPainter& painter, const QString& words, double unit) {
  const QRectF band(kLeft * unit, kBandTop * unit, (kRight - kLeft) * unit,
                    (kBandBottom - kBandTop) * unit);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(std::max(1, static_cast<int>(band.height() * 0.8)));
  const double width = QFontMetricsF(font).horizontalAdvance(words);
  if (const double room = band.width() * 0.9; width > room)
    font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * room / width)));
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(band, Qt::AlignCenter, words);
}

} // namespace

QImage sheetIcon(const OdString& extension, int pixels) {
  QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  const double unit = pixels / kGrid;
  const auto at = [unit](double x, double y) { return QPointF(x * unit, y * unit); };
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(kNeutralTone), std::max(1.0, unit * 0.5)));
  painter.setBrush(QColor::fromRgb(kPaper));
  painter.drawPolygon(QPolygonF{at(kLeft, kTop), at(kRight - kFold, kTop), at(kRight, kTop + kFold),
                                at(kRight, kBottom), at(kLeft, kBottom)});
  painter.drawPolyline(QPolygonF{at(kRight - kFold, kTop), at(kRight - kFold, kTop + kFold),
                                 at(kRight, kTop + kFold)});
  painter.fillRect(QRectF(at(kLeft, kBandTop), at(kRight, kBandBottom)), QColor::fromRgb(kBand));
  if (pixels >= kLeastForWords && !extension.isEmpty())
    drawWords(painter, extension.left(kMostLetters).toUpper(), unit);
  return picture;
}

} // namespace drafton
