#include "drafton/previews/stored_preview.h"

#include "drawing/dxf/binary_source.h"
#include "frame/file_path.h"

#include <QByteArrayMatcher>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace drafton {
namespace {

constexpr std::string_view kSection = "THUMBNAILIMAGE";
constexpr int kStructureCode = 0, kBytesCode = 310;
/// Larger ones are no previews.
constexpr qsizetype kMostBytes = 64 << 20;

// The headers of bitmap files, as Windows has them.
constexpr std::uint32_t kFileHeader = 14, kInfoHeader = 40, kMaskBytes = 12;
constexpr std::uint32_t kBitFields = 3;
constexpr int kMostPaletteBits = 8;

template <class T>
T numberAt(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<T>(bytes.constData() + at);
}

/// How far behind the info header the pixels are.
std::uint32_t paletteBytes(const QByteArray& bitmap) {
  const auto bits = numberAt<std::uint16_t>(bitmap, 14);
  const auto compression = numberAt<std::uint32_t>(bitmap, 16);
  const auto used = numberAt<std::uint32_t>(bitmap, 32);
  if (bits <= kMostPaletteBits) return 4 * (used > 0 && used <= 256 ? used : 1u << bits);
  return compression == kBitFields ? kMaskBytes : 0;
}

/// Gives the picture's bytes that follow a section's name; empty if what follows is none.
QByteArray bytesOfSection(OdDbDxfSource& tags) {
  QByteArray bytes;
  OdDbDxfTag tag;
  while (tags.next(tag) == OdDbDxfSource::kTag && tag.code != kStructureCode) {
    if (tag.code != kBytesCode) continue;
    bytes += QByteArray::fromHex(
        QByteArray::fromRawData(tag.text.data(), static_cast<qsizetype>(tag.text.size())));
    if (bytes.size() > kMostBytes) return {};
  }
  return bytes;
}

/// Searches a file from where it stands for the section's name; it then stands behind the name.
bool findName(QFile& file) {
  static const QByteArrayMatcher matcher(kSection.data(), static_cast<qsizetype>(kSection.size()));
  constexpr qint64 kPiece = 1 << 20;
  qint64 start = file.pos();
  for (QByteArray piece; !(piece = file.read(kPiece)).isEmpty();) {
    if (const qsizetype at = matcher.indexIn(piece); at >= 0)
      return file.seek(start + at + static_cast<qsizetype>(kSection.size()));
    // The name may lie across the end of the piece.
    if (piece.size() < kPiece) return false;
    start += piece.size() - static_cast<qsizetype>(kSection.size());
    if (!file.seek(start)) return false;
  }
  return false;
}

/// What stands between the section's name and the next group code.
qint64 restOfLine(QFile& file, bool isBinary) {
  return isBinary ? file.skip(1) : file.readLine().size();
}

} // namespace

QImage pictureOfPreview(const QByteArray& bytes) {
  if (bytes.startsWith("\x89PNG")) return QImage::fromData(bytes, "PNG");
  if (bytes.size() < qsizetype{kInfoHeader} || numberAt<std::uint32_t>(bytes, 0) < kInfoHeader)
    return {};
  QByteArray file(kFileHeader, 0);
  file[0] = 'B';
  file[1] = 'M';
  qToLittleEndian(static_cast<std::uint32_t>(kFileHeader + bytes.size()), file.data() + 2);
  qToLittleEndian(kFileHeader + numberAt<std::uint32_t>(bytes, 0) + paletteBytes(bytes),
                  file.data() + 10);
  return QImage::fromData(file + bytes, "BMP");
}

QImage readStoredPreview(const OdString& path) {
  QFile file(odpath::toPlatform(path));
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  constexpr std::string_view kMark = OdDbDxfBinarySource::kMark;
  const bool isBinary =
      file.read(qint64{kMark.size()}) == QByteArrayView(kMark.data(), kMark.size());
  // The name may stand in a text as well: no picture follows then, and the search goes on.
  while (findName(file)) {
    restOfLine(file, isBinary);
    const qint64 behind = file.pos();
    QByteArray rest = file.read(2 * kMostBytes);
    if (isBinary) rest.prepend(kMark.data(), kMark.size());
    const std::unique_ptr<OdDbDxfSource> tags =
        OdDbDxfSource::of(OdDbDxfBytes({rest.constData(), static_cast<std::size_t>(rest.size())}));
    if (const QByteArray bytes = bytesOfSection(*tags); !bytes.isEmpty())
      return pictureOfPreview(bytes);
    if (!file.seek(behind)) break;
  }
  return {};
}

} // namespace drafton
