#include "drafton/engine/commands/dimension_prompts.h"

#include "drafton/engine/commands/dimension_overrides.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/curve.h"

namespace drafton {
namespace {

Task<void> askText(CommandContext& context, QStringView question, const OdString& measured,
                   DimensionWishes& wishes) {
  const OdString shown = wishes.text.value_or(measured);
  const Answer<OdString> answer = co_await context.input().string(
      {.text = question, .allowBlanks = true, .defaultValue = QStringView(shown)});
  if (answer.value == measured)
    wishes.text.reset();
  else
    wishes.text = answer.value;
}

} // namespace

Task<void> askDimensionPlace(CommandContext& context, QStringView keywords, OdString measured,
                             DimensionWishes& wishes) {
  CommandInput& input = context.input();
  const OdString every = QStringLiteral("Mtext Text Angle ") + keywords.toString();
  for (;;) {
    const Answer<OdGePoint3d> place = co_await input.point(
        {.text = u"Specify dimension line location", .keywords = QStringView(every)});
    wishes.option = place.keyword;
    if (place.isValue()) {
      wishes.location = place.value;
      co_return;
    }
    if (place.is(u"Mtext")) {
      co_await askText(context, u"MText", measured, wishes);
    } else if (place.is(u"Text")) {
      co_await askText(context, u"Enter dimension text", measured, wishes);
    } else if (place.is(u"Angle")) {
      const Answer<double> angle =
          co_await input.angle({.text = u"Specify angle of dimension text"});
      wishes.textAngle = angle.value;
    } else {
      co_return;
    }
  }
}

OdString shownMeasurement(OdDbDimension& dimension, const OdDbDatabase& database) {
  dimension.setDatabaseDefaults(database);
  return dimension.displayedText();
}

void addDimension(CommandContext& context, OdDbDimension& dimension,
                  const DimensionWishes& wishes) {
  if (wishes.text) dimension.setDimensionText(*wishes.text);
  if (wishes.textAngle) dimension.setTextRotation(*wishes.textAngle);
  const OdDbObjectId id = addNewEntity(context.database(), dimension);
  const OdDbDimensionPtr added = id.openObject(OdDb::kForWrite);
  takeCurrentDimensionStyle(context.database(), *added);
  context.print(translated(u"Dimension text = %1").arg(added->displayedText()));
}

std::optional<OdGeCurveSegment> pickedSegment(CommandContext& context, OdDbObjectId entity,
                                              const OdGePoint3d& point) {
  const OdDbObjectPtr object = entity.openObject();
  const auto* const curve = odrxCast<OdDbCurve>(object.get());
  std::optional<OdGeCurveSegment> nearest;
  if (curve)
    for (const OdGeCurveSegment& segment : curve->segments()) {
      const auto distance = [&](const OdGeCurveSegment& s) {
        return s.pointAt(s.closestTo(point)).distanceTo(point);
      };
      if (!nearest || distance(segment) < distance(*nearest)) nearest = segment;
    }
  if (!nearest) context.print(translated(u"The object cannot be dimensioned."));
  return nearest;
}

} // namespace drafton
