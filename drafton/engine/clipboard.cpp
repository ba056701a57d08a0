#include "drafton/engine/clipboard.h"

#include "frame/file_path.h"
#include "host/clipboard_payload.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace drafton {

int Clipboard::registerFormat(const OdString& name) {
  if (!m_formats.contains(name)) m_formats << name;
  return static_cast<int>(m_formats.indexOf(name)) + 1;
}

QByteArray Clipboard::data(int format) {
  if (format != m_format) return {};
  m_isTaken = true;
  return m_bytes;
}

void Clipboard::setData(int format, const QByteArray& bytes) {
  dropUntaken();
  m_format = format;
  m_bytes = bytes;
  m_isTaken = false;
}

void Clipboard::dropUntaken() const {
  if (m_isTaken || m_bytes.isEmpty()) return;
  // Anybody can put bytes here, with any file's name: only what COPYCLIP writes is touched.
  static const QRegularExpression kOwn(QStringLiteral("^drf[a-z0-9]{6}\\.(dxf|dwg)$"));
  const QFileInfo file(odpath::toPlatform(hostclipboard::fromBytes(m_bytes).drawing));
  if (kOwn.match(file.fileName()).hasMatch() && file.dir() == QDir(QDir::tempPath()))
    QFile::remove(file.filePath());
}

} // namespace drafton
