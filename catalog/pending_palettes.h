// The palettes of a catalog that are still to be read.
#pragma once

#include "catalog/palette_loader.h"

#include <QSet>

#include <deque>
#include <optional>
#include <vector>

namespace tc {

/// Keeps the loaders that wait, and where among the catalog's palettes each one's palette goes.
class PendingPalettes {
 public:
  struct Entry {
    OdTcPaletteLoaderPtr loader;
    int rank; ///< its place among the loaders
  };

  /// All loaders wait; no palette is there. `referenced` are the ids to which groups refer.
  void begin(const OdTcPaletteLoaderList& loaders, QSet<OdString> referenced);
  void clear() { *this = {}; }

  int count() const { return static_cast<int>(m_waiting.size()) + m_underway; }
  bool isReferenced(const OdString& id) const { return m_referenced.contains(id); }
  /// Takes the first that waits, or the one with that id. It counts until it has arrived.
  std::optional<Entry> takeFirst();
  std::optional<Entry> take(const OdString& id);
  /// Says that what was taken gave no palette.
  void cameToNothing() { --m_underway; }
  /// Says that its palette is there, and gives its position among those that are.
  std::ptrdiff_t arrived(const Entry& entry);

 private:
  std::optional<Entry> take(std::deque<Entry>::iterator at);

  std::deque<Entry> m_waiting;
  std::vector<int> m_ranks; ///< of the palettes that are there, ascending
  QSet<OdString> m_referenced;
  int m_underway = 0;
};

} // namespace tc
