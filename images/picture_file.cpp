#include "images/picture_file.h"

#include "frame/error.h"
#include "frame/system_services.h"
#include "host/host_locator.h"

#include <QBuffer>
#include <QImageReader>

#include <array>
#include <limits>

namespace tc {
namespace {

struct KindRow {
  std::int32_t kind;
  int pixels;
  QStringView suffix;
};
constexpr std::array kKinds = {
    KindRow{1, 16, u"16"},
    KindRow{2, 24, u"32"},
    KindRow{3, 32, u"32"},
    KindRow{4, 64, u"64"},
};
constexpr KindRow kOtherKind = {0, 16, u"32"};

/// By code, from 1.
constexpr std::array<QStringView, 8> kExtensions = {u"bmp",  u"wmf", u"ico", u"emf",
                                                    u"jpeg", u"png", u"gif", u"tiff"};

const KindRow& rowOf(std::int32_t kind) {
  for (const KindRow& row : kKinds)
    if (row.kind == kind) return row;
  return kOtherKind;
}

} // namespace

int pixelsOfKind(std::int32_t kind) { return rowOf(kind).pixels; }

std::int32_t kindOfPixels(std::uint32_t pixels) {
  for (const KindRow& row : kKinds)
    if (static_cast<std::uint32_t>(row.pixels) == pixels) return row.kind;
  return 0;
}

OdString suffixOfKind(std::int32_t kind) { return rowOf(kind).suffix.toString(); }

OdString formatExtension(std::int32_t format) {
  const bool isKnown = format >= 1 && format <= static_cast<std::int32_t>(kExtensions.size());
  return kExtensions[static_cast<std::size_t>((isKnown ? format : kPngFormat) - 1)].toString();
}

QImage loadPicture(const OdString& path) {
  try {
    const OdStreamBufPtr stream = odrxSystemServices()->createFile(
        path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
    const std::uint64_t length = stream->length();
    if (length > std::uint64_t{std::numeric_limits<std::int32_t>::max()}) return {};
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    stream->getBytes(bytes.data(), static_cast<std::uint32_t>(length));
    return QImage::fromData(bytes);
  } catch (const OdFileError&) {
    // A picture that cannot be read is not shown.
    return {};
  }
}

QImage reducedPicture(const QImage& picture) {
  constexpr int kMost = 256;
  const QSize size = picture.size().boundedTo({kMost, kMost});
  return size == picture.size() || picture.isNull()
             ? picture
             : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool savePicture(const QImage& picture, const OdString& path, const OdString& extension) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) ||
      !picture.save(&buffer, extension.toLatin1().constData()))
    return false;
  try {
    const OdStreamBufPtr stream = odrxSystemServices()->createFile(
        path, Oda::kFileWrite, Oda::kShareDenyReadWrite, Oda::kCreateAlways);
    stream->putBytes(bytes.constData(), static_cast<std::uint32_t>(bytes.size()));
    stream->flush();
    return true;
  } catch (const OdFileError&) {
    return false;
  }
}

OdString titledPictureName(const OdString& title, std::int32_t kind) {
  return QStringLiteral("\\Images\\%1%2.png").arg(title, suffixOfKind(kind));
}

OdString uniquePictureName(const OdString& label) {
  return QStringLiteral("\\Images\\%1_%2.png")
      .arg(host::translate(label), odrxSystemServices()->createGuid());
}

} // namespace tc
