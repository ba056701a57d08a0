// SELECT and QSELECT.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/document.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/selection_set.h"
#include "drafton/engine/translator.h"

namespace drafton {

// What is chosen is remembered, and "Previous" gives it to the commands that follow. Whoever runs
// this with a parameter set learns from `Count` whether there was a choice.
Task<void> select(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (IMemParam* const parameters = context.parameters())
    parameters->setValue(QStringLiteral("Count"), static_cast<std::int32_t>(chosen.size()));
  context.print(translated(u"%1 selected").arg(chosen.size()));
}

// What fits is chosen for the next command, as if it had been picked before it.
Task<void> quickSelect(CommandContext& context) {
  CommandInput& input = context.input();
  SelectionPicker picker(context.document());
  SelectionFilter& filter = picker.filter();
  const Answer<OdString> types =
      co_await input.string({.text = u"Enter type(s) of objects", .defaultValue = u"*"});
  filter.types = types.value;
  const Answer<OdString> layers =
      co_await input.string({.text = u"Enter layer name(s)", .defaultValue = u"*"});
  filter.layers = layers.value;
  const Answer<OdString> linetypes =
      co_await input.string({.text = u"Enter linetype name(s)", .defaultValue = u"*"});
  filter.linetypes = linetypes.value;
  filter.color = co_await askColor(context, u"Enter color", std::nullopt, ColorKinds::kAll);
  const Answer<OdString> how =
      co_await input.keyword({.text = u"Include what fits in the set, or exclude it",
                              .keywords = u"Include Exclude",
                              .defaultValue = u"Include"});
  Selection fitting = picker.all();
  if (how.is(u"Exclude")) {
    filter = {};
    const Selection every = picker.all();
    SelectionSet others;
    others.add(every);
    others.remove(fitting);
    fitting = others.chosen();
  }
  context.print(translated(u"%1 selected").arg(fitting.size()));
  context.document().preselection() = fitting;
}

} // namespace drafton
