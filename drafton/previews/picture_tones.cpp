#include "drafton/previews/picture_tones.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// How much stronger faint pixels become: of a picture of 16 pixels, and of 64.
constexpr double kSmallGain = 1.6, kLargeGain = 1.15;
constexpr double kSmall = 16, kLarge = 64;

double gainFor(int pixels) {
  const double t = std::clamp((std::log2(std::max(pixels, 1)) - std::log2(kSmall)) /
                                  (std::log2(kLarge) - std::log2(kSmall)),
                              0.0, 1.0);
  return std::lerp(kSmallGain, kLargeGain, t);
}

} // namespace

bool isBlank(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    if (std::any_of(row, row + picture.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; }))
      return false;
  }
  return true;
}

void strengthen(QImage& picture) {
  const double gain = gainFor(std::max(picture.width(), picture.height()));
  for (int y = 0; y < picture.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (QRgb* pixel = row; pixel != row + picture.width(); ++pixel) {
      const int alpha = qAlpha(*pixel);
      if (alpha == 0 || alpha == 255) continue;
      const double factor = std::min(gain, 255.0 / alpha);
      const auto scaled = [&](int part) {
        return std::min(255, static_cast<int>(std::lround(part * factor)));
      };
      *pixel =
          qRgba(scaled(qRed(*pixel)), scaled(qGreen(*pixel)), scaled(qBlue(*pixel)), scaled(alpha));
    }
  }
}

QImage strengthenedOnGround(const QImage& picture, double reduction) {
  constexpr double kLeastGround = 0.4; // of all pixels
  constexpr double kMostGain = 4;
  QImage result = picture.convertToFormat(QImage::Format_RGB32);
  const QRgb ground = result.pixel(0, 0);
  qsizetype plain = 0;
  for (int y = 0; y < result.height(); ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(result.constScanLine(y));
    plain += std::count(row, row + result.width(), ground);
  }
  const auto all = static_cast<double>(result.width()) * result.height();
  if (reduction <= 1 || static_cast<double>(plain) < kLeastGround * all) return picture;
  const double gain = std::min(reduction, kMostGain);
  const auto away = [gain](int value, int from) {
    return std::clamp(static_cast<int>(std::lround(from + (value - from) * gain)), 0, 255);
  };
  for (int y = 0; y < result.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
    std::for_each(row, row + result.width(), [&](QRgb& pixel) {
      pixel = qRgb(away(qRed(pixel), qRed(ground)), away(qGreen(pixel), qGreen(ground)),
                   away(qBlue(pixel), qBlue(ground)));
    });
  }
  return result;
}

QImage insideSquare(const QImage& picture, int pixels) {
  QImage square(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  square.fill(Qt::transparent);
  const QImage fitting =
      picture.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QPainter painter(&square);
  painter.drawImage((pixels - fitting.width()) / 2, (pixels - fitting.height()) / 2, fitting);
  return square;
}

} // namespace drafton
