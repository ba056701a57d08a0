// Finding entities by where they are seen.
#pragma once

#include "drafton/render/render_options.h"
#include "drafton/render/scene.h"
#include "drafton/render/view.h"

namespace drafton {

/// Finds entities of a block of a scene as a view shows them. Entities on layers that are off or
/// frozen are not found, nor are hidden ones. What is inside of inserts counts for the insert.
class Picker {
 public:
  /// All must live as long as this.
  Picker(Scene& scene, OdDbObjectId block, const View& view);

  /// Entities of which anything is in the box of `reach` pixels around a pixel, the one drawn last
  /// first. Areas are hit inside, too.
  std::vector<OdDbObjectId> at(const QPointF& pixel, double reach);
  /// Entities that are wholly within a rectangle of the picture, in the order in which they are
  /// drawn.
  std::vector<OdDbObjectId> inside(const QRectF& rect);
  /// Entities of which anything is within a rectangle of the picture, in the order in which they
  /// are drawn.
  std::vector<OdDbObjectId> crossing(const QRectF& rect);

 private:
  std::vector<OdDbObjectId> find(const QRectF& rect, bool whole);

  Scene& m_scene;
  OdDbObjectId m_block;
  View m_view;
};

} // namespace drafton
