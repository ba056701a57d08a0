// Lengths and areas as a drawing tells them.
#pragma once

#include "drawing/database.h"

namespace drafton {

/// A length by LUNITS and LUPREC, without zeros at its end.
OdString shownLength(const OdDbDatabase& database, double length);

/// The same with the sign of the drawing's unit, if INSUNITS names one with a sign.
OdString shownLengthWithUnit(const OdDbDatabase& database, double length);

/// An area by LUPREC with that sign; in small units also in those in which rooms are told, square
/// metres or feet.
OdString shownArea(const OdDbDatabase& database, double area);

} // namespace drafton
