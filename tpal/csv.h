// Tables for spreadsheets.
#pragma once

#include "frame/string.h"

#include <QTextStream>

namespace tpal {

/// Writes the mark by which spreadsheets know UTF-8, and then rows as RFC 4180 has them: cells with
/// commas, quotes or line breaks stand in quotes.
class CsvWriter {
 public:
  CsvWriter(QTextStream& out, const QStringList& heads);
  void row(const QStringList& cells);

 private:
  QTextStream& m_out;
};

} // namespace tpal
