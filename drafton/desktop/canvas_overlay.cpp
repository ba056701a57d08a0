#include "drafton/desktop/canvas_overlay.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace drafton {
namespace {

/// Lines of the grid are at least so far apart on the screen.
constexpr double kGridGap = 14;
constexpr double kMarkerSize = 6;
constexpr double kGripSize = 4;

/// 1, 5, 10, 50 and so on: the smallest that is at least `least`.
double roundStep(double least) {
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double step : {1.0, 5.0, 10.0})
    if (step * power >= least) return step * power;
  return 10 * power;
}

void addLine(QPainterPath& path, std::initializer_list<QPointF> points) {
  path.addPolygon(QPolygonF(QList<QPointF>(points)));
}

/// The shape of a snap's marker around 0, with a size of 1 to each side.
QPainterPath markerShape(SnapKind kind) {
  QPainterPath path;
  switch (kind) {
  case SnapKind::kEnd:
    path.addRect(-1, -1, 2, 2);
    break;
  case SnapKind::kMiddle:
    addLine(path, {{-1, 0.8}, {1, 0.8}, {0, -1}, {-1, 0.8}});
    break;
  case SnapKind::kCenter:
    path.addEllipse(QPointF(0, 0), 1, 1);
    addLine(path, {{-0.3, 0}, {0.3, 0}});
    addLine(path, {{0, -0.3}, {0, 0.3}});
    break;
  case SnapKind::kNode:
    path.addEllipse(QPointF(0, 0), 1, 1);
    [[fallthrough]];
  case SnapKind::kIntersection:
    addLine(path, {{-1, -1}, {1, 1}});
    addLine(path, {{-1, 1}, {1, -1}});
    break;
  case SnapKind::kQuadrant:
    addLine(path, {{0, -1}, {1, 0}, {0, 1}, {-1, 0}, {0, -1}});
    break;
  case SnapKind::kInsertion:
    path.addRect(-1, -1, 1.3, 1.3);
    path.addRect(-0.3, -0.3, 1.3, 1.3);
    break;
  case SnapKind::kPerpendicular:
    addLine(path, {{-1, -1}, {-1, 1}, {1, 1}});
    addLine(path, {{-1, 0}, {0, 0}, {0, 1}});
    break;
  case SnapKind::kTangent:
    path.addEllipse(QPointF(0, 0.2), 0.8, 0.8);
    addLine(path, {{-1, -0.8}, {1, -0.8}});
    break;
  case SnapKind::kNearest:
    addLine(path, {{-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {-1, -1}});
    break;
  }
  return path;
}

} // namespace

CanvasOverlay::CanvasOverlay(QPainter& painter, const CanvasView& view, bool dark, double ratio)
  : m_painter(painter)
  , m_view(view)
  , m_colors(canvasColors(dark))
  , m_isDark(dark)
  , m_ratio(ratio) {}

void CanvasOverlay::gridLines(double step, const QColor& color) {
  const QRectF rect = m_view.view().rect();
  const OdGePoint3d low = m_view.pointAt(rect.bottomLeft());
  const OdGePoint3d high = m_view.pointAt(rect.topRight());
  m_painter.setPen(QPen(color, 0));
  for (double i = std::ceil(low.x / step); i * step <= high.x; ++i) {
    const double x = std::floor(m_view.pixelOf({i * step, 0, 0}).x()) + 0.5;
    m_painter.drawLine(QPointF(x, rect.top()), QPointF(x, rect.bottom()));
  }
  for (double i = std::ceil(low.y / step); i * step <= high.y; ++i) {
    const double y = std::floor(m_view.pixelOf({0, i * step, 0}).y()) + 0.5;
    m_painter.drawLine(QPointF(rect.left(), y), QPointF(rect.right(), y));
  }
}

void CanvasOverlay::grid() {
  const double step = roundStep(kGridGap * m_ratio * m_view.pixelSize());
  m_painter.save();
  m_painter.setRenderHint(QPainter::Antialiasing, false);
  // Only the ground is darker (or lighter) than the lines: the drawing stays in front.
  m_painter.setCompositionMode(m_isDark ? QPainter::CompositionMode_Lighten
                                        : QPainter::CompositionMode_Darken);
  gridLines(step, m_colors.gridMinor);
  gridLines(step * 10, m_colors.gridMajor);
  const QPointF zero = m_view.pixelOf({0, 0, 0});
  const QRectF rect = m_view.view().rect();
  m_painter.setPen(QPen(m_colors.axisX, 0));
  m_painter.drawLine(QPointF(rect.left(), zero.y()), QPointF(rect.right(), zero.y()));
  m_painter.setPen(QPen(m_colors.axisY, 0));
  m_painter.drawLine(QPointF(zero.x(), rect.top()), QPointF(zero.x(), rect.bottom()));
  m_painter.restore();
}

