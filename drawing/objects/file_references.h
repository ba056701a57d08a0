// Files that a drawing refers to.
#pragma once

#include "frame/string.h"

class OdDbDatabase;

/// For a drawing whose contents are to go into another one: makes the relative paths of its
/// external references and pictures absolute, so that the other drawing finds the files too.
/// Nothing happens if both drawings lie in one folder. `target` is the stored path of the other
/// drawing; it may be empty.
void oddbRebaseFileReferences(OdDbDatabase& database, const OdString& target);
