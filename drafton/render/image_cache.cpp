#include "drafton/render/image_cache.h"

#include "drawing/pictures/picture_reader.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>

namespace drafton {
namespace {

/// Each value of a channel as the tones change it.
std::array<int, 256> toneTable(const ImageTones& tones, int ground) {
  std::array<int, 256> table{};
  const double factor = std::pow(4.0, (tones.contrast - 50) / 50.0);
  const double lift = (tones.brightness - 50) / 50.0 * 255;
  const double fade = std::clamp(tones.fade, 0, 100) / 100.0;
  for (int value = 0; value < 256; ++value) {
    const double toned = std::clamp((value - 127.5) * factor + 127.5 + lift, 0.0, 255.0);
    table[static_cast<std::size_t>(value)] =
        static_cast<int>(std::lround(toned + (ground - toned) * fade));
  }
  return table;
}

QImage toned(const QImage& image, const ImageTones& tones, QRgb ground) {
  if (tones == ImageTones()) return image;
  const auto red = toneTable(tones, qRed(ground)), green = toneTable(tones, qGreen(ground)),
             blue = toneTable(tones, qBlue(ground));
  QImage result = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < result.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x)
      row[x] = qRgba(red[static_cast<std::size_t>(qRed(row[x]))],
                     green[static_cast<std::size_t>(qGreen(row[x]))],
                     blue[static_cast<std::size_t>(qBlue(row[x]))], qAlpha(row[x]));
  }
  return result.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Null for a picture that cannot be decoded, is cut off or would take too much memory.
QImage decoded(const QString& file) {
  QFile device(file);
  if (!device.open(QIODevice::ReadOnly)) return {};
  OdPictureReader reader(&device);
  return reader.isCut() || reader.isTooLarge() ? QImage() : reader.read();
}

/// How often a width may be halved without becoming smaller than another.
int halvingsOf(int width, double wanted) {
  int halvings = 0;
  for (double half = width / 2.0; half >= wanted && half >= 1; half /= 2) ++halvings;
  return halvings;
}

} // namespace

ImageCache& ImageCache::instance() {
  thread_local ImageCache cache;
  return cache;
}

void ImageCache::setLimit(qsizetype bytes) {
  m_limit = bytes;
  shrink();
}

QImage ImageCache::find(const OdString& path, double width, const ImageTones& tones, QRgb ground) {
  const OdString platform = odpath::toPlatform(path);
  const QFileInfo info(platform);
  if (!info.isFile()) return {};
  const QDateTime modified = info.lastModified();
  for (auto it = m_entries.begin(); it != m_entries.end(); ++it) {
    if (it->path != path || it->modified != modified) continue;
    const bool isSame = it->halvings == halvingsOf(it->width, width) && it->tones == tones &&
                        (tones.fade == 0 || it->ground == ground);
    // What cannot be shown is kept as well: it is not tried again at each frame.
    if (!isSame && !it->image.isNull()) continue;
    m_entries.splice(m_entries.begin(), m_entries, it);
    return it->image;
  }
  QImage image = decoded(platform);
  if (image.isNull() && !m_unshown.contains(path)) m_unshown << path;
  const int whole = image.width(), halvings = halvingsOf(whole, width);
  if (halvings > 0)
    image = image.scaled(std::max(1, image.width() >> halvings),
                         std::max(1, image.height() >> halvings), Qt::IgnoreAspectRatio,
                         Qt::SmoothTransformation);
  if (!image.isNull())
    image = toned(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), tones, ground);
  return keep({path, modified, whole, halvings, tones, ground, image});
}

QImage ImageCache::keep(Entry entry) {
  const QImage image = entry.image;
  m_size += bytesOf(entry);
  m_entries.push_front(std::move(entry));
  shrink();
  return image;
}

void ImageCache::shrink() {
  while (m_size > m_limit && !m_entries.empty()) {
    m_size -= bytesOf(m_entries.back());
    m_entries.pop_back();
  }
}

} // namespace drafton
