#include "drafton/previews/pattern_picture.h"

#include "drafton/previews/picture_tones.h"
#include "drawing/patterns/pattern_strokes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace drafton {
namespace {

/// How often a pattern repeats in a sample, of its widest family of lines.
constexpr double kRepeats = 3;
/// Lines that are nearer to each other than this run together.
constexpr double kLeastGap = 2.5;
constexpr double kUsualGap = 5;

/// From one line of a family to the next, across.
double gapOf(const OdHatchPatternLine& line) {
  return std::abs(line.offset.y * std::cos(line.angle) - line.offset.x * std::sin(line.angle));
}
double lengthOf(const OdHatchPatternLine& line) {
  return std::accumulate(line.dashes.begin(), line.dashes.end(), 0.0,
                         [](double sum, double dash) { return sum + std::abs(dash); });
}

/// Pixels of a unit of the pattern.
double scaleFor(const std::vector<OdHatchPatternLine>& lines, int pixels) {
  double narrowest = 0, widest = 0;
  for (const OdHatchPatternLine& line : lines) {
    const double gap = gapOf(line);
    if (!(gap > 0) || !std::isfinite(gap)) continue;
    narrowest = narrowest > 0 ? std::min(narrowest, gap) : gap;
    widest = std::max({widest, gap, lengthOf(line)});
  }
  if (!(narrowest > 0)) return 1;
  // A repeat fills its part of the sample, unless that is too little for the narrow lines in it or
  // more than a plain pattern needs.
  const double byRepeat = pixels / kRepeats / widest;
  const double apart = kUsualGap * std::max(1.0, pixels / 32.0);
  return std::clamp(byRepeat, kLeastGap / narrowest, std::max(kLeastGap, apart) / narrowest);
}

/// A sample of which more is covered than this shows no pattern any more.
constexpr double kMostCovered = 0.6;
constexpr int kMostEnlargements = 3;
constexpr double kEnlargement = 1.6;

void drawStrokes(QPainter& painter, const std::vector<OdGePoint2d>& ends, int pixels) {
  const double dot = painter.pen().widthF() * 0.7;
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) {
    const QPointF from(ends[i].x, pixels - ends[i].y);
    const QPointF to(ends[i + 1].x, pixels - ends[i + 1].y);
    if (from != to)
      painter.drawLine(from, to);
    else
      painter.fillRect(QRectF(from.x() - dot, from.y() - dot, 2 * dot, 2 * dot),
                       painter.pen().brush());
  }
}

/// The strokes of a square at a scale; null if the pattern has none.
QImage strokes(const OdHatchPattern& pattern, double scale, int pixels) {
  const double low = 0.5, high = pixels - 0.5;
  const odpattern::Rings rings = {{{low, low}, {high, low}, {high, high}, {low, high}}};
  std::vector<OdGePoint2d> ends;
  if (!odpattern::appendStrokes(rings, pattern.placed(scale, 0), odpattern::kUsualLimit, ends))
    return {};
  QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(QColor::fromRgb(kNeutralTone), pixels < 64 ? 1 : 1.3, Qt::SolidLine, Qt::RoundCap));
  drawStrokes(painter, ends, pixels);
  return picture;
}

double covered(const QImage& picture) {
  if (picture.isNull()) return 0;
  double sum = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) sum += qAlpha(picture.pixel(x, y)) / 255.0;
  return sum / picture.width() / picture.height();
}

} // namespace

QImage filledPicture(int pixels) {
  QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  picture.fill(QColor::fromRgb(kNeutralTone));
  return picture;
}

QImage patternPicture(const OdHatchPattern& pattern, int pixels) {
  double scale = scaleFor(pattern.lines, pixels);
  QImage picture = strokes(pattern, scale, pixels);
  for (int i = 0; i < kMostEnlargements && covered(picture) > kMostCovered; ++i)
    picture = strokes(pattern, scale *= kEnlargement, pixels);
  if (picture.isNull()) return filledPicture(pixels);
  strengthen(picture);
  QPainter painter(&picture);
  painter.setPen(QColor::fromRgb(kNeutralTone));
  painter.drawRect(0, 0, pixels - 1, pixels - 1);
  return picture;
}

} // namespace drafton
