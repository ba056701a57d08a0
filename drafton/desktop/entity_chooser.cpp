#include "drafton/desktop/entity_chooser.h"

#include "drafton/engine/entity_groups.h"
#include "drafton/render/pick.h"

#include <algorithm>

namespace drafton {
namespace {

constexpr std::size_t kMostNear = 30;

/// The distance in pixels from which an entity is hit.
double pickReach(Document& document) {
  OdVariant pixels;
  document.variables()->get(QStringLiteral("PICKBOX"), pixels);
  return std::max(1.0, pixels.toDouble());
}

} // namespace

Selection EntityChooser::reachable(const Selection& entities) const {
  OdVariant style;
  const bool groups =
      m_document.variables()->get(QStringLiteral("PICKSTYLE"), style) && (style.toInt32() & 1);
  const SelectionPicker picker(m_document);
  return picker.amongst(groups ? withGroups(*m_document.database(), entities) : entities);
}

Selection EntityChooser::at(const QPointF& pixel) const {
  Picker picker(m_scene, m_view.block(), m_view.view());
  for (const OdDbObjectId id : picker.at(pixel, pickReach(m_document)))
    if (Selection found = reachable({id}); !found.empty()) return found;
  return {};
}

OdDbObjectId EntityChooser::topmost(const QPointF& pixel) const {
  Picker picker(m_scene, m_view.block(), m_view.view());
  for (const OdDbObjectId id : picker.at(pixel, pickReach(m_document)))
    if (!reachable({id}).empty()) return id;
  return {};
}

std::vector<OdDbEntityPtr> EntityChooser::near(const QPointF& pixel, double reach) const {
  std::vector<OdDbEntityPtr> found;
  Picker picker(m_scene, m_view.block(), m_view.view());
  for (const OdDbObjectId id : picker.at(pixel, reach)) {
    if (const OdDbEntityPtr entity = odrxCast<OdDbEntity>(id.openObject().get()))
      found.push_back(entity);
    if (found.size() >= kMostNear) break;
  }
  return found;
}

Selection EntityChooser::between(const QPointF& from, const QPointF& to) const {
  Picker picker(m_scene, m_view.block(), m_view.view());
  const QRectF rect = QRectF(from, to).normalized();
  return reachable(to.x() < from.x() ? picker.crossing(rect) : picker.inside(rect));
}

void EntityChooser::add(const Selection& entities) {
  Selection& chosen = m_document.preselection();
  std::unordered_set<OdDbObjectId> known(chosen.begin(), chosen.end());
  for (const OdDbObjectId id : entities)
    if (known.insert(id).second) chosen.push_back(id);
}

void EntityChooser::remove(const Selection& entities) {
  const std::unordered_set<OdDbObjectId> gone(entities.begin(), entities.end());
  std::erase_if(m_document.preselection(), [&](OdDbObjectId id) { return gone.contains(id); });
}

const Selection& EntityChooser::chosen() {
  Selection& chosen = m_document.preselection();
  std::erase_if(chosen, [](OdDbObjectId id) { return !id.openObject(); });
  return chosen;
}

} // namespace drafton
