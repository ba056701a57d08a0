#include "catalog/pending_palettes.h"

#include <algorithm>
#include <utility>

namespace tc {

void PendingPalettes::begin(const OdTcPaletteLoaderList& loaders, QSet<OdString> referenced) {
  clear();
  m_referenced = std::move(referenced);
  for (int rank = 0; rank < loaders.count(); ++rank)
    m_waiting.push_back({OdTcPaletteLoaderPtr(loaders.at(rank)), rank});
}

std::optional<PendingPalettes::Entry> PendingPalettes::takeFirst() {
  return take(m_waiting.begin());
}

std::optional<PendingPalettes::Entry> PendingPalettes::take(const OdString& id) {
  return take(std::find_if(m_waiting.begin(), m_waiting.end(),
                           [&](const Entry& entry) { return entry.loader->id() == id; }));
}

std::optional<PendingPalettes::Entry> PendingPalettes::take(const std::deque<Entry>::iterator at) {
  if (at == m_waiting.end()) return std::nullopt;
  Entry taken = std::move(*at);
  m_waiting.erase(at);
  ++m_underway;
  return taken;
}

std::ptrdiff_t PendingPalettes::arrived(const Entry& entry) {
  --m_underway;
  const auto at =
      m_ranks.insert(std::upper_bound(m_ranks.begin(), m_ranks.end(), entry.rank), entry.rank);
  return at - m_ranks.begin();
}

} // namespace tc
