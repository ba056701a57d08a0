#include "tpal/csv.h"

#include <algorithm>

namespace tpal {
namespace {

OdString cellOf(OdString text) {
  constexpr QStringView kSpecial = u",\"\r\n";
  const bool isPlain = std::ranges::none_of(text, [&](QChar c) { return kSpecial.contains(c); });
  return isPlain ? text : u'"' + text.replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace

CsvWriter::CsvWriter(QTextStream& out, const QStringList& heads)
  : m_out(out) {
  m_out << QChar(QChar::ByteOrderMark);
  row(heads);
}

void CsvWriter::row(const QStringList& cells) {
  QStringList line;
  for (const OdString& cell : cells) line << cellOf(cell);
  m_out << line.join(u',') << "\r\n";
}

} // namespace tpal
