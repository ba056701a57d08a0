#include "drafton/render/image_cache.h"
#include "drafton/render/piece_painter.h"
#include "drafton/render/text_shapes.h"
#include "drawing/entities/raster_image.h"
#include "frame/file_path.h"

#include <algorithm>
#include <cmath>

namespace drafton {
namespace {

/// The name of a missing picture takes this part of its width, and at most this of its height.
constexpr double kNameWidth = 0.8, kNameHeight = 0.12;

QPolygonF shown(const Projection& projection, std::span<const OdGePoint3d> corners) {
  QPolygonF polygon;
  for (const OdGePoint3d& p : corners) polygon << projection(p);
  return polygon;
}

} // namespace

void PiecePainter::drawFrame(std::span<const OdGePoint3d> corners) {
  if (m_haloWidth > 0)
    m_surface.setPen(m_haloColor, m_haloWidth);
  else
    m_surface.setPen(m_color, 1);
  plainLine(corners, true);
}

void PiecePainter::drawImage(const OdDbRasterImage& image) {
  const std::vector<OdGePoint3d> edge = image.shownBoundary();
  if (m_haloWidth > 0) return drawFrame(edge);
  const OdDbObjectPtr object = image.imageDefId().openObject();
  const auto* definition = odrxCast<OdDbRasterImageDef>(object);
  const OdString path = definition != nullptr ? definition->activeFileName() : OdString();
  const QTransform placed = m_projection->planeOf(image.pixelToWorld());
  const QRectF box = shown(*m_projection, edge).boundingRect();
  if (image.isDisplayed() && box.intersects(m_surface.clipRect())) {
    const double width = std::hypot(placed.m11(), placed.m12()) * image.imageSize().x;
    const QImage picture = ImageCache::instance().find(
        path, width, {image.brightness(), image.contrast(), image.fade()},
        m_options.ground.color());
    if (picture.isNull())
      drawMissing(odpath::fileNameOf(path), image.corners());
    else
      drawPicture(picture, placed, image, edge);
  }
  drawFrame(edge);
}

void PiecePainter::drawPicture(const QImage& picture, const QTransform& placed,
                               const OdDbRasterImage& image, std::span<const OdGePoint3d> edge) {
  QPainterPath outline;
  outline.addPolygon(shown(*m_projection, edge));
  outline.closeSubpath();
  if (image.isClipped() && image.isClipInverted()) {
    QPainterPath whole;
    whole.addPolygon(shown(*m_projection, image.corners()));
    whole.closeSubpath();
    outline = whole.subtracted(outline);
  }
  QPainter& painter = m_surface.painter();
  painter.save();
  painter.setClipPath(outline, Qt::IntersectClip);
  painter.setOpacity(m_style.alpha / 255.0);
  painter.setTransform(placed, true);
  painter.drawImage(QRectF(0, 0, image.imageSize().x, image.imageSize().y), picture);
  painter.restore();
}

void PiecePainter::drawMissing(const OdString& name, std::span<const OdGePoint3d> corners) {
  if (corners.size() != 4 || name.isEmpty()) return;
  const OdGeVector3d u = corners[1] - corners[0], v = corners[3] - corners[0];
  OdGiTextRun run;
  run.text = name;
  const double advance = OdGiTextMetrics::current().advance(name, run.font);
  const double height =
      std::min(kNameHeight * v.length(), advance > 0 ? kNameWidth * u.length() / advance : 0);
  run.along = u.normal() * height;
  run.up = v.normal() * height;
  run.origin = corners[0] + u * 0.5 + v * 0.5 - run.along * (advance / 2) - run.up * 0.5;
  text(run, advance);
}

} // namespace drafton
