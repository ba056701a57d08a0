// Columns of MTEXT in files of R2013 and below: extended data of the application ACAD.
#pragma once

#include "drawing/mtext/layout.h"

#include <QByteArray>

#include <optional>

namespace oddxf {

struct OldColumns {
  OdMTextColumns columns;
  double totalWidth = 0, totalHeight = 0; ///< of all columns together
  qsizetype size = 0;                     ///< of the lines that tell this
};

/// The lines for these columns of a text that has all of their contents itself. `totalWidth` tells
/// how many there are if that depends on the text.
QByteArray columnLines(const OdMTextColumns& columns, double totalWidth);
/// What extended data that begins with such lines tells. Nothing for others: programs may keep each
/// column as a text of its own beside, and such lines are better left as they stand.
std::optional<OldColumns> columnsOf(const QByteArray& xdata);
/// True if the application that tells of columns has data of any kind there.
bool hasColumnApplication(const QByteArray& xdata);

} // namespace oddxf
