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

bool OdDbDxfBytes::more() {
  if (!m_device) return false;
  const std::size_t kept = left();
  if (kept == m_window.size()) {
    // All of it is one value.
    std::vector<char> wider(std::max(kWindow, 2 * kept));
    if (kept > 0) std::memcpy(wider.data(), at, kept);
    m_window = std::move(wider);
  } else if (kept > 0) {
    std::memmove(m_window.data(), at, kept);
  }
  const qint64 read =
      m_device->read(m_window.data() + kept, static_cast<qint64>(m_window.size() - kept));
  at = m_window.data();
  end = at + kept + std::max<qint64>(read, 0);
  if (read > 0) return true;
  if (read < 0) m_problem = m_device->errorString();
  m_device = nullptr;
  return false;
}
