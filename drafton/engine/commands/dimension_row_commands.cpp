// DIMCONTINUE and DIMBASELINE.

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
  OdGePoint3d start, end; ///< what the one before it measures
  OdGePoint3d location;   ///< a point of the dimension line
  double direction = 0;   ///< of that line
};

/// How one of the two commands goes on.
struct Way {
  const char16_t* refusal;
  OdGePoint3d Row::*from; ///< where the next dimension begins
  /// The row behind a dimension to `next`; its location is that of this dimension.
  Row (*goOn)(const OdDbDatabase& database, Row row, const OdGePoint3d& next);
};

Row inLine(const OdDbDatabase&, Row row, const OdGePoint3d& next) {
  row.end = next;
  return row;
}

/// A step further away from what is measured.
Row stacked(const OdDbDatabase& database, Row row, const OdGePoint3d& next) {
  const double scale = database.sysVarReal("DIMSCALE");
  const double step = database.sysVarReal("DIMDLI") * (scale > 0 ? scale : 1);
  const OdGeVector3d across{-std::sin(row.direction), std::cos(row.direction), 0};
  const double side = (row.location - row.start).dotProduct(across) < 0 ? -1 : 1;
  row.location = row.location + across * (side * step);
  row.end = next;
  return row;
}

constexpr Way kContinue = {u"Only linear and aligned dimensions can be continued.", &Row::end,
                           inLine};
constexpr Way kBaseline = {u"Only linear and aligned dimensions have a baseline.", &Row::start,
                           stacked};

std::optional<Row> rowOf(OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  const auto* const last = odrxCast<OdDbAlignedDimension>(object.get());
  if (!last) return std::nullopt;
  const OdGeVector3d way = last->xLine2Point() - last->xLine1Point();
  const auto* const rotated = odrxCast<OdDbRotatedDimension>(last);
  return Row{last->xLine1Point(), last->xLine2Point(), last->dimLinePoint(),
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
Task<std::optional<Row>> askRow(CommandContext& context, const Way& way) {
  for (;;) {
    const PickedEntity picked =
        co_await selectEntity(context, u"Select the dimension to go on from");
    if (picked.id.isNull()) co_return std::nullopt;
    if (const std::optional<Row> row = rowOf(picked.id)) co_return row;
    context.print(translated(way.refusal));
  }
}

Task<void> addRow(CommandContext& context, const Way& way) {
  OdDbDatabase& database = context.database();
  std::optional<Row> row = lastRow(database);
  if (!row) row = co_await askRow(context, way);
  std::vector<std::pair<OdDbUndoMark, Row>> steps;
  while (row) {
    const OdGePoint3d from = (*row).*way.from;
    const Answer<OdGePoint3d> next =
        co_await context.input().point({.text = u"Specify next extension line origin",
                                        .keywords = u"Select Undo",
                                        .base = from,
                                        .allowEmpty = true});
    if (next.isEmpty()) co_return;
    if (next.is(u"Select")) {
      if (const std::optional<Row> other = co_await askRow(context, way)) row = other;
    } else if (next.is(u"Undo")) {
      if (steps.empty()) {
        context.print(translated(u"There is nothing to undo."));
        continue;
      }
      database.rollbackTo(steps.back().first);
      row = steps.back().second;
      steps.pop_back();
    } else if (next.value == from) {
      context.print(translated(u"The two points must differ."));
    } else {
      steps.emplace_back(database.undoMark(), *row);
      row = way.goOn(database, *row, next.value);
      const auto made =
          odrxMake<OdDbRotatedDimension>(row->direction, from, next.value, row->location);
      addDimension(context, *made, {});
    }
  }
}

} // namespace

Task<void> continueDimension(CommandContext& context) { co_await addRow(context, kContinue); }

Task<void> baselineDimension(CommandContext& context) { co_await addRow(context, kBaseline); }

} // namespace drafton
