// What pictures are drawn on.
#pragma once

#include "drafton/render/tile_raster.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <span>
#include <vector>

namespace drafton {

/// A painter with the ways that drawings need: very many thin lines, some thick ones, areas.
/// Coordinates are pixels of the device; what lies far outside costs little.
class Surface {
 public:
  /// `painter` is active; its transformation is that of the device. If it draws on a picture,
  /// thin lines and small areas go through `raster`, which draws on the same one; else it is null.
  explicit Surface(QPainter& painter, const QRectF& rect, TileRaster* raster = nullptr);
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  /// What can be seen.
  const QRectF& clipRect() const { return m_clip; }
  /// Narrows what can be seen, until restore().
  void clip(const QPainterPath& outline);
  void restore();

  /// The colour of lines, and their width in pixels; thin lines have the width of a pixel.
  void setPen(QRgb color, double width);
  double penWidth() const { return m_isThin ? 1 : m_width; }
  void line(const QPointF& from, const QPointF& to);
  void polyline(std::span<const QPointF> points, bool closed);
  /// Draws along a path.
  void outline(const QPainterPath& path);
  /// A spot of the pen's width.
  void dot(const QPointF& at);
  /// A path that fills the same pixels, without what is far outside of them.
  QPainterPath cut(QPainterPath path) const;
  /// Fills with the pen's colour.
  void fill(const QPainterPath& path);
  void fill(std::span<const QPolygonF> rings, Qt::FillRule rule);
  /// True for pages that have fonts of their own and are enlarged as one likes.
  bool hasFonts() const { return m_hasFonts; }
  /// The painter for all else; what was drawn before is then on the device.
  QPainter& painter();

 private:
  void flush();
  void applyPen();
  bool fillSmall(std::span<const QPolygonF> rings, const QRectF& box, Qt::FillRule rule);

  struct Saved {
    QRectF clip;
    bool usesRaster;
  };
  QPainter& m_painter;
  QRectF m_clip;
  TileRaster* m_raster;
  bool m_usesRaster;
  bool m_keepsPaths; ///< lines of several points go out as a whole
  std::vector<Saved> m_saved;
  std::vector<QLineF> m_lines;
  QRgb m_color = 0;
  double m_width = 1;
  bool m_isThin = true, m_penApplied = false, m_hasFonts;
};

/// The part of a polygon that is inside of a rectangle.
QPolygonF cutPolygon(QPolygonF polygon, const QRectF& rect);

} // namespace drafton
