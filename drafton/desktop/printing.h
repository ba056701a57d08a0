// Sheets on paper.
#pragma once

#include "drawing/database.h"

#include <QPrinter>

namespace drafton {

/// The name of the layout that is shown.
OdString shownLayoutName(const OdDbDatabase& database);
/// Sets the printer's paper to that of the sheet that is shown; nothing for the model.
void setPaper(QPrinter& printer, const OdDbDatabase& database);
/// Prints the sheet that is shown at its scale, or the model fitted to the page. False if the
/// printer does not take it.
bool printSheet(QPrinter& printer, OdDbDatabase& database);

} // namespace drafton
