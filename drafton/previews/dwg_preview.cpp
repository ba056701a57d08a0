#include "drafton/previews/dwg_preview.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstdint>

namespace drafton {
namespace {

/// Files begin with their version, such as "AC1032"; the place of the preview stands a little
/// behind.
constexpr QByteArrayView kVersion = "AC10";
constexpr qint64 kPlaceAt = 0x0D;

/// Stands before the preview.
constexpr char kMark[] = "\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B";
constexpr qsizetype kMarkBytes = sizeof(kMark) - 1;
constexpr qsizetype kSizeBytes = 4;

/// The kinds of pictures that are of use, the better one first.
constexpr std::uint8_t kKinds[] = {6 /* PNG */, 2 /* bitmap */};
/// A picture's row: its kind, where it starts in the file, its bytes.
constexpr qsizetype kRowBytes = 9;
/// Larger ones are no previews.
constexpr std::uint32_t kMostBytes = 64 << 20;

QByteArray bytesAt(QIODevice& file, qint64 at, qint64 count) {
  if (at < 0 || at > file.size() || count > file.size() - at || !file.seek(at)) return {};
  const QByteArray bytes = file.read(count);
  return bytes.size() == count ? bytes : QByteArray();
}

std::uint32_t numberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<std::uint32_t>(bytes.constData() + at);
}

/// The picture that a row tells of.
QByteArray pictureOf(QIODevice& file, const QByteArray& rows, qsizetype row) {
  const std::uint32_t start = numberAt(rows, row + 1), size = numberAt(rows, row + 5);
  return size > kMostBytes ? QByteArray() : bytesAt(file, start, size);
}

QByteArray previewOf(QIODevice& file) {
  const QByteArray place = bytesAt(file, kPlaceAt, sizeof(std::uint32_t));
  if (place.isEmpty()) return {};
  const qint64 start = numberAt(place, 0);
  const QByteArray head = bytesAt(file, start, kMarkBytes + kSizeBytes + 1);
  if (!head.startsWith(QByteArrayView(kMark, kMarkBytes))) return {};
  const auto count = static_cast<std::uint8_t>(head.back());
  const QByteArray rows = bytesAt(file, start + head.size(), count * kRowBytes);
  for (const std::uint8_t kind : kKinds)
    for (qsizetype row = 0; row < rows.size(); row += kRowBytes)
      if (static_cast<std::uint8_t>(rows[row]) == kind)
        if (const QByteArray picture = pictureOf(file, rows, row); !picture.isEmpty())
          return picture;
  return {};
}

} // namespace

std::optional<QByteArray> dwgPreview(QIODevice& file) {
  if (!bytesAt(file, 0, kVersion.size()).startsWith(kVersion)) return std::nullopt;
  return previewOf(file);
}

} // namespace drafton
