#include "drafton/engine/commands/arc_prompts.h"

#include "drafton/engine/commands/previews.h"
#include "drafton/engine/translator.h"

namespace drafton {

Task<double> askIncludedAngle(CommandContext& context, std::optional<OdGePoint3d> base) {
  CommandInput& input = context.input();
  for (;;) {
    const Answer<double> angle =
        co_await input.angle({.text = u"Specify included angle", .base = base});
    const double size = std::abs(angle.value);
    if (size > 0 && size < 2 * kOdaPi) co_return angle.value;
    context.print(translated(u"The angle must not be zero and must be below a full turn."));
  }
}

Task<std::optional<ArcPath>> askArcAround(CommandContext& context, OdGePoint3d center,
                                          OdGePoint3d start) {
  CommandInput& input = context.input();
  const auto around = [&](const OdGePoint3d& to) {
    return arcShape(context.database(), arcAround(center, start, to));
  };
  const Answer<OdGePoint3d> end = co_await input.point({.text = u"Specify end point of arc",
                                                        .keywords = u"Angle Length",
                                                        .base = center,
                                                        .preview = around});
  if (end.isValue()) co_return arcAround(center, start, end.value);
  if (end.is(u"Angle")) {
    const double angle = co_await askIncludedAngle(context, center);
    co_return arcAroundByAngle(center, start, angle);
  }
  const Answer<double> chord = co_await input.distance(
      {.text = u"Specify length of chord", .base = start, .range = NumberRange::kNotZero});
  co_return arcAroundByChord(center, start, chord.value);
}

void printNoArc(const CommandContext& context) {
  context.print(translated(u"There is no such arc."));
}

} // namespace drafton
