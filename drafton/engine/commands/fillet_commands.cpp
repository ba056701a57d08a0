// FILLET and CHAMFER.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/command_steps.h"
#include "drafton/engine/commands/corner_joining.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"

namespace drafton {
namespace {

constexpr QLatin1String kTrims("TRIMMODE"); // 1: objects end at the corner

double variable(const CommandContext& context, QLatin1String name) {
  OdVariant value;
  context.variables().get(name, value);
  return value.toDouble();
}

struct Size {
  QLatin1String variable;
  const char16_t* question;
};

/// What one of the two commands asks and does.
struct Way {
  const char16_t* settings; ///< of the sizes
  const char16_t* keywords;
  std::span<const Size> sizes; ///< each is offered the one before it, unless it has a value
  std::optional<Corner> (*corner)(const CornerSide& first, const CornerSide& second, double one,
                                  double other);
};

constexpr Size kRadius[] = {{QLatin1String("FILLETRAD"), u"Specify fillet radius"}};
constexpr Size kDistances[] = {
    {QLatin1String("CHAMFERA"), u"Specify first chamfer distance"},
    {QLatin1String("CHAMFERB"), u"Specify second chamfer distance"},
};

constexpr Way kFillet = {u"Radius = %1", u"Undo Polyline Radius Trim Multiple", kRadius,
                         [](const CornerSide& first, const CornerSide& second, double radius,
                            double) { return roundedCorner(first, second, radius); }};
constexpr Way kChamfer = {u"Distances = %1, %2", u"Undo Polyline Distance Trim Multiple",
                          kDistances, cutCorner};

/// The drawing gets the sizes that count, also those that were set for a corner that was given up.
void takeSizes(const CommandContext& context, const Way& way) {
  for (const Size& size : way.sizes)
    context.variables().set(size.variable, variable(context, size.variable));
}

void printSettings(const CommandContext& context, const Way& way) {
  OdString sizes = translated(way.settings);
  for (const Size& size : way.sizes) sizes = sizes.arg(shownReal(variable(context, size.variable)));
  const OdString trims =
      variable(context, kTrims) != 0 ? translated(u"Trim") : translated(u"No trim");
  context.print(translated(u"Current settings: Mode = %1, %2").arg(trims, sizes));
}

Task<void> askSizes(CommandContext& context, const Way& way) {
  for (std::size_t i = 0; i < way.sizes.size(); ++i) {
    const Size& size = way.sizes[i];
    // A second distance is most often the first one.
    const double usual = variable(context, way.sizes[i == 0 ? 0 : i - 1].variable);
    const QStringView question = size.question;
    const Answer<double> answer = co_await context.input().distance(
        {.text = question, .defaultValue = usual, .range = NumberRange::kNotNegative});
    context.variables().set(size.variable, answer.value);
  }
}

Task<void> askTrim(CommandContext& context) {
  const QStringView now = variable(context, kTrims) != 0 ? u"Trim" : u"Notrim";
  const Answer<OdString> mode = co_await context.input().keyword(
      {.text = u"Enter trim mode", .keywords = u"Trim Notrim", .defaultValue = now});
  context.variables().set(kTrims, mode.is(u"Trim") ? 1 : 0);
}

CornerMaker makerOf(const CommandContext& context, const Way& way) {
  const double one = variable(context, way.sizes.front().variable);
  const double other = variable(context, way.sizes.back().variable);
  return [&way, one, other](const CornerSide& first, const CornerSide& second) {
    return way.corner(first, second, one, other);
  };
}

/// False if none was chosen.
Task<bool> treatPolyline(CommandContext& context, const Way& way) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select polyline");
    if (picked.id.isNull()) co_return false;
    if (const auto done = treatCorners(picked.id, makerOf(context, way))) {
      context.print(translated(u"%1 corner(s) done, %2 left as they are.")
                        .arg(done->treated)
                        .arg(done->left));
      co_return true;
    }
    context.print(translated(u"That is no polyline."));
  }
}

/// False if the command is to end.
Task<bool> treatCornerOf(CommandContext& context, const Way& way, PickedEntity first) {
  for (;;) {
    const PickedEntity second = co_await selectEntity(context, u"Select second object");
    if (second.id.isNull()) co_return false;
    const OdString fault =
        joinAtCorner(context, first, second, makerOf(context, way), variable(context, kTrims) != 0);
    if (fault.isEmpty()) co_return true;
    context.print(fault);
  }
}

Task<void> treat(CommandContext& context, const Way& way) {
  OdDbDatabase& database = context.database();
  std::vector<OdDbUndoMark> marks;
  bool isMultiple = false;
  takeSizes(context, way);
  printSettings(context, way);
  for (;;) {
    const QStringView keywords = way.keywords;
    const PickedEntity picked = co_await selectEntity(context, u"Select first object", keywords);
    bool isDone = false;
    if (picked.keyword == QLatin1String("Undo")) {
      takeBackStep(context, marks);
    } else if (picked.keyword == QLatin1String("Multiple")) {
      isMultiple = true;
    } else if (picked.keyword == QLatin1String("Trim")) {
      co_await askTrim(context);
    } else if (picked.keyword == QLatin1String("Polyline")) {
      marks.push_back(database.undoMark());
      isDone = co_await treatPolyline(context, way);
    } else if (!picked.keyword.isEmpty()) {
      co_await askSizes(context, way);
    } else if (picked.id.isNull()) {
      co_return;
    } else {
      marks.push_back(database.undoMark());
      isDone = co_await treatCornerOf(context, way, picked);
      if (!isDone) co_return;
    }
    if (isDone && !isMultiple) co_return;
  }
}

} // namespace

Task<void> fillet(CommandContext& context) { co_await treat(context, kFillet); }

Task<void> chamfer(CommandContext& context) { co_await treat(context, kChamfer); }

} // namespace drafton
