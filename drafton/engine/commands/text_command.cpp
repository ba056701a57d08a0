// TEXT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/text_place_prompt.h"

namespace drafton {

Task<void> text(CommandContext& context) {
  OdDbDatabase& database = context.database();
  TextLayout layout =
      co_await askTextLayout(context, OdDbText::desc(), u"There is no text to go on from.");
  for (;;) {
    const Answer<OdString> line = co_await context.input().string(
        {.text = u"Enter text", .allowBlanks = true, .allowEmpty = true});
    if (line.isEmpty() || line.value.isEmpty()) co_return;
    const auto made = odrxMake<OdDbText>();
    made->setTextString(line.value);
    layOutText(database, layout, *made);
    addToCurrentSpace(database, *made);
    context.setLastPoint(layout.point);
    advanceLine(layout);
  }
}

} // namespace drafton
