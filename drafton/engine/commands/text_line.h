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

/// A line of text in the drawing's current style. Its height, which Align finds out, goes back into
/// the layout.
OdDbTextPtr makeTextLine(const OdDbDatabase& database, TextLayout& layout, const OdString& string);

/// Moves the layout to the line below.
void advanceLine(TextLayout& layout);

/// The layout for a line below the latest text of the current space; none if there is no text.
std::optional<TextLayout> layoutBelowLastText(const OdDbDatabase& database);

} // namespace drafton