void CanvasOverlay::rubberBand(const OdGePoint3d& from, const OdGePoint3d& to) {
  m_painter.setPen(QPen(m_colors.band, m_ratio, Qt::DashLine));
  m_painter.drawLine(m_view.pixelOf(from), m_view.pixelOf(to));
}

void CanvasOverlay::box(const QPointF& from, const QPointF& to) {
  m_painter.setPen(QPen(m_colors.band, m_ratio, Qt::DashLine));
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawRect(QRectF(from, to).normalized());
}

void CanvasOverlay::selectionBox(const QPointF& from, const QPointF& to) {
  const bool isCrossing = to.x() < from.x();
  QColor color = isCrossing ? m_colors.crossing : m_colors.window;
  m_painter.setPen(QPen(color, m_ratio, isCrossing ? Qt::DashLine : Qt::SolidLine));
  color.setAlpha(45);
  m_painter.setBrush(color);
  m_painter.drawRect(QRectF(from, to).normalized());
  m_painter.setBrush(Qt::NoBrush);
}

void CanvasOverlay::trackingLine(const OdGePoint3d& from, const OdGePoint3d& to) {
  const QPointF a = m_view.pixelOf(from), b = m_view.pixelOf(to);
  const double length = std::hypot(b.x() - a.x(), b.y() - a.y());
  if (length < 1) return;
  // On to the edge, so that the direction can be seen.
  const double reach = m_view.view().size.width() + m_view.view().size.height();
  m_painter.setPen(QPen(m_colors.track, m_ratio, Qt::DotLine));
  m_painter.drawLine(a, a + (b - a) * (reach / length));
}

void CanvasOverlay::grips(const std::vector<GripTool::Place>& places, const GripTool::Place* hot) {
  const double size = kGripSize * m_ratio;
  for (const GripTool::Place& place : places) {
    const bool isHot = hot && hot->entity == place.entity && hot->grip.number == place.grip.number;
    const QPointF at = m_view.pixelOf(place.grip.at);
    m_painter.setPen(QPen(m_colors.ground, 0));
    m_painter.setBrush(isHot ? m_colors.hotGrip : m_colors.grip);
    m_painter.drawRect(QRectF(at - QPointF(size, size), at + QPointF(size, size)));
  }
  m_painter.setBrush(Qt::NoBrush);
}

void CanvasOverlay::snapMarker(const Snap& snap) {
  const QPointF at = m_view.pixelOf(snap.point);
  const double size = kMarkerSize * m_ratio;
  QTransform place;
  place.translate(at.x(), at.y());
  place.scale(size, size);
  m_painter.setPen(QPen(m_colors.marker, 2 * m_ratio, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawPath(place.map(markerShape(snap.kind)));

  const OdString name = snapName(snap.kind);
  QRectF text = QFontMetricsF(m_painter.font()).boundingRect(name);
  text.moveTopLeft(at + QPointF(3 * size, 2 * size));
  const double margin = 3 * m_ratio;
  m_painter.setPen(QPen(m_colors.tip, 0));
  m_painter.setBrush(m_colors.tipGround);
  m_painter.drawRect(text.adjusted(-margin, -margin, margin, margin));
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawText(text, Qt::AlignCenter | Qt::TextDontClip, name);
}

void CanvasOverlay::cross(const QPointF& at, double part, double pickBoxPixels) {
  const QSizeF size = m_view.view().size;
  const double reach = std::max(size.width(), size.height()) * part;
  const double gap = pickBoxPixels * m_ratio;
  m_painter.setPen(QPen(m_colors.cross, m_ratio));
  m_painter.drawLine(at - QPointF(reach, 0), at - QPointF(gap, 0));
  m_painter.drawLine(at + QPointF(gap, 0), at + QPointF(reach, 0));
  m_painter.drawLine(at - QPointF(0, reach), at - QPointF(0, gap));
  m_painter.drawLine(at + QPointF(0, gap), at + QPointF(0, reach));
  if (gap > 0) pickBox(at, pickBoxPixels);
}

void CanvasOverlay::pickBox(const QPointF& at, double pixels) {
  const QPointF half(pixels * m_ratio, pixels * m_ratio);
  m_painter.setPen(QPen(m_colors.cross, m_ratio));
  m_painter.setBrush(Qt::NoBrush);
  m_painter.drawRect(QRectF(at - half, at + half));
}

} // namespace drafton
