// Choosing a colour, and remembering it.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drawing/color.h"

#include <QColor>

#include <optional>
#include <vector>

class QWidget;

namespace drafton {

/// The colours that were chosen before, the latest first; at most 8, kept between runs.
std::vector<OdCmColor> recentChoices(Desktop& desktop);
/// The same as they are painted.
std::vector<QColor> recentColors(Desktop& desktop);

/// Asks for a colour of the active drawing: an index, a true colour, an entry of a book, or by
/// layer and by block where that is a choice. What is chosen becomes a recent one. Nothing if the
/// user gave up.
std::optional<OdCmColor> askDrawingColor(Desktop& desktop, const OdCmColor& now, bool takesBy,
                                         QWidget* parent);

/// Asks for a true colour, with the recent ones beside; what is chosen becomes one of them. Nothing
/// if the user gave up.
std::optional<QColor> askColor(Desktop& desktop, const QColor& now, QWidget* parent);

} // namespace drafton
