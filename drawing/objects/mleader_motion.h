// Moving multileaders. Not for use outside of the library.
#pragma once

#include "drawing/objects/moved_tags.h"

namespace oddb {

/// Moves the lines of a multileader by `shape`, and what is to be read by `letters`: its text, or a
/// block that has texts; other blocks go with the lines. Both scale alike. False, with the tags
/// half moved, for what the tags cannot follow or do not tell.
bool moveMleader(OdDbKeptTags& tags, const TagMover& shape, const TagMover& letters);

} // namespace oddb
