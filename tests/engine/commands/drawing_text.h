// Drawings as short texts, to compare with what commands should have made.
#pragma once

#include "drawing/database.h"

/// The entities of the model space, one a line, in drawing order:
///   LINE 0,0,0 10,0,0
///   CIRCLE 5,5,0 r3
///   ARC 0,0,0 r10 0..90              (degrees)
///   PLINE closed: 0,0 / 10,0 b1 w2-3  (bulge, widths)
///   TEXT "abc" at 0,0,0 h2.5 rot90    (and `to` the alignment point with its modes)
/// Numbers are rounded to four digits; a thickness or an elevation is told if it is not 0.
OdString describeEntities(OdDbDatabase& database);
QStringList describeEntitiesOf(const OdDbBlockTableRecord& block);

/// The layers, one a line; the current one has a star:
///   *0: on, 7, Continuous, -3
OdString describeLayers(OdDbDatabase& database);

/// "210,148.5 h297"
OdString describeView(OdDbDatabase& database);
