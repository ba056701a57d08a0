// DONUT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

/// Two half circles, as wide as the ring.
void addRing(CommandContext& context, const OdGePoint3d& center, double inside, double outside) {
  const double radius = (inside + outside) / 4, width = (outside - inside) / 2;
  const OdDbPolylinePtr ring = odrxMake<OdDbPolyline>();
  ring->addVertexAt(0, {center.x - radius, center.y}, 1);
  ring->addVertexAt(1, {center.x + radius, center.y}, 1);
  ring->setConstantWidth(width);
  ring->setClosed(true);
  ring->setElevation(center.z);
  addNewThickEntity(context.database(), *ring);
}

} // namespace

Task<void> donut(CommandContext& context) {
  CommandInput& input = context.input();
  DrawingSession& session = DrawingSession::of(context);
  const Answer<double> first = co_await input.distance({.text = u"Specify inside diameter of donut",
                                                        .defaultValue = session.donutInside,
                                                        .range = NumberRange::kNotNegative});
  const Answer<double> second =
      co_await input.distance({.text = u"Specify outside diameter of donut",
                               .defaultValue = session.donutOutside,
                               .range = NumberRange::kPositive});
  const double inside = std::min(first.value, second.value);
  const double outside = std::max(first.value, second.value);
  session.donutInside = inside;
  session.donutOutside = outside;
  for (;;) {
    const Answer<OdGePoint3d> center =
        co_await input.point({.text = u"Specify center of donut", .enterText = u"exit"});
    if (center.isEmpty()) co_return;
    addRing(context, center.value, inside, outside);
  }
}

} // namespace drafton
