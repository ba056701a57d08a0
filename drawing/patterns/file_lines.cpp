#include "drawing/patterns/file_lines.h"

#include "frame/error.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cmath>

namespace odpattern {
namespace {

/// Collections of patterns are some hundred kilobytes; a file beyond this is something else.
constexpr qint64 kMostBytes = qint64{64} << 20;

OdString decoded(const QByteArray& bytes) {
  QStringDecoder utf8(QStringDecoder::Utf8);
  const OdString text = utf8.decode(bytes);
  return utf8.hasError() ? OdString::fromLatin1(bytes) : text;
}

} // namespace

std::vector<FileLine> fileLines(const QByteArray& bytes) {
  std::vector<FileLine> lines;
  int number = 0;
  for (const QByteArray& raw : bytes.split('\n')) {
    ++number;
    const OdString text = decoded(raw).trimmed();
    if (!text.isEmpty() && !text.startsWith(u';')) lines.push_back({number, text});
  }
  return lines;
}

QByteArray fileBytes(const OdString& path) {
  const OdString platform = odpath::toPlatform(path);
  if (const QFileInfo info(platform); info.exists() && !info.isFile())
    throw OdFileError(eFileAccess, path, QStringLiteral("it is no file"));
  QFile file(platform);
  if (!file.open(QIODevice::ReadOnly)) throw OdFileError(eFileAccess, path, file.errorString());
  if (file.size() > kMostBytes)
    throw OdFileError(eFileAccess, path, QStringLiteral("it is too large"));
  return file.readAll();
}

std::optional<std::vector<double>> numbers(const OdString& text) {
  std::vector<double> result;
  for (const QStringView part : QStringView(text).left(text.indexOf(u';')).split(u',')) {
    bool isNumber = false;
    const double value = part.trimmed().toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value)) return std::nullopt;
    result.push_back(value);
  }
  return result;
}

std::optional<std::pair<OdString, OdString>> headLine(const OdString& text) {
  if (!text.startsWith(u'*')) return std::nullopt;
  const qsizetype comma = text.indexOf(u',');
  const OdString name = text.mid(1, comma < 0 ? -1 : comma - 1).trimmed();
  if (name.isEmpty()) return std::nullopt;
  return std::pair(name, comma < 0 ? OdString() : text.mid(comma + 1).trimmed());
}

OdString lineError(const FileLine& line, const OdString& reason) {
  return QStringLiteral("line %1: %2").arg(line.number).arg(reason);
}

} // namespace odpattern
