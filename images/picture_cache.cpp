#include "images/picture_cache.h"

#include <type_traits>
#include <utility>

namespace tc {

static_assert(std::is_trivially_destructible_v<PictureCache>);
constinit PictureCache PictureCache::s_instance;

PictureCache::Entry::Entry(const Entry& other)
  : bitmap(other.bitmap) {
  if (other.m_bytes > 0) instance().use(*this);
}

PictureCache::Entry::~Entry() { instance().drop(*this); }

void PictureCache::use(Entry& entry) {
  drop(entry);
  entry.m_bytes = entry.bitmap.sizeInBytes();
  if (entry.m_bytes == 0) return;
  entry.m_older = m_newest;
  (m_newest ? m_newest->m_newer : m_oldest) = &entry;
  m_newest = &entry;
  m_size += entry.m_bytes;
  shrink();
}

void PictureCache::drop(Entry& entry) {
  if (entry.m_bytes == 0) return;
  (entry.m_newer ? entry.m_newer->m_older : m_newest) = entry.m_older;
  (entry.m_older ? entry.m_older->m_newer : m_oldest) = entry.m_newer;
  entry.m_newer = entry.m_older = nullptr;
  m_size -= std::exchange(entry.m_bytes, 0);
}

void PictureCache::setLimit(qsizetype bytes) {
  m_limit = bytes;
  shrink();
}

void PictureCache::shrink() {
  while (m_size > m_limit) {
    Entry& entry = *m_oldest;
    drop(entry);
    entry.bitmap = QImage();
  }
}

} // namespace tc
