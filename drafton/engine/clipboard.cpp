#include "drafton/engine/clipboard.h"

namespace drafton {

int Clipboard::registerFormat(const OdString& name) {
  if (!m_formats.contains(name)) m_formats << name;
  return static_cast<int>(m_formats.indexOf(name)) + 1;
}

QByteArray Clipboard::data(int format) { return format == m_format ? m_bytes : QByteArray(); }

void Clipboard::setData(int format, const QByteArray& bytes) {
  m_format = format;
  m_bytes = bytes;
}

} // namespace drafton
