// Lines of text as TEXT sets them.
#pragma once

#include "drafton/engine/commands/text_justification.h"
#include "drawing/entities/text.h"

#include <optional>

namespace drafton {

/// Where and how the next line is set.
struct TextLayout {
  const TextJustification* justification = nullptr;
  OdGePoint3d point;
  OdGePoint3d secondPoint; ///< counts for justifications with two points
  double height = 0;       ///< without meaning for Align, where it follows from the points
  double rotation = 0;     ///< radians
};

/// Gives a text that shows something, and belongs to no drawing yet, the drawing's current style
/// and the place and size of the layout. Its height, which Align finds out, goes back into the
/// layout.
void layOutText(const OdDbDatabase& database, TextLayout& layout, OdDbText& text);

/// Moves the layout to the line below.
void advanceLine(TextLayout& layout);

/// The layout for a line below the latest text of a class in the current space; none if there is no
/// such text.
std::optional<TextLayout> layoutBelowLast(const OdDbDatabase& database, const OdRxClass* kind);

} // namespace drafton
