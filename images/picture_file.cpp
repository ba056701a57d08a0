#include "images/picture_file.h"

#include "drawing/pictures/picture_reader.h"
#include "frame/error.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "persistence/path_operations.h"

#include <QBuffer>
#include <QFile>

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

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

const KindRow& rowOf(std::int32_t kind) {
  for (const KindRow& row : kKinds)
    if (row.kind == kind) return row;
  return kOtherKind;
}

/// The longest side of a reduced picture.
constexpr int kReduced = 256;
constexpr int kUnlimited = std::numeric_limits<int>::max();
constexpr int kBitsOfPixel = 32;

/// True for sizes that cameras have. A photograph that comes into sight step by step takes memory
/// for all of its pixels, however small it is shown.
bool isPhotograph(const QSize& size) {
  constexpr qint64 kMostPixels = 200'000'000;
  return qint64{size.width()} * size.height() <= kMostPixels;
}

/// Photographs can be decoded at a part of their size. Other formats would be decoded whole first.
bool canBeReduced(const OdPictureReader& reader) {
  return reader.format() == "jpeg" && isPhotograph(reader.toldSize());
}

QImage decoded(QIODevice* device, int atMost) {
  OdPictureReader reader(device);
  if (reader.isCut()) return {};
  const QSize size = reader.toldSize();
  const QSize reduced = size.boundedTo({atMost, atMost});
  if (reduced != size && canBeReduced(reader))
    reader.setScaledSize(reduced);
  else if (reader.isTooLarge())
    return {};
  QImage picture = reader.read();
  if (picture.isNull()) return {};
  // More than eight bits of a colour are not shown anywhere.
  if (picture.depth() > kBitsOfPixel) picture.convertTo(QImage::Format_ARGB32);
  const QSize wanted = picture.size().boundedTo({atMost, atMost});
  return wanted == picture.size()
             ? picture
             : picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage loadAtMost(const OdString& path, int atMost) {
  try {
    const OdStreamBufPtr stream = odrxSystemServices()->createFile(
        path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
    // A file is decoded as it is read: however large it is, it does not stand in memory.
    if (const auto* const file = dynamic_cast<const OdDeviceStream*>(stream.get()))
      return decoded(file->device(), atMost);
    const std::uint64_t length = stream->length();
    if (length > std::uint64_t{std::numeric_limits<std::int32_t>::max()}) return {};
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    stream->getBytes(bytes.data(), static_cast<std::uint32_t>(length));
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::ReadOnly) ? decoded(&buffer, atMost) : QImage();
  } catch (const OdFileError&) {
    // A picture that cannot be read is not shown.
    return {};
  }
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

QImage loadPicture(const OdString& path) { return loadAtMost(path, kUnlimited); }

QImage loadReducedPicture(const OdString& path) { return loadAtMost(path, kReduced); }

OdString whyNoPicture(const OdString& path) {
  OdRxSystemServices* const system = odrxSystemServices();
  if (system->folderExists(path)) return translated(u"%1 is a folder").arg(path);
  if (!system->fileExists(path)) return translated(u"there is no file %1").arg(path);
  QFile file(odpath::toPlatform(path));
  if (!file.open(QIODevice::ReadOnly))
    return QStringLiteral("%1: %2").arg(path, file.errorString());
  const OdPictureReader reader(&file);
  if (const QSize size = reader.toldSize(); reader.isTooLarge() && !canBeReduced(reader))
    return translated(u"%1 is too large to be shown: %2 by %3 pixels")
        .arg(path, OdString::number(size.width()), OdString::number(size.height()));
  if (const QByteArray kind = reader.missingDecoder(); !kind.isEmpty())
    return translated(u"%1 cannot be shown: the image format plugin of Qt for pictures of the kind "
                      u"\"%2\" is not installed")
        .arg(path, OdString::fromLatin1(kind));
  return translated(reader.isCut() ? u"%1 is no picture that can be shown: its end is missing"
                                   : u"%1 is no picture that can be shown")
      .arg(path);
}

bool savePicture(const QImage& picture, const OdString& path, const OdString& extension,
                 OdString* problem) {
  const QByteArray bytes = pictureBytes(picture, extension);
  if (!bytes.isEmpty()) return savePictureBytes(bytes, path, problem);
  if (problem) *problem = translated(u"%1: pictures of this kind cannot be written").arg(path);
  return false;
}

QByteArray pictureBytes(const QImage& picture, const OdString& extension) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  const bool isWritten =
      buffer.open(QIODevice::WriteOnly) && picture.save(&buffer, extension.toLatin1().constData());
  return isWritten ? bytes : QByteArray();
}

bool savePictureBytes(const QByteArray& bytes, const OdString& path, OdString* problem) {
  // A full disk must not leave half a picture, nor take the former one.
  OdRxSystemServices* const system = odrxSystemServices();
  const OdString fresh = path + QLatin1String(".new");
  try {
    {
      const OdStreamBufPtr stream =
          system->createFile(fresh, Oda::kFileWrite, Oda::kShareDenyReadWrite, Oda::kCreateAlways);
      stream->putBytes(bytes.constData(), static_cast<std::uint32_t>(bytes.size()));
      stream->flush();
    }
    if (system->replaceFile(fresh, path)) return true;
    if (problem) *problem = translated(u"%1: the file cannot be replaced").arg(path);
  } catch (const OdFileError& error) {
    // The user knows the picture by its own name.
    if (problem) *problem = QStringLiteral("%1: %2").arg(path, error.reason());
  }
  system->removeFile(fresh); // what is left of it
  return false;
}

bool makePictureFolder(const OdString& path, OdString* problem) {
  OdRxSystemServices* const system = odrxSystemServices();
  const OdString folder = odpath::folderOf(path);
  if (system->createFolder(folder)) return true;
  if (!problem) return false;
  const char16_t* const text = system->fileExists(folder) ? u"%1: %2 is a file and no folder"
                                                          : u"%1: the folder %2 cannot be made";
  *problem = translated(text).arg(path, folder);
  return false;
}

OdString pictureTitle(const OdString& title) {
  constexpr qsizetype kLongest = 80;
  OdString clean = title;
  cleanFileName(clean);
  clean.removeIf([](QChar c) { return !c.isPrint() && !c.isSurrogate(); });
  if (clean.size() <= kLongest) return clean;
  return clean.left(clean[kLongest].isLowSurrogate() ? kLongest - 1 : kLongest);
}

OdString titledPictureName(const OdString& title, std::int32_t kind) {
  return QStringLiteral("\\Images\\%1%2.png").arg(title, suffixOfKind(kind));
}

OdString uniquePictureName(const OdString& label) {
  return QStringLiteral("\\Images\\%1_%2.png")
      .arg(host::translate(label), odrxSystemServices()->createGuid());
}

} // namespace tc
