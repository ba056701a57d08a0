// The hidden command that carries out block, external reference and raster tools.
#pragma once

#include "frame/string.h"

namespace tc {

/// Runs `__executetool`: reads one word in the current document and runs what the word stands for.
/// Nothing happens without a document, its input or a word, or for an unknown word.
void executeToolCommand();

/// The word that the typed text stands for: without quotes and angle brackets, and without blanks
/// at its right end.
OdString deferredWordOf(const OdString& typed);

/// What the words run. Each takes its request from the command conveyor and returns at once if
/// there is none.
///
/// Inserts a block that is defined in the drawing, through the host's command InsertBlock. A
/// missing source file is told on the command line, and so is a definition that the source file
/// lacks. Raises OdError if the definition would have to be copied from the source file.
void insertRequestedBlock();
/// Attaches an external reference through the host's command XATTACH.
void attachRequestedXref();
/// Attaches an image through the host's command INSERTRASTER. A missing file is told on the command
/// line.
void insertRequestedRaster();

} // namespace tc
