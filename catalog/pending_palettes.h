// The palettes of a catalog that are still to be read.
#pragma once

#include "catalog/palette_loader.h"

#include <QSet>

#include <deque>
#include <optional>
#include <vector>

namespace tc {

/// Keeps the loaders whose palettes have not come, and where among the catalog's palettes each
/// one's palette goes.
///
/// A file that cannot be read is told in a message box, behind which events are handled: the rest,
/// and that palette itself, may be needed while it is being read.
class PendingPalettes {
 public:
  struct Entry {
    OdTcPaletteLoaderPtr loader;
    int rank = 0; ///< its place among the loaders
    bool isBeingRead = false;
  };

  /// All loaders wait; no palette is there. `referenced` are the ids to which groups refer.
  void begin(const OdTcPaletteLoaderList& loaders, QSet<OdString> referenced);
  void clear() { *this = {}; }

  int count() const { return static_cast<int>(m_entries.size()); }
  bool isReferenced(const OdString& id) const { return m_referenced.contains(id); }
  /// The first that is not being read, or the one with that id; it is from now on.
  std::optional<Entry> takeNext();
  std::optional<Entry> take(const OdString& id);
  /// The first in any case.
  std::optional<Entry> takeAny();
  /// Strikes out what has been read; false if another reading of it was over before.
  bool strike(const Entry& entry);
  /// Enters that its palette is there, and gives its position among those that are.
  std::ptrdiff_t enter(const Entry& entry);

 private:
  template <class Matches>
  std::optional<Entry> takeFirst(Matches matches);

  std::deque<Entry> m_entries;
  std::vector<int> m_ranks; ///< of the palettes that are there, ascending
  QSet<OdString> m_referenced;
};

} // namespace tc
