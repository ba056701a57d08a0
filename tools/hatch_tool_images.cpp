// The pictures of a hatch tool.
#include "images/image_list.h"
#include "module/catalog_item.h"
#include "properties/gradient_names.h"
#include "tools/conveyor_impl.h"
#include "tools/hatch_tool.h"
#include "tools/source_files.h"

namespace tc {
namespace {

/// The library in which the pictures of another program's tools lie.
constexpr QStringView kForeignPictures = u"AcTpCatalogRes.dll";

/// The tool that the agent stands in; null outside of one.
OdTcCatalogItem* itemAround(const OdTcPersist& agent) {
  for (OdTcPersist* around = agent.owner(); around; around = around->owner())
    if (auto* const item = dynamic_cast<OdTcCatalogItem*>(around)) return item;
  return nullptr;
}

bool hasForeignPictures(const OdTcImageList& images) {
  const auto all = images.enumImages();
  while (const OdTcImage* const image = all->next())
    if (image->src() == kForeignPictures) return true;
  return false;
}

} // namespace

std::optional<OdCmColor>
OdTcToolHatchCommandImpl::ownColorOf(const std::optional<OdCmColor>& color) {
  return color && !color->isByLayer() && !color->isByBlock() ? color : std::nullopt;
}

bool OdTcToolHatchCommandImpl::renderPattern(OdTcImage& image, const OdString& pattern,
                                             const std::optional<OdCmColor>& color) const {
  if (m_fields.hatchObjectType == 1)
    return image.makeFromGradient(m_fields.gradientName, getGradientColor1(), getGradientColor2());
  if (m_fields.hatchObjectType != 0) return false;
  if (isUserDefined(pattern))
    return image.makeFromUserPattern(m_fields.angle, m_fields.isCrosswise);
  return image.makeFromPattern(pattern, patternFile(), ownColorOf(color));
}

bool OdTcToolHatchCommandImpl::renderImage(OdTcImage& image) const {
  return renderPattern(image, m_fields.patternName, m_previewColor);
}

bool OdTcToolHatchCommandImpl::makePicture(OdTcImage& image, OdTcSourceFiles& files) const {
  if (renderPattern(image, m_fields.patternName, generalColor())) return true;
  const OdString pattern = soughtPattern();
  files.setProblem(
      pattern.isEmpty()
          ? host::translate(QStringLiteral("there is nothing to make a picture of"))
          : host::translate(QStringLiteral("there is no hatch pattern \"%1\"")).arg(pattern));
  return false;
}

void OdTcToolHatchCommandImpl::updateImages(const OdString& pattern) {
  OdTcConveyorImpl* const conveyor = OdTcConveyorImpl::instance();
  if (!m_imagesEnabled || !conveyor) return;
  for (const std::int32_t kind : {4, 3, 1}) {
    const OdTcImagePtr image = OdTcImage::createObject();
    // In the palette, so that the name that the picture gets is free there.
    image->setOwner(this);
    image->setSizeKind(kind);
    if (renderPattern(*image, pattern, m_previewColor)) conveyor->push(image);
  }
  conveyor->flush();
}

bool OdTcToolHatchCommandImpl::refreshImages(IHostDocument*) {
  OdTcCatalogItem* const item = itemAround(*this);
  OdTcImageList* const images = item ? item->images() : nullptr;
  if (!images || !hasForeignPictures(*images)) return false;
  if (const std::optional<OdCmColor> color = generalColor()) m_previewColor = *color;
  const OdTcImageListPtr fresh = OdTcImageList::createObject();
  fresh->setOwner(images->owner());
  if (!fresh->setFrom([this](OdTcImage& image) { return renderImage(image); })) return false;
  item->setImages(fresh);
  return true;
}

} // namespace tc
