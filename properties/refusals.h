// What the user is told if a drawing cannot take what a tool holds. The run goes on without it.
#pragma once

#include "frame/string.h"

class OdDbSymbolTableRecord;

namespace tc {

class OdTcSymbolTableRecord;

/// Tells that the record of a snapshot cannot be made in the drawing.
void tellRecordRefused(const OdTcSymbolTableRecord& snapshot, const OdString& reason);
/// Tells that a record of the drawing cannot be used: `reason` is a text with one "%s" for its
/// name.
void tellRecordUnusable(const OdString& reason, const OdString& name);
/// Tells that a file's value is none for the field of that name, which stays as it is.
void tellFieldRefused(const OdString& name, const OdString& value);
/// Tells that the drawing does not take a value; `what` is the name of a property or a variable.
void tellValueRefused(const OdString& what, const OdString& value);

} // namespace tc
