#include "frame/stream.h"

#include <QFileDevice>
#include <QIODevice>

#include <cstring>
#include <utility>

namespace {
constexpr std::uint32_t kPendingLimit = 64 * 1024;
} // namespace

OdDeviceStream::OdDeviceStream(std::unique_ptr<QIODevice> device, OdString name)
  : m_device(std::move(device))
  , m_name(std::move(name)) {}

OdDeviceStream::~OdDeviceStream() {
  // A destructor cannot report; whoever wants to know calls flush first.
  if (m_used > 0) m_device->write(m_pending.get(), m_used);
}

void OdDeviceStream::fail() const {
  throw OdFileError(eFileAccess, m_name, m_device->errorString());
}

void OdDeviceStream::drain() {
  if (m_used == 0) return;
  const std::uint32_t count = std::exchange(m_used, 0);
  if (m_device->write(m_pending.get(), count) != static_cast<qint64>(count)) fail();
}

std::uint64_t OdDeviceStream::length() {
  drain();
  return static_cast<std::uint64_t>(m_device->size());
}

std::uint64_t OdDeviceStream::tell() {
  return static_cast<std::uint64_t>(m_device->pos() + m_used);
}

void OdDeviceStream::seek(std::uint64_t position) {
  drain();
  if (!m_device->seek(static_cast<qint64>(position))) fail();
}

void OdDeviceStream::getBytes(void* buffer, std::uint32_t count) {
  drain();
  auto* out = static_cast<char*>(buffer);
  qint64 left = count;
  while (left > 0) {
    const qint64 got = m_device->read(out, left);
    if (got < 0) fail();
    if (got == 0) throw OdFileError(eFileAccess, m_name, QStringLiteral("the file ends too early"));
    out += got;
    left -= got;
  }
}

void OdDeviceStream::putBytes(const void* buffer, std::uint32_t count) {
  drain();
  if (m_device->write(static_cast<const char*>(buffer), count) != static_cast<qint64>(count))
    fail();
}

void OdDeviceStream::putByte(std::uint8_t byte) {
  if (!m_pending) m_pending = std::make_unique<char[]>(kPendingLimit);
  m_pending[m_used++] = static_cast<char>(byte);
  if (m_used == kPendingLimit) drain();
}

void OdDeviceStream::flush() {
  drain();
  if (auto* file = qobject_cast<QFileDevice*>(m_device.get()); file && !file->flush()) fail();
}

void OdMemoryStream::getBytes(void* buffer, std::uint32_t count) {
  if (m_position > length() || count > length() - m_position)
    throw OdFileError(eFileAccess, m_name, QStringLiteral("the stream ends too early"));
  std::memcpy(buffer, m_bytes.constData() + m_position, count);
  m_position += count;
}

void OdMemoryStream::putBytes(const void* buffer, std::uint32_t count) {
  const auto end = static_cast<qsizetype>(m_position + count);
  // Behind the end the gap is filled, as a file's is.
  if (end > m_bytes.size()) m_bytes.append(end - m_bytes.size(), '\0');
  std::memcpy(m_bytes.data() + m_position, buffer, count);
  m_position += count;
}

void OdMemoryStream::putByte(std::uint8_t byte) {
  if (m_position != length()) return putBytes(&byte, 1);
  m_bytes.append(static_cast<char>(byte));
  ++m_position;
}
