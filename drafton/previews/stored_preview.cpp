#include "drafton/previews/stored_preview.h"

#include "drafton/previews/dwg_preview.h"
#include "drawing/dxf/binary_source.h"
#include "drawing/pictures/picture_reader.h"
#include "frame/file_path.h"

#include <QBuffer>
#include <QByteArrayMatcher>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace drafton {
namespace {

constexpr std::string_view kSection = "THUMBNAILIMAGE";
constexpr int kStructureCode = 0, kBytesCode = 310;
/// Larger sections are no previews.
constexpr qint64 kMostBytes = 64 << 20;
constexpr qint64 kFirstPiece = 64 << 10;
/// How often the section's name may stand in texts before it.
constexpr int kMostNames = 1000;
/// Behind the name there is nothing but the end of its line.
constexpr qint64 kLongestRest = 256;

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

/// The picture's bytes that follow a section's name, empty if what follows is none; nothing if the
/// tags end before the section does.
std::optional<QByteArray> bytesOfSection(OdDbDxfSource& tags) {
  QByteArray bytes;
  OdDbDxfTag tag;
  while (tags.next(tag) == OdDbDxfSource::kTag) {
    if (tag.code == kStructureCode) return bytes;
    if (tag.code == kBytesCode)
      bytes += QByteArray::fromHex(
          QByteArray::fromRawData(tag.text.data(), static_cast<qsizetype>(tag.text.size())));
  }
  return std::nullopt;
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

/// Goes on to the group code behind the section's name.
void passRestOfLine(QFile& file, bool isBinary) {
  if (isBinary)
    file.skip(1);
  else
    file.readLine(kLongestRest);
}

/// The picture's bytes behind the section's name. No more of the file is read than the section
/// takes, or not much more.
QByteArray bytesBehindName(QFile& file, bool isBinary) {
  constexpr std::string_view kMark = OdDbDxfBinarySource::kMark;
  const qint64 start = file.pos();
  for (qint64 piece = kFirstPiece; piece <= kMostBytes; piece *= 4) {
    if (!file.seek(start)) break;
    QByteArray tags = file.read(piece);
    const bool isAll = tags.size() < piece;
    if (isBinary) tags.prepend(kMark.data(), kMark.size());
    const std::unique_ptr<OdDbDxfSource> source =
        OdDbDxfSource::of(OdDbDxfBytes({tags.constData(), static_cast<std::size_t>(tags.size())}));
    const std::optional<QByteArray> bytes = bytesOfSection(*source);
    if (bytes || isAll) return bytes.value_or(QByteArray());
  }
  return {};
}

/// Null for what is cut off or damaged, or would take too much memory. Of bitmaps what is there is
/// shown: some programs leave a few bytes out.
QImage decoded(QByteArray file) {
  QBuffer buffer(&file);
  if (!buffer.open(QIODevice::ReadOnly)) return {};
  OdPictureReader reader(&buffer);
  const bool isDamaged = reader.isCut() && !file.startsWith("BM");
  return isDamaged || reader.isTooLarge() ? QImage() : reader.read();
}

} // namespace

QImage pictureOfPreview(const QByteArray& bytes) {
  if (bytes.startsWith("\x89PNG")) return decoded(bytes);
  if (bytes.size() < qsizetype{kInfoHeader} || numberAt<std::uint32_t>(bytes, 0) < kInfoHeader)
    return {};
  QByteArray file(kFileHeader, 0);
  file[0] = 'B';
  file[1] = 'M';
  qToLittleEndian(static_cast<std::uint32_t>(kFileHeader + bytes.size()), file.data() + 2);
  qToLittleEndian(kFileHeader + numberAt<std::uint32_t>(bytes, 0) + paletteBytes(bytes),
                  file.data() + 10);
  return decoded(file + bytes);
}

QImage readStoredPreview(const OdString& path) {
  QFile file(odpath::toPlatform(path));
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  if (const std::optional<QByteArray> bytes = dwgPreview(file)) return pictureOfPreview(*bytes);
  file.seek(0);
  constexpr std::string_view kMark = OdDbDxfBinarySource::kMark;
  const bool isBinary =
      file.read(qint64{kMark.size()}) == QByteArrayView(kMark.data(), kMark.size());
  // The name may stand in a text as well: no picture follows then, and the search goes on.
  for (int tried = 0; tried < kMostNames && findName(file); ++tried) {
    passRestOfLine(file, isBinary);
    const qint64 behind = file.pos();
    if (const QByteArray bytes = bytesBehindName(file, isBinary); !bytes.isEmpty())
      return pictureOfPreview(bytes);
    if (!file.seek(behind)) break;
  }
  return {};
}

} // namespace drafton
