// A drawing, ready for drawing on screens and paper.
#pragma once

#include "drafton/render/block_shapes.h"
#include "drawing/database.h"

#include <unordered_set>

namespace drafton {

/// Keeps what the blocks of a drawing show, and follows the drawing's changes. It is made once for
/// a drawing and may outlive it, but then shows nothing. For the thread of the drawing.
class Scene : public OdDbDatabaseReactor {
 public:
  explicit Scene(OdDbDatabase& database);
  ~Scene() override;
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  /// Null once the drawing is gone.
  OdDbDatabase* database() const { return m_database; }
  StyleTables& styles() { return m_styles; }

  /// Takes over what was changed since the last call. Drawing and picking do this by themselves.
  void update();
  /// Grows with each update() that took over something.
  std::uint64_t revision() const { return m_revision; }
  /// What a block shows, with curves at least as smooth as `deviation` where they are recorded
  /// newly; null if there is no such block. The reference holds until the next update().
  BlockShapes* shapes(OdDbObjectId block, double deviation);
  /// True if there are changes that update() would take over.
  bool isStale() const { return m_allDirty || !m_dirty.empty(); }

  /// The box around a block; empty for one that contains itself, where that happens.
  OdGeExtents3d boxOf(OdDbObjectId block, double deviation);

  void objectAppended(const OdDbDatabase&, OdDbObjectId id) override;
  void objectUnAppended(const OdDbDatabase&, OdDbObjectId id) override;
  void objectModified(const OdDbDatabase&, OdDbObjectId id) override;
  void objectErased(const OdDbDatabase&, OdDbObjectId id, bool erased) override;
  void goodbye(const OdDbDatabase&) override;

 private:
  void takeChange(OdDbObjectId id);
  /// False if the block is not recorded.
  bool updateIn(OdDbObjectId block, OdDbObjectId entity);

  OdDbDatabase* m_database;
  StyleTables m_styles;
  std::unordered_map<OdDbObjectId, std::unique_ptr<BlockShapes>> m_blocks;
  std::unordered_set<OdDbObjectId> m_building; ///< blocks that are just being recorded
  std::unordered_set<OdDbObjectId> m_dirty;
  bool m_allDirty = false;
  std::uint64_t m_revision = 0;
};

} // namespace drafton
