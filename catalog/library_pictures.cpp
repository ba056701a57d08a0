#include "catalog/library_pictures.h"

#include "host/host_locator.h"
#include "host/icon_service.h"
#include "tools/command_tool.h"

#include <array>

namespace tc {
namespace {

constexpr QStringView kForeignLibrary = u"AcTpCatalogRes.dll";

/// Sizes that every tool has here, the largest first: the others are made from it.
constexpr std::array kSizes = {OdTcSizeKind::kLarge, OdTcSizeKind::kNormal, OdTcSizeKind::kSmall};

bool hasFile(const OdTcImage& image) { return !image.isResource() && !isInForeignLibrary(image); }

OdTcImage* largestOf(const OdTcImageList& images) {
  OdTcImage* largest = nullptr;
  const OdTcEnumPtr<OdTcImage> all = images.enumImages();
  while (OdTcImage* const image = all->next())
    if (hasFile(*image) && (!largest || image->cx() > largest->cx())) largest = image;
  return largest;
}

bool hasLibraryPictures(const OdTcImageList& images) {
  const OdTcEnumPtr<OdTcImage> all = images.enumImages();
  while (const OdTcImage* const image = all->next())
    if (isInForeignLibrary(*image)) return true;
  return false;
}

OdTcImageListPtr listLike(const OdTcImageList& images) {
  const OdTcImageListPtr list = OdTcImageList::createObject();
  list->setOwner(images.owner());
  return list;
}

/// The list without the pictures in the library; null if nothing can be made of it.
OdTcImageListPtr fromOthers(const OdTcImageList& images) {
  const OdTcImageListPtr list = listLike(images);
  const OdTcEnumPtr<OdTcImage> all = images.enumImages();
  while (OdTcImage* const image = all->next())
    if (!isInForeignLibrary(*image)) list->add(image);
  addMissingSizes(*list);
  return largestOf(*list) ? list : OdTcImageListPtr();
}

/// The button that the host has for the tool's command; null if it has none.
OdTcImageListPtr buttonsOf(const OdTcToolCommandImpl& agent, const OdTcImageList& images) {
  const OdTcImageListPtr list = listLike(images);
  const bool canAsk = host::service<IHostIconService>().get() != nullptr;
  for (const OdTcSizeKind size : kSizes) {
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(static_cast<std::int32_t>(size));
    agent.imageSourceFromMacro(image);
    if (image->resource().isEmpty() || (canAsk && image->getBitmap().isNull())) return {};
    image->releaseBitmap();
    list->add(image);
  }
  return list;
}

OdTcImageListPtr pictureOf(const OdTcToolActionAgent& agent, const OdTcImageList& images,
                           OdTcSourceFiles& sources) {
  const OdTcImageListPtr list = listLike(images);
  const auto make = [&](OdTcImage& image) { return agent.makePicture(image, sources); };
  return list->setFrom(make) ? list : OdTcImageListPtr();
}

} // namespace

bool isInForeignLibrary(const OdTcImage& image) {
  return image.src().compare(kForeignLibrary, Qt::CaseInsensitive) == 0;
}

void addMissingSizes(OdTcImageList& images) {
  OdTcImage* const source = largestOf(images);
  if (!source || source->getBitmap().isNull()) return;
  for (const OdTcSizeKind kind : kSizes) {
    if (!images.findBySize(static_cast<std::int32_t>(kind)))
      images.add(source->cloneAtSize(static_cast<std::int32_t>(kind)));
  }
}

void replaceLibraryPictures(OdTcTool& tool, OdTcSourceFiles& sources, OdTcImportedTool& row) {
  OdTcImageList* const images = tool.images();
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  if (!images || !agent || !hasLibraryPictures(*images)) return;
  OdTcPictureFate fate = row.picture;
  OdTcImageListPtr fresh = fromOthers(*images);
  if (!fresh) {
    const auto* const command = dynamic_cast<const OdTcToolCommandImpl*>(agent);
    fate = command ? OdTcPictureFate::kResource : OdTcPictureFate::kMade;
    fresh = command ? buttonsOf(*command, *images) : pictureOf(*agent, *images, sources);
  }
  if (!fresh) return;
  tool.setImages(fresh);
  row.picture = fate;
  if (fate == OdTcPictureFate::kMade) row.pictureFile.clear();
}

} // namespace tc
