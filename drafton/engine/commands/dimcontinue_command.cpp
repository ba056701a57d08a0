// DIMCONTINUE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_prompts.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/dimension_kinds.h"

#include <ranges>

namespace drafton {
namespace {

/// What the next dimension of a row takes over from the one before it.
struct Row {
  OdGePoint3d end;      ///< where the one before it ends
  OdGePoint3d location; ///< a point of the dimension line
  double direction = 0; ///< of that line
};

std::optional<Row> rowOf(OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  const auto* const last = odrxCast<OdDbAlignedDimension>(object.get());
  if (!last) return std::nullopt;
  const OdGeVector3d way = last->xLine2Point() - last->xLine1Point();
  const auto* const rotated = odrxCast<OdDbRotatedDimension>(last);
  return Row{last->xLine2Point(), last->dimLinePoint(),
             rotated ? rotated->rotation() : std::atan2(way.y, way.x)};
}

/// That of the dimension that was drawn last.
std::optional<Row> lastRow(const OdDbDatabase& database) {
  const auto space = database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  const std::vector<OdDbObjectId> entities = space->entityIds();
  for (const OdDbObjectId& id : entities | std::views::reverse)
    if (const std::optional<Row> row = rowOf(id)) return row;
  return std::nullopt;
}

/// That of a chosen dimension; none if Enter is given.
Task<std::optional<Row>> askRow(CommandContext& context) {
  for (;;) {
    const PickedEntity picked =
        co_await selectEntity(context, u"Select the dimension to go on from");
    if (picked.id.isNull()) co_return std::nullopt;
    if (const std::optional<Row> row = rowOf(picked.id)) co_return row;
    context.print(translated(u"Only linear and aligned dimensions can be continued."));
  }
}

} // namespace

Task<void> continueDimension(CommandContext& context) {
  OdDbDatabase& database = context.database();
  std::optional<Row> row = lastRow(database);
  if (!row) row = co_await askRow(context);
  std::vector<std::pair<OdDbUndoMark, Row>> steps;
  while (row) {
    const Answer<OdGePoint3d> next =
        co_await context.input().point({.text = u"Specify next extension line origin",
                                        .keywords = u"Select Undo",
                                        .base = row->end,
                                        .allowEmpty = true});
    if (next.isEmpty()) co_return;
    if (next.is(u"Select")) {
      if (const std::optional<Row> other = co_await askRow(context)) row = other;
    } else if (next.is(u"Undo")) {
      if (steps.empty()) {
        context.print(translated(u"There is nothing to undo."));
        continue;
      }
      database.rollbackTo(steps.back().first);
      row = steps.back().second;
      steps.pop_back();
    } else if (next.value == row->end) {
      context.print(translated(u"The two points must differ."));
    } else {
      steps.emplace_back(database.undoMark(), *row);
      const auto made =
          odrxMake<OdDbRotatedDimension>(row->direction, row->end, next.value, row->location);
      addDimension(context, *made, {});
      row->end = next.value;
    }
  }
}

} // namespace drafton
