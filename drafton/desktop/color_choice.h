// Choosing a colour of one's own.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drawing/color.h"

#include <QColor>

#include <optional>
#include <vector>

class QWidget;

namespace drafton {

/// The colours that were chosen before, the latest first; at most 8, kept between runs.
std::vector<QColor> recentColors(Desktop& desktop);

/// Asks for a colour, with the recent ones beside; what is chosen becomes one of them. Nothing if
/// the user gave up.
std::optional<QColor> askColor(Desktop& desktop, const QColor& now, QWidget* parent);

/// The colour as drawings keep it.
OdCmColor trueColor(const QColor& color);

} // namespace drafton
