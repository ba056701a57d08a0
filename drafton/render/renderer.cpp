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

} // namespace drafton
