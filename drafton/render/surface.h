// What pictures are drawn on.
#pragma once

#include "drafton/render/thin_lines.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <optional>
#include <span>
#include <vector>

namespace drafton {

/// A painter with the ways that drawings need: very many thin lines, some thick ones, areas.
/// Coordinates are pixels of the device; what lies far outside costs little.
class Surface {
 public:
  /// `painter` is active; its transformation is that of the device. If it draws on a picture,
  /// `raster` tells where the picture's memory is, and thin lines go there straight.
  explicit Surface(QPainter& painter, const QRectF& rect,
                   std::optional<ThinLines> raster = std::nullopt);
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
  /// A spot of the pen's width.
  void dot(const QPointF& at);
  /// A path that fills the same pixels, without what is far outside of them.
  QPainterPath cut(QPainterPath path) const;
  /// Fills with the pen's colour.
  void fill(const QPainterPath& path);
  /// The painter for all else; what was drawn before is then on the device.
  QPainter& painter();

 private:
  void flush();
  void applyPen();

  struct Saved {
    QRectF clip;
    bool usesRaster;
  };
  QPainter& m_painter;
  QRectF m_clip;
  std::optional<ThinLines> m_raster;
  bool m_usesRaster;
  std::vector<Saved> m_saved;
  std::vector<QLineF> m_lines;
  QRgb m_color = 0;
  double m_width = 1;
  bool m_isThin = true, m_penApplied = false;
};

/// The part of a polygon that is inside of a rectangle.
QPolygonF cutPolygon(QPolygonF polygon, const QRectF& rect);

} // namespace drafton
