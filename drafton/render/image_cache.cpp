#include "drafton/render/image_cache.h"

#include "drawing/objects/picture_limits.h"
#include "drawing/pictures/picture_reader.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <mutex>

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

/// Lets large pictures be decoded while it lives. Everybody else keeps the usual bound, which is of
/// the whole program: therefore one at a time.
class RoomForLarge {
 public:
  RoomForLarge()
    : m_former(QImageReader::allocationLimit()) {
    constexpr int kMegabytes = 1024;
    QImageReader::setAllocationLimit(std::max(m_former, kMegabytes));
  }
  ~RoomForLarge() { QImageReader::setAllocationLimit(m_former); }
  RoomForLarge(const RoomForLarge&) = delete;
  RoomForLarge& operator=(const RoomForLarge&) = delete;

 private:
  static std::mutex& mutex() {
    static std::mutex one;
    return one;
  }
  std::lock_guard<std::mutex> m_lock{mutex()};
  int m_former;
};

QSize halved(const QSize& size, int halvings) {
  return {std::max(1, size.width() >> halvings), std::max(1, size.height() >> halvings)};
}

/// How often a picture may be halved without becoming smaller than a width. One that would take
/// more memory than all of the cache has is halved further.
int halvingsOf(const QSize& whole, double wanted) {
  constexpr qint64 kMostPixels = 100'000'000;
  int halvings = 0;
  for (double half = whole.width() / 2.0; half >= wanted && half >= 1; half /= 2) ++halvings;
  const auto pixels = [&] {
    const QSize now = halved(whole, halvings);
    return qint64{now.width()} * now.height();
  };
  while (pixels() > kMostPixels) ++halvings;
  return halvings;
}

/// True from where on the time and the memory count that decoders save by leaving pixels out.
bool isLarge(const QSize& size) {
  constexpr qint64 kLarge = 16'000'000;
  return size.isValid() && qint64{size.width()} * size.height() > kLarge;
}

/// Of a picture of the size `whole`, which is set for those that do not tell theirs. Null for one
/// that cannot be decoded, is cut off or would take too much memory.
QImage decoded(const QString& file, double width, QSize& whole) {
  QFile device(file);
  if (!device.open(QIODevice::ReadOnly)) return {};
  OdPictureReader reader(&device);
  whole = reader.toldSize();
  if (reader.isCut() || oddb::isTooLargePicture(whole.width(), whole.height())) return {};
  if (isLarge(whole)) {
    const RoomForLarge room;
    if (const int halvings = halvingsOf(whole, width); halvings > 0)
      reader.setScaledSize(halved(whole, halvings));
    return reader.read();
  }
  if (reader.isTooLarge()) return {};
  const QImage image = reader.read();
  whole = image.size();
  const int halvings = halvingsOf(whole, width);
  return image.isNull() || halvings == 0
             ? image
             : image.scaled(halved(whole, halvings), Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
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
    const bool isSame = it->halvings == halvingsOf(it->whole, width) && it->tones == tones &&
                        (tones.fade == 0 || it->ground == ground);
    // What cannot be shown is kept as well: it is not tried again at each frame.
    if (!isSame && !it->image.isNull()) continue;
    m_entries.splice(m_entries.begin(), m_entries, it);
    return it->image;
  }
  QSize whole;
  QImage image = decoded(platform, width, whole);
  if (image.isNull() && !m_unshown.contains(path)) m_unshown << path;
  if (!image.isNull())
    image = toned(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), tones, ground);
  return keep({path, modified, whole, halvingsOf(whole, width), tones, ground, image});
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
