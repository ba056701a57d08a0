#include "tools/source_drawings.h"

#include "frame/error.h"

#include <algorithm>

namespace tc {
namespace {

/// As many as are kept.
constexpr std::size_t kMost = 2;

} // namespace

OdDbDatabase* OdTcSourceDrawings::open(const OdString& path) {
  const auto known = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&](const Entry& entry) { return entry.path == path; });
  if (known != m_entries.end()) {
    std::rotate(known, known + 1, m_entries.end());
  } else {
    if (m_entries.size() == kMost) m_entries.erase(m_entries.begin());
    m_entries.push_back({path, {}, {}});
    try {
      m_entries.back().drawing = OdDbDatabase::readFile(path);
    } catch (const OdError& error) {
      m_entries.back().problem = error.description();
    }
  }
  return m_entries.back().drawing.get();
}

OdString OdTcSourceDrawings::problemOf(const OdString& path) const {
  for (const Entry& entry : m_entries)
    if (entry.path == path) return entry.problem;
  return {};
}

} // namespace tc
