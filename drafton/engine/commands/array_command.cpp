// ARRAY.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/entity.h"

namespace drafton {
namespace {

/// More copies than this are a slip of the keys.
constexpr double kMostCopies = 100'000;

constexpr char16_t kRefusal[] = u"%1 could not be copied.";

void checkCount(double copies) {
  if (copies > kMostCopies)
    throw CommandFailure(
        translated(u"More than %1 copies are not made at once.").arg(kMostCopies, 0, 'f', 0));
}

Task<int> askCount(CommandContext& context, QStringView question) {
  const Answer<int> count = co_await context.input().integer(
      {.text = question, .defaultValue = 1, .range = NumberRange::kPositive});
  co_return count.value;
}

/// How far rows or columns are from each other; below 0 downwards, or to the left.
Task<double> askStep(CommandContext& context, QStringView question, int count) {
  if (count == 1) co_return 0;
  const Answer<double> step =
      co_await context.input().distance({.text = question, .range = NumberRange::kNotZero});
  co_return step.value;
}

Task<void> rectangular(CommandContext& context, const Selection& chosen) {
  const int rows = co_await askCount(context, u"Enter the number of rows");
  const int columns = co_await askCount(context, u"Enter the number of columns");
  checkCount(double(rows) * columns);
  const double up = co_await askStep(context, u"Specify the distance between rows", rows);
  const double right = co_await askStep(context, u"Specify the distance between columns", columns);
  for (int row = 0; row < rows; ++row)
    for (int column = row == 0 ? 1 : 0; column < columns; ++column)
      copyEntities(context, chosen, by(OdGeMatrix3d::translation({column * right, row * up, 0})),
                   kRefusal);
}

OdGePoint3d middleOf(const Selection& entities) {
  OdGeExtents3d box;
  for (const OdDbObjectId& id : entities)
    if (OdGeExtents3d own; id.openAs<OdDbEntity>()->getGeomExtents(own)) box.addExt(own);
  return box.isEmpty() ? OdGePoint3d() : box.minPoint() + (box.maxPoint() - box.minPoint()) * 0.5;
}

Task<void> polar(CommandContext& context, const Selection& chosen) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> center =
      co_await input.point({.text = u"Specify center point of array"});
  const int items = co_await askCount(context, u"Enter the number of items");
  checkCount(items);
  const Answer<double> fill = co_await input.angle(
      {.text = u"Specify the angle to fill", .base = center.value, .defaultValue = 2 * kOdaPi});
  const Answer<OdString> turns = co_await input.keyword(
      {.text = u"Rotate arrayed objects?", .keywords = u"Yes No", .defaultValue = u"Yes"});
  // All around, the last one would lie on the first.
  const bool isWhole = std::abs(std::abs(fill.value) - 2 * kOdaPi) < 1e-9;
  const double step = items == 1 ? 0 : fill.value / (isWhole ? items : items - 1);
  const OdGePoint3d middle = middleOf(chosen);
  for (int i = 1; i < items; ++i) {
    const OdGeMatrix3d turn = OdGeMatrix3d::rotation(i * step, OdGeVector3d::zAxis(), center.value);
    copyEntities(context, chosen,
                 by(turns.is(u"Yes") ? turn : OdGeMatrix3d::translation(turn * middle - middle)),
                 kRefusal);
  }
}

} // namespace

Task<void> array(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const Answer<OdString> kind =
      co_await context.input().keyword({.text = u"Enter the type of array",
                                        .keywords = u"Rectangular Polar",
                                        .defaultValue = u"Rectangular"});
  if (kind.is(u"Polar"))
    co_await polar(context, chosen);
  else
    co_await rectangular(context, chosen);
}

} // namespace drafton
