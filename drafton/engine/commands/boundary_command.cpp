// BOUNDARY.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/hatch_areas.h"
#include "drafton/engine/commands/hatch_prompts.h"
#include "drafton/engine/commands/loop_polyline.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {
namespace {

std::size_t addPolylines(const CommandContext& context, const HatchAreas& areas) {
  std::size_t count = 0;
  for (const HatchLoop& loop : areas.loops()) {
    if (loop.loop.isText) continue; // the room around a text is no line of the drawing
    const OdDbPolylinePtr polyline = polylineOf(loop.loop, areas.elevation());
    addNewEntity(context.database(), *polyline);
    ++count;
  }
  return count;
}

} // namespace

Task<void> boundary(CommandContext& context) {
  HatchOptions options = hatchOptions(context);
  HatchAreas areas(context);
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = u"Specify internal point", .keywords = u"Islands Gap Undo", .allowEmpty = true});
    if (answer.isEmpty()) break;
    if (answer.isValue()) areas.addAround(answer.value, options.style, options.gap);
    if (answer.is(u"Islands")) co_await askIslandStyle(context, options.style);
    if (answer.is(u"Gap")) co_await askGap(context, options.gap);
    if (answer.is(u"Undo") && !areas.takeBack())
      context.print(translated(u"There is nothing to undo."));
  }
  const std::size_t count = addPolylines(context, areas);
  context.print(translated(u"%1 polylines were made.").arg(count));
  keepOptions(context, options);
}

} // namespace drafton
