// What a canvas paints over the drawing: grid, rubber bands, markers, the cursor.
#pragma once

#include "drafton/desktop/canvas_view.h"
#include "drafton/desktop/drafting_aids.h"
#include "drafton/desktop/grip_tool.h"
#include "drafton/desktop/theme.h"

class QPainter;

namespace drafton {

/// Paints on a device in its pixels. `ratio` is how many of them a length of 1 on the screen has.
class CanvasOverlay {
 public:
  CanvasOverlay(QPainter& painter, const CanvasView& view, bool dark, double ratio);

  /// Lines under the drawing, as far as it leaves the ground free.
  void grid();
  void rubberBand(const OdGePoint3d& from, const OdGePoint3d& to);
  void box(const QPointF& from, const QPointF& to);
  /// The box by which entities are chosen.
  void selectionBox(const QPointF& from, const QPointF& to);
  void trackingLine(const OdGePoint3d& from, const OdGePoint3d& to);
  void grips(const std::vector<GripTool::Place>& places, const GripTool::Place* hot);
  void snapMarker(const Snap& snap);
  /// `part` of the canvas that the lines of the cross reach over; the small box has `pickBox`
  /// pixels to each side.
  void cross(const QPointF& at, double part, double pickBox);
  void pickBox(const QPointF& at, double pixels);

 private:
  void gridLines(double step, const QColor& color);

  QPainter& m_painter;
  const CanvasView& m_view;
  const CanvasColors& m_colors;
  bool m_isDark;
  double m_ratio;
};

} // namespace drafton
