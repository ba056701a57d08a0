#include "drafton/render/renderer.h"

#include "drafton/render/scene_painter.h"

namespace drafton {
namespace {

/// The painter and the part of the device that the view takes.
void prepare(QPainter& painter, const QRectF& part) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setClipRect(part, Qt::IntersectClip);
}

/// Has `draw` draw on a picture.
template <typename Draw>
void drawOn(QImage& picture, Scene& scene, const View& view, const RenderOptions& options,
            const Draw& draw) {
  scene.update();
  if (scene.database() == nullptr || picture.isNull()) return;
  // Before a painter holds the picture: its memory has to be its own.
  uchar* const bits = picture.bits();
  std::optional<TileRaster> raster;
  if (ThinLines::suits(picture.format()))
    raster.emplace(bits, picture.bytesPerLine(), picture.size());
  QPainter painter(&picture);
  QRectF part = view.rect() & QRectF(picture.rect());
  if (!options.part.isEmpty()) part &= QRectF(options.part);
  prepare(painter, part);
  Surface surface(painter, part, raster ? &*raster : nullptr);
  ScenePainter scenePainter(scene, surface, options);
  draw(scenePainter);
}

} // namespace

void render(QImage& picture, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient) {
  drawOn(picture, scene, view, options, [&](ScenePainter& painter) {
    painter.draw(block, view);
    painter.drawTransient(transient, view);
  });
}

void renderTransient(QImage& picture, Scene& scene, const View& view, const RenderOptions& options,
                     TransientEntities transient) {
  drawOn(picture, scene, view, options,
         [&](ScenePainter& painter) { painter.drawTransient(transient, view); });
}

void render(QPainter& painter, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient) {
  scene.update();
  if (scene.database() == nullptr) return;
  painter.save();
  QRectF part = view.rect();
  if (!options.part.isEmpty()) part &= QRectF(options.part);
  prepare(painter, part);
  {
    Surface surface(painter, part);
    ScenePainter scenePainter(scene, surface, options);
    scenePainter.draw(block, view);
    scenePainter.drawTransient(transient, view);
  }
  painter.restore();
}

QImage renderEntities(std::span<const OdDbObjectId> entities, const QSize& size, double margin,
                      const RenderOptions& options) {
  std::vector<OdDbEntityPtr> opened;
  OdGeExtents3d box;
  for (const OdDbObjectId id : entities) {
    const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get());
    if (!entity) continue;
    opened.push_back(entity);
    if (OdGeExtents3d own; entity->getGeomExtents(own)) box.addExt(own);
  }
  if (opened.empty() || box.isEmpty() || size.isEmpty()) return {};
  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(QColor::fromRgba(options.ground.color()));
  Scene scene(*opened.front()->database());
  View view;
  view.size = size;
  render(picture, scene, OdDbObjectId(), view.fitted(box, margin), options, opened);
  return picture;
}

} // namespace drafton
