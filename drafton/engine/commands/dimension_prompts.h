// What the commands for dimensions ask in the same way.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"
#include "drawing/entities/dimension.h"
#include "drawing/geometry/curve_segment.h"

#include <functional>
#include <optional>

namespace drafton {

/// What the user wants of a dimension besides its points.
struct DimensionWishes {
  OdGePoint3d location;            ///< of the dimension line, or of the text
  std::optional<OdString> text;    ///< in place of the measured value
  std::optional<double> textAngle; ///< radians
  OdString option;                 ///< a keyword of the command's own, which ended the question
};

/// Asks where the dimension goes, with Mtext, Text and Angle; `keywords` of the command's own end
/// the question. `measured` is shown as the text that Enter takes.
Task<void> askDimensionPlace(CommandContext& context, QStringView keywords, OdString measured,
                             DimensionWishes& wishes);

/// Puts the dimension into the drawing with what is wished, and tells its text.
void addDimension(CommandContext& context, OdDbDimension& dimension, const DimensionWishes& wishes);

/// A length as the current dimension variables show it.
OdString shownMeasurement(OdDbDimension& dimension, const OdDbDatabase& database);

/// The piece of a chosen curve that is nearest to where it was chosen; none, and a message, for
/// what has no pieces.
std::optional<OdGeCurveSegment> pickedSegment(CommandContext& context, OdDbObjectId entity,
                                              const OdGePoint3d& point);

} // namespace drafton
