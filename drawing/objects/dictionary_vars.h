// Variables that files keep in a dictionary, since the header has no place for them. Not for use
// outside of the library.
#pragma once

#include "drawing/database.h"

namespace oddb {

/// The text of a variable; empty if there is none.
OdString dictionaryVar(const OdDbDatabase& database, const OdString& name);
/// An empty text takes the variable away. What stands under the name and is no variable is
/// replaced.
void setDictionaryVar(OdDbDatabase& database, const OdString& name, const OdString& text);

// The header tells the current colour only by index, and other programs tell the current
// transparency only in percent. What is lost by that stands in a variable of ours beside theirs,
// and counts as long as theirs still says the same.

/// Keeps the current colour, or takes away what was kept of one before.
void keepExactColor(OdDbDatabase& database);
/// The colour that was kept for an index in the header; the index itself if there is none.
OdCmColor exactColor(const OdDbDatabase& database, const OdCmColor& byIndex);
void keepExactTransparency(OdDbDatabase& database, OdCmTransparency transparency);
OdCmTransparency exactTransparency(const OdDbDatabase& database, OdCmTransparency byPercent);

} // namespace oddb
