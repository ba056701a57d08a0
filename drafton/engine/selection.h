// Choosing entities.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/selection_picker.h"
#include "drafton/engine/task.h"

namespace drafton {

/// Asks for entities until Enter. What was chosen before the command is taken without a question.
///
/// A point picks the topmost entity near it; two corners from an empty place choose by their
/// direction, as BOX does: to the right what is inside, to the left what is met. Window and
/// WPolygon take what lies inside, Crossing and CPolygon also what is cut, Fence what a line meets;
/// ALL, Last, Previous; Handle names an entity; FIlter sets what may be chosen at all. Remove and
/// Add switch what a choice does, Undo takes back the last one, SIngle ends with the next one.
/// An entity of a group brings the others with it unless PICKSTYLE says otherwise.
/// Only the space that is shown counts, and entities on locked, off or frozen layers are left out.
/// Empty if nothing was chosen. What is chosen becomes "Previous".
Task<Selection> selectObjects(CommandContext& context, QStringView prompt = u"Select objects");

/// What was chosen before the command, which is not chosen any more; empty if nothing was, or it
/// shall not count.
Selection takePreselection(CommandContext& context);

/// One entity, and where it was pointed at.
struct PickedEntity {
  OdDbObjectId id; ///< null if Enter or a keyword was given
  OdGePoint3d point;
  OdString keyword;       ///< empty if none was given
  bool isPointed = false; ///< at the point; false for Last
};

/// Asks for one entity: a point on it, or Last. Enter ends without one. `keywords` are those of the
/// command.
Task<PickedEntity> selectEntity(CommandContext& context, QStringView prompt,
                                QStringView keywords = {});

} // namespace drafton
