#include "drawing/dxf/ahead_source.h"

#include <system_error>
#include <utility>

namespace {
constexpr std::size_t kItems = 2048;
constexpr std::size_t kMostReady = 8;
} // namespace

OdDbDxfAheadSource::OdDbDxfAheadSource(OdDbDxfBytes bytes)
  : m_source(std::move(bytes)) {
  try {
    m_thread = std::thread([this] { splitAll(); });
  } catch (const std::system_error&) {
    // There can be no further thread: whoever takes the tags splits them.
  }
}

OdDbDxfAheadSource::~OdDbDxfAheadSource() {
  {
    const std::lock_guard lock(m_mutex);
    m_stop = true;
  }
  m_changed.notify_all();
  if (m_thread.joinable()) m_thread.join();
}

bool OdDbDxfAheadSource::hand(Batch batch) {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [&] { return m_stop || m_ready.size() < kMostReady; });
  if (m_stop) return false;
  m_ready.push_back(std::move(batch));
  lock.unlock();
  m_changed.notify_all();
  return true;
}

OdDbDxfAheadSource::Batch OdDbDxfAheadSource::split() {
  Batch batch;
  batch.memory = m_source.memory();
  batch.items.reserve(kItems);
  if (m_next) batch.items.push_back(*std::exchange(m_next, std::nullopt));
  while (batch.items.size() < kItems) {
    Item item;
    const Result result = m_source.next(item.tag);
    item.line = m_source.line();
    if (result != kTag) {
      batch.end = result;
      batch.endLine = item.line;
      batch.problem = m_source.problem();
      return batch;
    }
    if (batch.memory != m_source.memory()) {
      if (!batch.items.empty()) {
        m_next = item;
        return batch;
      }
      batch.memory = m_source.memory();
    }
    batch.items.push_back(item);
  }
  return batch;
}

void OdDbDxfAheadSource::splitAll() {
  Batch last;
  try {
    for (bool more = true; more;) {
      Batch batch = split();
      more = batch.end == kTag;
      if (!hand(std::move(batch))) return;
    }
    return;
  } catch (const std::exception&) {
    last.end = kDamaged;
    last.error = std::current_exception();
  }
  // Raised where the tags are taken.
  hand(std::move(last));
}

void OdDbDxfAheadSource::take() {
  m_at = 0;
  if (!m_thread.joinable()) {
    m_batch = split();
    return;
  }
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [&] { return !m_ready.empty(); });
  m_batch = std::move(m_ready.front());
  m_ready.pop_front();
  // The thread is woken for more than one batch.
  const bool wake = m_ready.size() == kMostReady / 2;
  lock.unlock();
  if (wake) m_changed.notify_all();
}

OdDbDxfSource::Result OdDbDxfAheadSource::next(OdDbDxfTag& tag) {
  while (m_at == m_batch.items.size()) {
    if (m_batch.end != kTag) {
      if (m_batch.error) std::rethrow_exception(m_batch.error);
      m_line = m_batch.endLine;
      m_problem = m_batch.problem;
      return m_batch.end;
    }
    take();
  }
  const Item& item = m_batch.items[m_at++];
  tag = item.tag;
  m_line = item.line;
  return kTag;
}
