#include "images/image_list_impl.h"

#include "images/image_home.h"
#include "images/image_impl.h"
#include "images/picture_file.h"
#include "module/persist_cast.h"
#include "persistence/filer.h"
#include "properties/owned_part.h"

#include <utility>

namespace tc {
namespace {

constexpr std::string_view kAttributes[] = {"cx", "cy", "src", "resource"};

} // namespace

const OdTcPlainElement OdTcImageListImpl::kPlain{"Images", "Image", kAttributes};

// --- reading when asked for

bool OdTcImageListImpl::readElements(OdTcFiler* filer) {
  // Pictures that are asked for later still come from where the list was read from.
  if (!m_home) m_home = imageHomeNumber(imageHomePath(database()));
  m_deferred = filer->takeDeferred();
  return !m_deferred.isEmpty() || OdTcPersistImpl::readElements(filer);
}

auto OdTcImageListImpl::images() -> Images& {
  if (!m_deferred.isEmpty()) readDeferred(std::exchange(m_deferred, {}), this);
  return m_images;
}

auto OdTcImageListImpl::images() const -> const Images& {
  return const_cast<OdTcImageListImpl*>(this)->images();
}

// --- the pictures

void OdTcImageListImpl::add(OdTcImage* image) {
  if (image) images().push_back(adoptPart(OdTcImagePtr(image), this));
}

void OdTcImageListImpl::removeAll(bool deleteFiles) {
  const QStringList files = deleteFiles ? pictureFiles() : QStringList();
  m_deferred.clear();
  m_images.clear();
  if (!files.isEmpty()) removePictureFiles(database(), files);
}

QStringList OdTcImageListImpl::pictureFiles() const {
  QStringList files;
  for (const OdTcImagePtr& image : images())
    if (const OdString path = image->isResource() ? OdString() : image->fullPath(); !path.isEmpty())
      files << path;
  return files;
}

OdTcEnumPtr<OdTcImage> OdTcImageListImpl::enumImages() const {
  using Enum = OdTcEnumImpl<OdTcImage, std::vector<OdTcImagePtr>>;
  return odrxMake<Enum>(this, images());
}

OdTcImage* OdTcImageListImpl::findBySize(std::int32_t sizeKind) const {
  for (const OdTcImagePtr& image : images())
    if (image->sizeKind() == sizeKind) return image;
  return nullptr;
}

bool OdTcImageListImpl::setFromFile(const OdString& path) {
  // A photograph is decoded once, and the small sizes are made from one that is nearer to them.
  const QImage picture = loadReducedPicture(path);
  return !picture.isNull() &&
         setFrom([&](OdTcImage& image) { return image.setSrcFromPicture(picture, path); });
}

bool OdTcImageListImpl::setFrom(const std::function<bool(OdTcImage& image)>& make) {
  removeAll(true);
  for (const std::int32_t kind : {1, 3, 4}) {
    auto image = odrxMake<OdTcImageImpl>();
    // The owner comes first: the picture's name depends on what the palette's folder has.
    image->setOwner(this);
    image->setSizeKind(kind);
    if (!make(*image)) {
      m_images.clear();
      return false;
    }
    m_images.push_back(image);
  }
  return true;
}

void OdTcImageListImpl::writeFields(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("option"), OdString::number(m_options));
  for (const OdTcImagePtr& image : images()) filer->writeObject(image);
}

bool OdTcImageListImpl::readField(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("Image"))
    add(persistCast<OdTcImage>(value));
  else if (name == QLatin1String("option"))
    m_options = static_cast<std::uint32_t>(odParseUInt(value.toString()));
  else
    return false;
  return true;
}

OdRxObjectPtr OdTcImageListImpl::clone() const {
  auto copy = odrxMake<OdTcImageListImpl>();
  copy->m_options = m_options;
  copy->m_images.reserve(m_images.size());
  for (const OdTcImagePtr& image : images()) copy->m_images.push_back(clonePart(image, copy));
  return copy;
}

} // namespace tc
