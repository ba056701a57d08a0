#include "drawing/dxf/bytes.h"

#include <QIODevice>

#include <cstring>

namespace {
constexpr std::size_t kWindow = 256 * 1024;
}

OdDbDxfBytes::OdDbDxfBytes(QIODevice& device)
  : at(nullptr)
  , end(nullptr)
  , m_device(&device) {
  more();
}

bool OdDbDxfBytes::hasFallenBehind() const {
  return m_device && (m_device->isSequential() || m_device->pos() != m_behind);
}

bool OdDbDxfBytes::more() {
  if (!m_device) return false;
  // To find that out by reading would take memory first.
  if (m_behind > 0 && !m_device->isSequential() && m_device->atEnd()) {
    m_device = nullptr;
    return false;
  }
  const std::size_t kept = left();
  // All of it may be one value.
  const bool isFull = kept == m_size;
  if (isFull || m_memory.use_count() > 1) {
    m_size = isFull ? std::max(kWindow, 2 * kept) : m_size;
    const std::shared_ptr<char[]> next(new char[m_size]);
    if (kept > 0) std::memcpy(next.get(), at, kept);
    m_memory = next;
  } else if (kept > 0) {
    std::memmove(m_memory.get(), at, kept);
  }
  const qint64 read = m_device->read(m_memory.get() + kept, static_cast<qint64>(m_size - kept));
  m_behind = m_device->pos();
  m_begin = at = m_memory.get();
  end = at + kept + std::max<qint64>(read, 0);
  if (read > 0) return true;
  if (read < 0) m_problem = m_device->errorString();
  m_device = nullptr;
  return false;
}
