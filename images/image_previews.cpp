// Pictures that an image makes of what its tool acts on.
#include "drawing/database.h"
#include "drawing/entities/attribute_definition.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "host/preview_service.h"
#include "images/gradient_picture.h"
#include "images/image_impl.h"
#include "images/picture_file.h"

namespace tc {
namespace {

constexpr QStringView kBlockLabel = u"Block tool instrument";
constexpr QStringView kHatchLabel = u"Hatch tool instrument";
constexpr QStringView kRasterLabel = u"Raster tool instrument";
constexpr QStringView kSolid = u"SOLID";

/// How much larger than what it shows a view is, so that nothing touches the picture's edge.
constexpr double kMargin = 1.1;

OdGeExtents3d widened(const OdGeExtents3d& box) {
  if (box.isEmpty()) return box;
  const OdGeVector3d half = (box.maxPoint() - box.minPoint()) * 0.5;
  const OdGePoint3d middle = box.minPoint() + half;
  const OdGeVector3d wide{half.x * kMargin, half.y * kMargin, half.z};
  OdGeExtents3d view;
  view.addPoint(middle + -wide);
  view.addPoint(middle + wide);
  return view;
}

/// What a block shows of itself; the texts that its inserts will have are not among it.
OdGeExtents3d extentsOfBlock(const OdDbBlockTableRecord& block) {
  OdGeExtents3d box;
  for (const auto at = block.newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    const auto* const attribute = odrxCast<OdDbAttributeDefinition>(entity.get());
    OdGeExtents3d own;
    if ((!attribute || attribute->isConstant()) && entity->getGeomExtents(own)) box.addExt(own);
  }
  return box.isEmpty() ? block.extents() : box;
}

OdGeExtents3d extentsOf(const OdDbObject& object) {
  if (const auto* block = odrxCast<OdDbBlockTableRecord>(&object)) return extentsOfBlock(*block);
  OdGeExtents3d box;
  if (const auto* entity = odrxCast<OdDbEntity>(&object)) entity->getGeomExtents(box);
  return box;
}

/// What a picture of the object is called; empty if it has no name of its own.
OdString titleOf(const OdDbObject& object) {
  const auto* const block = odrxCast<OdDbBlockTableRecord>(&object);
  if (!block) return {};
  return block->isLayout() ? odpath::titleOf(object.database()->fileName()) : block->getName();
}

} // namespace

bool OdTcImageImpl::takePreview(const QImage& picture, const OdString& name, QStringView label) {
  if (picture.isNull()) return false;
  const OdString title = pictureTitle(name);
  const OdString titled = title.isEmpty() ? OdString() : titledPictureName(title, m_sizeKind);
  setBitmap(picture, title.isEmpty() || isTaken(titled) ? uniqueName(label.toString()) : titled);
  noteLabel(label);
  return true;
}

bool OdTcImageImpl::makeFromBlock(OdDbObjectId source) {
  const KVPtr<IHostPreviewService> host = host::service<IHostPreviewService>();
  const OdDbObjectPtr object = source.openObject();
  if (!host || !object) return false;
  const OdDbObjectId objects[] = {source};
  const QImage picture =
      host->renderObjects(objects, widened(extentsOf(*object)), pixelsOfKind(m_sizeKind));
  return takePreview(picture, titleOf(*object), kBlockLabel);
}

bool OdTcImageImpl::makeFromGradient(const OdString& name, const OdCmColor& first,
                                     const OdCmColor& second) {
  return takePreview(gradientPicture(name, first, second, pixelsOfKind(m_sizeKind)), {},
                     kHatchLabel);
}

bool OdTcImageImpl::makeFromPattern(const OdString& name, const OdString& file,
                                    const std::optional<OdCmColor>& color) {
  if (color && name.compare(kSolid, Qt::CaseInsensitive) == 0)
    return makeFromGradient(QStringLiteral("LINEAR"), *color, *color);
  const KVPtr<IHostPreviewService> host = host::service<IHostPreviewService>();
  return host &&
         takePreview(host->renderPattern(name, file, pixelsOfKind(m_sizeKind)), {}, kHatchLabel);
}

bool OdTcImageImpl::makeFromUserPattern(double angle, bool isCrosswise) {
  const KVPtr<IHostPreviewService> host = host::service<IHostPreviewService>();
  return host && takePreview(host->renderUserPattern(angle, isCrosswise, pixelsOfKind(m_sizeKind)),
                             {}, kHatchLabel);
}

bool OdTcImageImpl::setSrcFromFile(const OdString& path) {
  return setSrcFromPicture(loadPicture(path), path);
}

bool OdTcImageImpl::setSrcFromPicture(const QImage& picture, const OdString& path) {
  if (picture.isNull()) return false;
  const int pixels = pixelsOfKind(m_sizeKind);
  return takePreview(
      picture.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
      odpath::titleOf(path), kRasterLabel);
}

bool OdTcImageImpl::makeFromDrawing(const OdString& path) {
  const KVPtr<IHostPreviewService> host = host::service<IHostPreviewService>();
  if (!host) return false;
  const int pixels = pixelsOfKind(m_sizeKind);
  QImage picture = host->storedPreview(path, pixels);
  if (picture.isNull()) picture = host->fileIcon(path, pixels);
  return takePreview(picture, odpath::titleOf(path), kBlockLabel);
}

} // namespace tc
