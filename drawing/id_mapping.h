// Which object became which.
#pragma once

#include "drawing/object_id.h"

#include <unordered_map>
#include <vector>

namespace OdDb {

/// What happens to a named record that the other drawing has already.
enum DuplicateRecordCloning : std::uint8_t {
  kDrcIgnore,         ///< that of the destination counts
  kDrcReplace,        ///< it becomes as the source has it
  kDrcMangleName,     ///< both stay: the new one is named "NAME$0$Record"
  kDrcXrefMangleName, ///< "NAME|Record", for references
};

} // namespace OdDb

/// The pairs of a cloning, in its order.
class OdDbIdMapping {
 public:
  struct Pair {
    OdDbObjectId key, value;
    bool isCloned = true; ///< false: an object that was there already
  };

  /// The object that one became; null if none.
  OdDbObjectId find(OdDbObjectId key) const {
    const auto at = m_index.find(key);
    return at == m_index.end() ? OdDbObjectId() : m_pairs[at->second].value;
  }
  bool contains(OdDbObjectId key) const { return m_index.contains(key); }
  /// Replaces the pair of the key if there is one.
  void assign(const Pair& pair) {
    const auto [at, isNew] = m_index.try_emplace(pair.key, m_pairs.size());
    if (isNew)
      m_pairs.push_back(pair);
    else
      m_pairs[at->second] = pair;
  }
  const std::vector<Pair>& pairs() const { return m_pairs; }

 private:
  std::vector<Pair> m_pairs;
  std::unordered_map<OdDbObjectId, std::size_t> m_index;
};
