// The objects that want to know of another's changes, as files list them. Not for use outside of
// the library.
#pragma once

#include "drawing/object.h"

namespace oddb {

/// Adds one to the list, unless it is there.
void addPersistentReactor(OdDbObject& object, OdDbObjectId reactor);
void removePersistentReactor(OdDbObject& object, OdDbObjectId reactor);
/// The dictionary that belongs to an object; null if it has none.
OdDbObjectId extensionDictionary(const OdDbObject& object);

} // namespace oddb
