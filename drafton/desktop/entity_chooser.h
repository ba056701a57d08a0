// Choosing entities on a canvas while no command runs.
#pragma once

#include "drafton/desktop/canvas_view.h"
#include "drafton/engine/selection_picker.h"

namespace drafton {

/// Finds entities by pixels and keeps what is chosen in the document, where the next command finds
/// it. What cannot be chosen (on locked layers, say) is left out; groups come as a whole.
class EntityChooser {
 public:
  EntityChooser(Document& document, Scene& scene, const CanvasView& view)
    : m_document(document)
    , m_scene(scene)
    , m_view(view) {}

  /// The topmost entity at a pixel with those of its group; empty if there is none.
  Selection at(const QPointF& pixel) const;
  /// That entity alone; null if there is none.
  OdDbObjectId topmost(const QPointF& pixel) const;
  /// All entities at a pixel, topmost first, for object snaps. At most some.
  std::vector<OdDbEntityPtr> near(const QPointF& pixel, double reach) const;
  /// What two corners choose: to the right what is inside, to the left what is met.
  Selection between(const QPointF& from, const QPointF& to) const;

  /// Adds to what is chosen, or takes away from it.
  void add(const Selection& entities);
  void remove(const Selection& entities);
  void clear() { m_document.preselection().clear(); }
  /// Forgets what was erased meanwhile. What is chosen is still there then.
  const Selection& chosen();

 private:
  Selection reachable(const Selection& entities) const;

  Document& m_document;
  Scene& m_scene;
  const CanvasView& m_view;
};

} // namespace drafton
