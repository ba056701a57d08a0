// Associative hatches follow their boundaries.
#pragma once

#include "drawing/database.h"

#include <unordered_set>

class OdDbHatch;

namespace drafton {

/// Watches one drawing. When entities were changed that associative hatches have as their boundary,
/// the hatches get the boundary that they make now. A hatch whose boundary is gone, or that was
/// moved away from it, stays as it is and is no longer associative.
class HatchKeeper : private OdDbDatabaseReactor {
 public:
  explicit HatchKeeper(OdDbDatabase& database);
  HatchKeeper(const HatchKeeper&) = delete;
  HatchKeeper& operator=(const HatchKeeper&) = delete;
  ~HatchKeeper() override;

  /// Lets the hatches follow what was changed since the last call; called while the step of the
  /// command that did so is open. Gaps up to `gap` are closed.
  void follow(double gap);
  /// Passes over what was changed since the last call: going back takes the hatches with it.
  void forget() { m_touched.clear(); }

 private:
  void objectAppended(const OdDbDatabase&, OdDbObjectId id) override;
  void objectModified(const OdDbDatabase&, OdDbObjectId id) override { m_touched.insert(id); }
  void objectErased(const OdDbDatabase&, OdDbObjectId id, bool) override { m_touched.insert(id); }

  void findHatches();
  void follow(OdDbObjectId hatch, double gap);
  bool hasNewBoundary(OdDbHatch& hatch, double gap) const;

  OdDbDatabase& m_database;
  std::unordered_set<OdDbObjectId> m_touched;
  std::vector<OdDbObjectId> m_hatches; ///< all that were ever there
  bool m_knowsHatches = false;
};

} // namespace drafton
