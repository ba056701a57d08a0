// Where the block that is to be inserted comes from.
#pragma once

#include "drafton/engine/command_context.h"
#include "drawing/database.h"

namespace drafton {

/// The names of the drawing's blocks that are there to be inserted and fit the patterns: neither
/// layouts nor anonymous blocks, in alphabetical order.
QStringList blockNames(const OdDbDatabase& database,
                       const OdString& patterns = QStringLiteral("*"));
void listBlocks(CommandContext& context, const OdString& patterns);

/// The block that a user's words mean: one of the drawing, a drawing file that becomes one under
/// its title, or "name=file". A block that is there already wins over a file of its title, but not
/// over "name=file". Raises CommandFailure naming what is wrong: no such block or file, a file that
/// cannot be read, a file that contains the drawing itself.
OdDbObjectId blockFor(CommandContext& context, const OdString& words);

/// Reads a drawing file; raises CommandFailure with the reason.
OdDbDatabasePtr readDrawing(const OdString& path);

/// True if inserts of `part` stand anywhere within `block`, or both are one.
bool blockContains(OdDbObjectId block, OdDbObjectId part);

} // namespace drafton
