// BHATCH.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/hatch_draft.h"
#include "drafton/engine/commands/hatch_prompts.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

/// What is chosen, and how it is filled.
struct Running {
  explicit Running(CommandContext& c, HatchOptions o)
    : context(c)
    , options(std::move(o))
    , areas(c)
    , draft(c) {}

  void show() { draft.show(areas, options); }

  CommandContext& context;
  HatchOptions options;
  HatchAreas areas;
  HatchDraft draft;
};

OdString shownFill(const HatchFill& fill) {
  switch (fill.kind) {
  case HatchFill::Kind::kSolid:
    return translated(u"solid");
  case HatchFill::Kind::kUserDefined:
    return translated(u"lines  Angle=%1  Spacing=%2")
               .arg(shownAngle(fill.angle), shownReal(fill.spacing)) +
           (fill.isDouble ? translated(u"  Double") : OdString());
  case HatchFill::Kind::kGradient:
    return translated(u"gradient %1  Angle=%2")
        .arg(kGradientNames[static_cast<std::size_t>(fill.gradient - 1)].toString(),
             shownAngle(fill.gradientAngle));
  case HatchFill::Kind::kPredefined:
  case HatchFill::Kind::kCustom:
    break;
  }
  return translated(u"pattern %1  Scale=%2  Angle=%3")
      .arg(fill.name, shownReal(fill.scale), shownAngle(fill.angle));
}

// Each option of the main prompt.

Task<void> properties(Running& running) {
  co_await askFill(running.context, running.options.fill);
  running.show();
}

Task<void> selectWhole(Running& running) {
  const Selection chosen = co_await selectObjects(running.context);
  if (!chosen.empty() &&
      running.areas.addWithin(chosen, running.options.style, running.options.gap))
    running.show();
}

Task<void> style(Running& running) {
  co_await askIslandStyle(running.context, running.options.style);
}

Task<void> gap(Running& running) { co_await askGap(running.context, running.options.gap); }

Task<void> associative(Running& running) {
  co_await askAssociative(running.context, running.options.isAssociative);
  running.show();
}

Task<void> hatchColor(Running& running) {
  const std::optional<OdCmColor> color = co_await askColor(
      running.context, u"Enter the hatch color", running.options.color, ColorKinds::kAll);
  running.options.color = color.value_or(running.options.color);
  running.show();
}

Task<void> takeBack(Running& running) {
  if (running.areas.takeBack())
    running.show();
  else
    running.context.print(translated(u"There is nothing to undo."));
  co_return;
}

struct Option {
  const char16_t* keyword;
  Task<void> (*run)(Running& running);
};

constexpr Option kOptions[] = {
    {u"Properties", properties},   {u"Select", selectWhole}, {u"STyle", style},   {u"Gap", gap},
    {u"Associative", associative}, {u"COlor", hatchColor},   {u"Undo", takeBack},
};

/// Asks for areas until Enter.
Task<void> chooseAreas(Running& running, QStringView keywords) {
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await running.context.input().point(
        {.text = u"Specify internal point", .keywords = keywords, .allowEmpty = true});
    if (answer.isEmpty()) break;
    if (answer.isValue() &&
        running.areas.addAround(answer.value, running.options.style, running.options.gap))
      running.show();
    for (const Option& option : kOptions)
      if (answer.is(option.keyword)) co_await option.run(running);
  }
  if (running.areas.isEmpty()) running.context.print(translated(u"Nothing was hatched."));
}

/// The commands of tools take all from the variables, and leave them as they are.
Task<void> hatchAtOnce(CommandContext& context, HatchOptions options) {
  checkPattern(context, options.fill); // an unknown pattern is told before the first question
  Running running(context, std::move(options));
  co_await chooseAreas(running, u"Select Undo");
}

} // namespace

Task<void> boundaryHatch(CommandContext& context) {
  Running running(context, hatchOptions(context));
  context.print(translated(u"Current fill: %1").arg(shownFill(running.options.fill)));
  co_await chooseAreas(running, u"Properties Select STyle Gap Associative COlor Undo");
  keepOptions(context, running.options);
}

Task<void> fastHatch(CommandContext& context) {
  return hatchAtOnce(context, hatchOptions(context));
}

Task<void> fastGradient(CommandContext& context) {
  return hatchAtOnce(context, gradientOptions(context));
}

} // namespace drafton
