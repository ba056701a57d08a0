// Files of tests/data.
#pragma once

#include <QFile>
#include <QStringList>

namespace testhost {

/// The bytes of a file below tests/data; empty if there is none.
inline QByteArray dataFile(const QString& path) {
  QFile file(QStringLiteral(TEST_DATA_DIR "/") + path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Its lines, without the empty ones.
inline QStringList dataLines(const QString& path) {
  return QString::fromUtf8(dataFile(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace testhost
