// Samples of hatch patterns.
#pragma once

#include "drawing/patterns/hatch_pattern.h"

#include <QImage>

namespace drafton {

/// A square sample on a transparent ground with a frame, in which the pattern repeats a few times
/// and its lines stay apart. A pattern without lines fills the square.
QImage patternPicture(const OdHatchPattern& pattern, int pixels);
/// A square of solid filling.
QImage filledPicture(int pixels);

} // namespace drafton
