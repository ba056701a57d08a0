// Dragging the grips of what is chosen.
#pragma once

#include "drafton/desktop/canvas_view.h"
#include "drafton/desktop/desktop.h"
#include "drafton/engine/grips.h"

namespace drafton {

/// The grips of the chosen entities while no command runs, and the one that is being dragged.
class GripTool {
 public:
  struct Place {
    OdDbObjectId entity;
    Grip grip;
  };

  /// Takes the grips of entities anew; of a large choice there are none.
  void setEntities(const std::vector<OdDbObjectId>& entities);
  const std::vector<Place>& places() const { return m_places; }
  /// The grip at a pixel; null if there is none.
  const Place* at(const QPointF& pixel, const CanvasView& view, double reach) const;

  bool isDragging() const { return m_dragged.has_value(); }
  /// The place that is dragged; only while isDragging().
  const Place& dragged() const { return *m_dragged; }
  void begin(const Place& place) { m_dragged = place; }
  void cancel() { m_dragged.reset(); }
  /// The entity as it would be if the drag ended at a point.
  PreviewShapes shownAt(const OdGePoint3d& point) const;
  /// Changes the entity, as an undo step of its own.
  void end(Desktop& desktop, const OdGePoint3d& point);

 private:
  std::vector<Place> m_places;
  std::optional<Place> m_dragged;
};

} // namespace drafton
