#include "catalog/pending_palettes.h"

#include <algorithm>
#include <utility>

namespace tc {

void PendingPalettes::begin(const OdTcPaletteLoaderList& loaders, QSet<OdString> referenced) {
  clear();
  m_referenced = std::move(referenced);
  for (int rank = 0; rank < loaders.count(); ++rank)
    m_entries.push_back({OdTcPaletteLoaderPtr(loaders.at(rank)), rank});
}

template <class Matches>
std::optional<PendingPalettes::Entry> PendingPalettes::takeFirst(Matches matches) {
  const auto at = std::find_if(m_entries.begin(), m_entries.end(), matches);
  if (at == m_entries.end()) return std::nullopt;
  at->isBeingRead = true;
  return *at;
}

std::optional<PendingPalettes::Entry> PendingPalettes::takeNext() {
  return takeFirst([](const Entry& entry) { return !entry.isBeingRead; });
}

std::optional<PendingPalettes::Entry> PendingPalettes::take(const OdString& id) {
  return takeFirst(
      [&](const Entry& entry) { return !entry.isBeingRead && entry.loader->id() == id; });
}

std::optional<PendingPalettes::Entry> PendingPalettes::takeAny() {
  return takeFirst([](const Entry&) { return true; });
}

bool PendingPalettes::strike(const Entry& entry) {
  return std::erase_if(m_entries, [&](const Entry& mine) { return mine.loader == entry.loader; }) >
         0;
}

std::ptrdiff_t PendingPalettes::enter(const Entry& entry) {
  const auto at =
      m_ranks.insert(std::upper_bound(m_ranks.begin(), m_ranks.end(), entry.rank), entry.rank);
  return at - m_ranks.begin();
}

} // namespace tc
