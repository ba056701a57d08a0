// SCALE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// A new length beside one that is there.
Task<double> askReference(CommandContext& context, OdGePoint3d base) {
  CommandInput& input = context.input();
  const Answer<double> reference = co_await input.distance(
      {.text = u"Specify reference length", .defaultValue = 1.0, .range = NumberRange::kPositive});
  Answer<double> wanted = co_await input.distance({.text = u"Specify new length",
                                                   .keywords = u"Points",
                                                   .base = base,
                                                   .defaultValue = 1.0,
                                                   .range = NumberRange::kPositive});
  if (wanted.is(u"Points"))
    wanted =
        co_await input.distance({.text = u"Specify first point", .range = NumberRange::kPositive});
  co_return wanted.value / reference.value;
}

struct Scaling {
  double factor;
  bool copies;
};

Task<Scaling> askScaling(CommandContext& context, const Selection& chosen, OdGePoint3d base) {
  const auto scaled = [&](double value) {
    return movedShapes(chosen, by(OdGeMatrix3d::scaling(value, base)));
  };
  for (bool copies = false;;) {
    const Answer<double> answer =
        co_await context.input().distance({.text = u"Specify scale factor",
                                           .keywords = u"Copy Reference",
                                           .base = base,
                                           .defaultValue = DrawingSession::of(context).scale,
                                           .range = NumberRange::kPositive,
                                           .preview = scaled});
    if (answer.isValue()) co_return Scaling{answer.value, copies};
    if (answer.is(u"Reference")) {
      const double factor = co_await askReference(context, base);
      co_return Scaling{factor, copies};
    }
    copies = true;
    context.print(translated(u"Scaling a copy of the selected objects."));
  }
}

} // namespace

Task<void> scale(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const Answer<OdGePoint3d> base = co_await context.input().point({.text = u"Specify base point"});
  const Scaling wanted = co_await askScaling(context, chosen, base.value);
  DrawingSession::of(context).scale = wanted.factor;
  int tables = 0;
  const auto grow = [&tables, scaling = by(OdGeMatrix3d::scaling(wanted.factor, base.value))](
                        OdDbEntity& entity) {
    const bool grows = scaling(entity);
    if (!grows && qstrcmp(entity.dxfName(), "ACAD_TABLE") == 0) ++tables;
    return grows;
  };
  if (wanted.copies)
    copyEntities(context, chosen, grow, u"%1 could not be scaled.");
  else
    moveEntities(context, chosen, grow, u"%1 could not be scaled.");
  if (tables > 0)
    context.print(translated(u"%1 of them are tables: the sizes of their letters are those of a "
                             u"table style, which other tables share.")
                      .arg(tables));
}

} // namespace drafton
