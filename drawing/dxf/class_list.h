// What a drawing has to tell of the classes of its objects.
#pragma once

#include "drawing/object_id.h"

#include <QByteArray>

#include <unordered_set>

namespace oddxf {

/// Lines for the classes that the drawing uses, that files have to tell, and that its own list does
/// not have.
QByteArray missingClasses(const OdDbDatabase& database);
/// True for an object that is not written: it came with an external reference, or its owner, or an
/// owner of that, is erased or one of the blocks that are left out, and it went with it.
bool isLeftOut(OdDbObjectId object, const std::unordered_set<OdDbObjectId>& blocks);

} // namespace oddxf
