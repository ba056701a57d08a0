#include "images/image_impl.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "host/icon_service.h"
#include "images/image_home.h"
#include "images/image_list_impl.h"
#include "images/picture_cache.h"
#include "images/picture_file.h"
#include "persistence/filer.h"
#include "persistence/path_operations.h"

#include <QPainter>

#include <algorithm>

namespace tc {
namespace {

constexpr QStringView kButtonResources = u"%ProgramBtnRes%";
constexpr QStringView kForeignButtons = u"acadbtn.xmx";
constexpr QStringView kExchangeExtension = u".xtp";
/// Buttons are never drawn larger, whatever a file asks for.
constexpr int kMostButtonPixels = 1024;

QImage scaledTo(const QImage& picture, int width, int height) {
  return picture.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

struct OdTcImageImpl::Decoded : PictureCache::Entry {
  OdString fullPath;
  /// What the file of a picture that was made is called where its own name is taken; empty for one
  /// that came from a file.
  QStringView label;
};

OdTcImageImpl::OdTcImageImpl() = default;
OdTcImageImpl::~OdTcImageImpl() = default;

OdTcImageImpl::Decoded& OdTcImageImpl::decoded() {
  if (!m_decoded) m_decoded = std::make_unique<Decoded>();
  return *m_decoded;
}

void OdTcImageImpl::setSizeKind(std::int32_t kind) {
  m_sizeKind = kind;
  m_cx = m_cy = static_cast<std::uint32_t>(pixelsOfKind(kind));
}

void OdTcImageImpl::setResource(const OdString& src, const OdString& resource) {
  m_src = src;
  m_resource = resource;
  m_decoded.reset();
}

void OdTcImageImpl::setSize(std::uint32_t cx, std::uint32_t cy) {
  m_cx = cx;
  m_cy = cy;
}

bool OdTcImageImpl::isResource() const {
  const OdString library = src();
  return library == kButtonResources || library == kForeignButtons;
}

QImage OdTcImageImpl::resourcePicture() const {
  OdString name = resource();
  if (name.contains(QLatin1String("RCDATA"))) name = name.mid(name.lastIndexOf(u'_') + 1).toLower();
  const KVPtr<IHostIconService> icons = host::service<IHostIconService>();
  if (!icons || name.isEmpty()) return {};
  const QImage icon = icons->icon(name, pixelsOfKind(m_sizeKind));
  const int width = static_cast<int>(m_cx), height = static_cast<int>(m_cy);
  if (icon.isNull() || width <= 0 || height <= 0 || icon.size() == QSize(width, height))
    return icon;
  // Files of others say what they like.
  if (std::max(width, height) > kMostButtonPixels) return icon;
  return scaledTo(icon, width, height);
}

QImage OdTcImageImpl::getBitmap() {
  if (m_decoded && !m_decoded->bitmap.isNull()) {
    const QImage picture = m_decoded->bitmap;
    if (!m_isMade) PictureCache::instance().use(*m_decoded);
    return picture;
  }
  QImage picture = isResource() ? resourcePicture() : QImage();
  // A button that the program does not have may have come from a file.
  if (const OdString path = picture.isNull() ? fullPath() : OdString(); !path.isEmpty())
    picture = loadPicture(path);
  if (!picture.isNull()) keepDecoded(picture);
  return picture;
}

void OdTcImageImpl::keepDecoded(const QImage& picture) {
  decoded().bitmap = picture;
  m_isMade = false;
  PictureCache::instance().use(*m_decoded);
}

void OdTcImageImpl::releaseBitmap() {
  if (!m_decoded) return;
  PictureCache::instance().drop(*m_decoded);
  m_decoded->bitmap = QImage();
  if (m_decoded->fullPath.isEmpty()) m_decoded.reset();
}

OdString OdTcImageImpl::fullPath() const {
  OdRxSystemServices* const system = odrxSystemServices();
  if (m_decoded && !m_decoded->fullPath.isEmpty() && system->fileExists(m_decoded->fullPath))
    return m_decoded->fullPath;
  if (m_src.isEmpty() || isResource()) return {};
  for (const OdString& path :
       {imagePathBeside(numberedImageHome(m_home), src()), imageFilePath(database(), src())})
    if (!path.isEmpty() && system->fileExists(path)) return path;
  return {};
}

void OdTcImageImpl::setBitmap(const QImage& bitmap, const OdString& src) {
  m_decoded.reset();
  decoded().bitmap = bitmap;
  m_src = src;
  m_resource = OdString();
  m_home = 0;
  m_format = kPngFormat;
  m_isMade = true;
}

void OdTcImageImpl::noteLabel(QStringView label) { decoded().label = label; }

OdString OdTcImageImpl::uniqueName(const OdString& label) const {
  const OdString name = uniquePictureName(label);
  return isTaken(name) ? uniquePictureName(label) : name;
}

bool OdTcImageImpl::isTaken(const OdString& name) const {
  const OdString path = imageFilePath(database(), name);
  return !path.isEmpty() && odrxSystemServices()->fileExists(path);
}

bool OdTcImageImpl::saveTo(const OdString& path, std::int32_t format) {
  const QImage picture = getBitmap();
  if (picture.isNull()) return false;
  const OdString own = odpath::extensionOf(path);
  const OdString extension = format == -1 && !own.isEmpty() ? own : formatExtension(format);
  const OdString target = own.isEmpty() ? path + u'.' + extension : path;
  if (!savePicture(picture, target, extension)) return false;
  noteSaved(picture, target);
  return true;
}

/// From here on the file has it.
void OdTcImageImpl::noteSaved(const QImage& picture, const OdString& path) {
  decoded().fullPath = path;
  keepDecoded(picture);
}

bool OdTcImageImpl::loadFromFile(const OdString& path) {
  const QImage picture = loadPicture(path);
  if (picture.isNull()) return false;
  decoded().fullPath = path;
  keepDecoded(picture);
  return true;
}

void OdTcImageImpl::draw(QPainter* painter, int x, int y, int width, int height) {
  if (const QImage picture = getBitmap(); painter && !picture.isNull())
    painter->drawImage(x, y, picture, 0, 0, width, height);
  releaseBitmap();
}

OdTcImagePtr OdTcImageImpl::cloneAtSize(std::int32_t kind) {
  auto copy = odrxMake<OdTcImageImpl>();
  copy->setSizeKind(kind);
  if (isResource()) {
    copy->m_src = m_src;
    copy->m_resource = m_resource;
    return copy;
  }
  const int pixels = pixelsOfKind(kind);
  if (const QImage picture = getBitmap(); !picture.isNull())
    copy->setBitmap(scaledTo(picture, pixels, pixels),
                    uniquePictureName(QStringLiteral("Block tool instrument")));
  copy->m_resource = m_resource;
  return copy;
}

// --- files

bool OdTcImageImpl::readElements(OdTcFiler* filer) {
  const bool isRead = OdTcPersistImpl::readElements(filer);
  resolveAfterReading();
  return isRead;
}

void OdTcImageImpl::resolveAfterReading() {
  if (m_src.isEmpty() || !owner()) return;
  const auto* const list = dynamic_cast<const OdTcImageListImpl*>(owner());
  m_home = list ? list->home() : imageHomeNumber(imageHomePath(database()));
  const OdString palette = numberedImageHome(m_home);
  const qsizetype at = palette.indexOf(kExchangeExtension);
  if (at < 0) return;
  m_home = 0;
  // Pictures of an exchange file lie in the folder that is named like it.
  const OdString path = combinePath(src(), palette.left(at) + u'\\');
  if (isResource() || !odrxSystemServices()->fileExists(path)) return;
  decoded().fullPath = path;
  if (const OdString name = src(); !name.startsWith(u'\\')) m_src = u'\\' + name;
}

void OdTcImageImpl::saveBesidePalette() {
  if (m_src.isEmpty() || isResource()) return;
  const OdString palette = imageHomePath(database());
  const OdString path = imageFilePath(database(), src());
  // A picture that is not decoded and stays where it was read from needs no look at the disk.
  if (!m_decoded && path == imagePathBeside(numberedImageHome(m_home), src())) return;
  if (path.isEmpty() || !isBelowPalette(palette, path)) return;
  OdRxSystemServices* const system = odrxSystemServices();
  if (isBeingExported(database())) {
    // A copy goes along; what is not saved beside the palette yet is still to be saved there.
    const QImage picture = system->fileExists(path) ? QImage() : getBitmap();
    OdString problem;
    if (!picture.isNull() && (!makePictureFolder(path, &problem) ||
                              !savePicture(picture, path, QStringLiteral("png"), &problem)))
      noteUnsavedPicture(database(), problem);
    return;
  }
  OdString target = path;
  if (system->fileExists(path)) {
    // A picture that was made before its tool came to a palette has not seen whose names are taken.
    if (!m_isMade || !m_decoded || m_decoded->label.isEmpty()) {
      m_isMade = false;
      return;
    }
    m_src = uniqueName(m_decoded->label.toString());
    target = imageFilePath(database(), src());
  }
  const QImage picture = getBitmap();
  if (picture.isNull()) return;
  OdString problem;
  if (makePictureFolder(target, &problem) &&
      savePicture(picture, target, QStringLiteral("png"), &problem))
    noteSaved(picture, target);
  else
    noteUnsavedPicture(database(), problem);
}

void OdTcImageImpl::writeFields(OdTcFiler* filer) {
  saveBesidePalette();
  filer->writeAttribute(QStringLiteral("cx"), OdString::number(m_cx));
  filer->writeAttribute(QStringLiteral("cy"), OdString::number(m_cy));
  if (!m_src.isEmpty()) filer->writeAttribute(QStringLiteral("src"), src());
  if (!m_resource.isEmpty()) filer->writeAttribute(QStringLiteral("resource"), resource());
  // A picture that could not be saved is tried again the next time.
  if (!m_isMade) releaseBitmap();
}

bool OdTcImageImpl::readField(const OdString& name, const OdVariant& value) {
  const OdString text = value.toString();
  if (name == QLatin1String("cx")) {
    m_cx = static_cast<std::uint32_t>(odParseUInt(text));
    // The size kind has no place of its own in the file.
    m_sizeKind = kindOfPixels(m_cx);
  } else if (name == QLatin1String("cy")) {
    m_cy = static_cast<std::uint32_t>(odParseUInt(text));
  } else if (name == QLatin1String("src")) {
    m_src = text;
  } else if (name == QLatin1String("resource")) {
    m_resource = text;
  } else {
    return false;
  }
  return true;
}

OdRxObjectPtr OdTcImageImpl::clone() const {
  auto copy = odrxMake<OdTcImageImpl>();
  copy->m_src = m_src;
  copy->m_resource = m_resource;
  if (m_decoded) copy->m_decoded = std::make_unique<Decoded>(*m_decoded);
  copy->m_cx = m_cx;
  copy->m_cy = m_cy;
  copy->m_sizeKind = m_sizeKind;
  copy->m_home = m_home;
  copy->m_format = m_format;
  copy->m_isMade = m_isMade;
  return copy;
}

} // namespace tc
