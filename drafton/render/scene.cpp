#include "drafton/render/scene.h"

#include "drawing/graphics/measure.h"

#include <algorithm>

namespace drafton {
namespace {

/// Boxes of blocks nested deeper than this may be too small after a change in the innermost.
constexpr int kDeepest = 32;

bool isInserted(OdDbObjectId block) {
  const OdDbObjectPtr object = block.openObject();
  const auto* record = odrxCast<OdDbBlockTableRecord>(object);
  return record != nullptr && !record->isLayout();
}

/// Keeps a block from being recorded while it is.
class Building {
 public:
  Building(std::unordered_set<OdDbObjectId>& all, OdDbObjectId id)
    : m_all(all)
    , m_id(id) {
    m_all.insert(id);
  }
  ~Building() { m_all.erase(m_id); }
  Building(const Building&) = delete;
  Building& operator=(const Building&) = delete;

 private:
  std::unordered_set<OdDbObjectId>& m_all;
  OdDbObjectId m_id;
};

} // namespace

Scene::Scene(OdDbDatabase& database)
  : m_database(&database)
  , m_styles(database) {
  database.addReactor(this);
}

Scene::~Scene() {
  if (m_database != nullptr) m_database->removeReactor(this);
}

BlockShapes* Scene::shapes(OdDbObjectId block, double deviation) {
  if (m_database == nullptr || m_building.contains(block)) return nullptr;
  if (const auto found = m_blocks.find(block); found != m_blocks.end()) return found->second.get();
  if (m_building.size() >= odgi::kDeepestBlock) return nullptr;
  const OdDbObjectPtr object = block.openObject();
  if (odrxCast<OdDbBlockTableRecord>(object) == nullptr) return nullptr;
  const Building building(m_building, block);
  auto made = std::make_unique<BlockShapes>(*this, block, deviation);
  return m_blocks.insert_or_assign(block, std::move(made)).first->second.get();
}

OdGeExtents3d Scene::boxOf(OdDbObjectId block, double deviation) {
  const BlockShapes* const found = shapes(block, deviation);
  return found != nullptr ? found->box() : OdGeExtents3d();
}

void Scene::update() {
  if (m_database == nullptr) return;
  m_database->deliverChanges();
  if (isStale()) ++m_revision;
  if (m_allDirty) {
    m_blocks.clear();
    m_styles.refresh();
    m_dirty.clear();
  }
  m_allDirty = false;
  if (m_dirty.empty()) return;
  std::unordered_set<OdDbObjectId> changed;
  for (const OdDbObjectId id : std::exchange(m_dirty, {})) {
    if (const OdDbObjectPtr object = id.openObject(OdDb::kForRead, true)) {
      if (updateIn(object->ownerId(), id)) changed.insert(object->ownerId());
      continue;
    }
    // An entity whose making was undone does not tell any more where it was.
    for (const auto& [block, shapes] : m_blocks)
      if (shapes->itemOf(id) && updateIn(block, id)) changed.insert(block);
  }
  if (std::ranges::any_of(changed, isInserted)) {
    // Blocks stand in blocks: boxes grow from the inside out.
    for (int depth = 0; depth < kDeepest; ++depth) {
      bool any = false;
      for (const auto& [id, shapes] : m_blocks) any = shapes->updateBlockBoxes() || any;
      if (!any) break;
    }
  }
  std::erase_if(m_blocks, [](const auto& entry) { return entry.second->isMostlyWaste(); });
}

bool Scene::updateIn(OdDbObjectId block, OdDbObjectId entity) {
  const auto found = m_blocks.find(block);
  if (found == m_blocks.end()) return false;
  found->second->update(entity);
  return true;
}

/// Files what has changed under what has to be done about it.
void Scene::takeChange(OdDbObjectId id) {
  if (m_allDirty) return;
  const OdDbObjectPtr object = id.openObject(OdDb::kForRead, true);
  if (!object) {
    m_dirty.insert(id);
    return;
  }
  if (odrxCast<OdDbEntity>(object) != nullptr) {
    // Attributes and vertices are shown by what owns them.
    OdDbObjectId top = id;
    for (OdDbObjectPtr at = object; at; at = at->ownerId().openObject(OdDb::kForRead, true)) {
      if (odrxCast<OdDbEntity>(at) == nullptr) break;
      top = at->objectId();
    }
    m_dirty.insert(top);
  } else if (odrxCast<OdDbBlockTableRecord>(object) == nullptr &&
             odrxCast<OdDbDictionary>(object) == nullptr &&
             odrxCast<OdDbAbstractViewTableRecord>(object) == nullptr) {
    // Layers, styles, definitions of images, orders of drawing: rare, and seen in many places.
    // Where one looks changes nothing of what there is to see.
    m_allDirty = true;
  }
}

void Scene::objectAppended(const OdDbDatabase&, OdDbObjectId id) { takeChange(id); }
void Scene::objectUnAppended(const OdDbDatabase&, OdDbObjectId id) { takeChange(id); }
void Scene::objectModified(const OdDbDatabase&, OdDbObjectId id) { takeChange(id); }
void Scene::objectErased(const OdDbDatabase&, OdDbObjectId id, bool) { takeChange(id); }

void Scene::goodbye(const OdDbDatabase&) {
  m_blocks.clear();
  m_dirty.clear();
  m_database = nullptr;
}

} // namespace drafton
