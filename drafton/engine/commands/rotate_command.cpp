// ROTATE.

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// The direction from a first to a second point, which must differ.
Task<double> askDirection(CommandContext& context) {
  const Answer<OdGePoint3d> first =
      co_await context.input().point({.text = u"Specify first point"});
  for (;;) {
    const Answer<OdGePoint3d> second =
        co_await context.input().point({.text = u"Specify second point", .base = first.value});
    if (second.value.x != first.value.x || second.value.y != first.value.y)
      co_return directionOf(first.value, second.value);
    context.print(translated(u"The two points must differ."));
  }
}

/// The angle from a direction that is there to one that shall be.
Task<double> askReference(CommandContext& context, OdGePoint3d base) {
  const Answer<double> reference =
      co_await context.input().angle({.text = u"Specify the reference angle", .defaultValue = 0.0});
  const Answer<double> wanted = co_await context.input().angle(
      {.text = u"Specify the new angle", .keywords = u"Points", .base = base, .defaultValue = 0.0});
  if (wanted.isValue()) co_return wanted.value - reference.value;
  const double direction = co_await askDirection(context);
  co_return direction - reference.value;
}

} // namespace

Task<void> rotate(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const Answer<OdGePoint3d> base = co_await context.input().point({.text = u"Specify base point"});
  double& last = DrawingSession::of(context).rotation;
  bool copies = false;
  std::optional<double> angle;
  const auto turned = [&](double value) {
    return movedShapes(chosen,
                       by(OdGeMatrix3d::rotation(value, OdGeVector3d::zAxis(), base.value)));
  };
  while (!angle) {
    const Answer<double> answer = co_await context.input().angle({.text = u"Specify rotation angle",
                                                                  .keywords = u"Copy Reference",
                                                                  .base = base.value,
                                                                  .defaultValue = last,
                                                                  .preview = turned});
    if (answer.is(u"Copy")) {
      copies = true;
      context.print(translated(u"Rotating a copy of the selected objects."));
    } else if (answer.is(u"Reference")) {
      angle = co_await askReference(context, base.value);
    } else {
      angle = answer.value;
    }
  }
  last = odgeNormalAngle(*angle);
  const EntityMover turn = by(OdGeMatrix3d::rotation(*angle, OdGeVector3d::zAxis(), base.value));
  if (copies)
    copyEntities(context, chosen, turn, u"%1 could not be rotated.");
  else
    moveEntities(context, chosen, turn, u"%1 could not be rotated.");
}

} // namespace drafton
