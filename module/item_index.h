// Finds items by id in constant time.
#pragma once

#include "module/item_id.h"

#include <QHash>

namespace tc {

/// An index over a vector of pointers to items, in which later items of an id that is there already
/// are not found. It is built once a long vector is searched again and again, follows items that
/// are appended, and is built anew when an id has changed since.
class OdTcItemIndex {
 public:
  /// The position of the first item with that id, or -1. `items` is the same vector at each call.
  template <class Container>
  qsizetype find(const Container& items, const OdString& id) const {
    const auto count = static_cast<qsizetype>(items.size());
    if (count <= kSmall || !isWorthwhile()) return scan(items, id);
    if (m_epoch != OdTcIdEpoch::current() || m_indexed > count) {
      m_positions.clear();
      m_indexed = 0;
    }
    for (; m_indexed < count; ++m_indexed) {
      const OdString& key = items[static_cast<std::size_t>(m_indexed)]->id();
      if (!m_positions.contains(key)) m_positions.insert(key, m_indexed);
    }
    // Asking an item for its id cannot change one that has been seen, so the epoch is still good.
    m_epoch = OdTcIdEpoch::current();
    return m_positions.value(id, -1);
  }

  /// Says that items were removed or moved.
  void drop() {
    m_positions.clear();
    m_indexed = 0;
    m_scans = 0;
  }

 private:
  static constexpr qsizetype kSmall = 16;
  static constexpr int kScansBeforeIndex = 4;

  // Removing item after item drops the index each time; building it for one lookup would cost more
  // than the lookup itself.
  bool isWorthwhile() const {
    return m_scans >= kScansBeforeIndex || ++m_scans > kScansBeforeIndex;
  }

  template <class Container>
  static qsizetype scan(const Container& items, const OdString& id) {
    qsizetype position = 0;
    for (const auto& item : items) {
      if (item->id() == id) return position;
      ++position;
    }
    return -1;
  }

  mutable QHash<OdString, qsizetype> m_positions;
  mutable qsizetype m_indexed = 0;
  mutable unsigned m_epoch = 0;
  mutable int m_scans = 0;
};

} // namespace tc
