// What commands remember of a document from one run to the next, beside the drawing.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/drawing_view.h"
#include "drafton/engine/commands/rectangle_shape.h"
#include "drafton/engine/commands/undo_marks.h"

#include <vector>

namespace drafton {

/// Lives as long as its document.
class DrawingSession : public OdRxObject {
 public:
  /// The one of the document that a command runs in.
  static DrawingSession& of(const CommandContext& context);

  UndoMarks undoMarks;
  std::vector<DrawingView> formerViews; ///< the latest last
  RectangleModes rectangle;
  double rectangleLength = 10, rectangleWidth = 10, rectangleArea = 100;
  double textRotation = 0;
  double rotation = 0, scale = 1; ///< of ROTATE (radians) and SCALE
  double donutInside = 0.5, donutOutside = 1;
};

} // namespace drafton
