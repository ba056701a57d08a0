#include "drafton/render/renderer.h"

#include "drafton/render/scene_painter.h"

namespace drafton {
namespace {

void draw(Surface& surface, Scene& scene, OdDbObjectId block, const View& view,
          const RenderOptions& options, TransientEntities transient) {
  ScenePainter painter(scene, surface, options);
  painter.draw(block, view);
  painter.drawTransient(transient, view);
}

/// The painter and the part of the device that the view takes.
void prepare(QPainter& painter, const View& view) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setClipRect(view.rect(), Qt::IntersectClip);
}

} // namespace

void render(QImage& picture, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient) {
  scene.update();
  if (scene.database() == nullptr || picture.isNull()) return;
  // Before a painter holds the picture: its memory has to be its own.
  uchar* const bits = picture.bits();
  std::optional<ThinLines> raster;
  if (ThinLines::suits(picture.format()))
    raster.emplace(bits, picture.bytesPerLine(), picture.size());
  QPainter painter(&picture);
  prepare(painter, view);
  Surface surface(painter, view.rect() & QRectF(picture.rect()), raster);
  draw(surface, scene, block, view, options, transient);
}

void render(QPainter& painter, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient) {
  scene.update();
  if (scene.database() == nullptr) return;
  painter.save();
  prepare(painter, view);
  {
    Surface surface(painter, view.rect());
    draw(surface, scene, block, view, options, transient);
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
