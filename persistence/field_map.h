// Names and values that pass between a filer and an object.
#pragma once

#include "frame/variant.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tc {

/// A small map from name to value that is walked in ascending order of name. One map serves a whole
/// object: `clear` keeps its memory.
class OdTcFieldMap {
 public:
  using Entry = std::pair<OdString, OdVariant>;

  bool isEmpty() const { return m_entries.empty(); }
  std::size_t size() const { return m_entries.size(); }
  void clear() { m_entries.clear(); }
  /// A name that is there already gets the new value.
  void set(const OdString& name, OdVariant value) {
    const auto at = std::lower_bound(m_entries.begin(), m_entries.end(), name,
                                     [](const Entry& e, const OdString& n) { return e.first < n; });
    if (at != m_entries.end() && at->first == name)
      at->second = std::move(value);
    else
      m_entries.insert(at, Entry(name, std::move(value)));
  }
  const OdVariant* find(const OdString& name) const {
    for (const Entry& e : m_entries)
      if (e.first == name) return &e.second;
    return nullptr;
  }
  auto begin() const { return m_entries.begin(); }
  auto end() const { return m_entries.end(); }

 private:
  std::vector<Entry> m_entries;
};

} // namespace tc
