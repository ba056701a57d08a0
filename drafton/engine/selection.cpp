#include "drafton/engine/selection.h"

#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/document.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/entity_groups.h"
#include "drafton/engine/selection_set.h"

namespace drafton {
namespace {

constexpr QStringView kKeywords =
    u"Window Crossing BOX ALL Last Previous Fence WPolygon CPolygon Add Remove Undo SIngle Handle "
    u"FIlter";

/// A way of choosing that needs two corners.
struct BoxWay {
  const char16_t* keyword;
  enum { kInside, kMeeting, kByDirection } how;
};

constexpr BoxWay kBoxWays[] = {
    {u"Window", BoxWay::kInside}, {u"Crossing", BoxWay::kMeeting}, {u"BOX", BoxWay::kByDirection}};

/// A way of choosing that needs a line of points.
struct LineWay {
  const char16_t* keyword;
  std::size_t fewest; ///< points
  const char16_t* tooFew;
};

constexpr LineWay kLineWays[] = {
    {u"WPolygon", 3, u"A polygon needs three corners."},
    {u"CPolygon", 3, u"A polygon needs three corners."},
    {u"Fence", 2, u"A fence needs two points."},
};

Task<Selection> askBox(CommandContext& context, const SelectionPicker& picker, OdGePoint3d first,
                       BoxWay way) {
  const Answer<OdGePoint3d> second = co_await context.input().point(
      {.text = u"Specify opposite corner", .base = first, .band = RubberBand::kSelection});
  const SelectionRegion window = SelectionRegion::window(first, second.value);
  const bool meeting =
      way.how == BoxWay::kMeeting || (way.how == BoxWay::kByDirection && second.value.x < first.x);
  co_return meeting ? picker.meeting(window) : picker.inside(window);
}

/// The corners of a polygon or the points of a fence, until Enter.
Task<std::vector<OdGePoint3d>> askLine(CommandContext& context, bool isFence) {
  CommandInput& input = context.input();
  const QStringView question = isFence ? u"Specify first fence point" : u"First polygon point";
  const Answer<OdGePoint3d> first = co_await input.point({.text = question});
  std::vector<OdGePoint3d> points(1, first.value);
  for (;;) {
    const Answer<OdGePoint3d> next =
        co_await input.point({.text = isFence ? QStringView(u"Specify next fence point")
                                              : QStringView(u"Specify endpoint of line"),
                              .keywords = u"Undo",
                              .base = points.back(),
                              .allowEmpty = true});
    if (next.isEmpty()) co_return points;
    if (next.isValue())
      points.push_back(next.value);
    else if (points.size() > 1)
      points.pop_back();
    else
      context.print(translated(u"There is nothing to undo."));
  }
}

Task<Selection> askLineWay(CommandContext& context, const SelectionPicker& picker,
                           const LineWay& way) {
  const bool isFence = way.fewest == 2;
  const std::vector<OdGePoint3d> points = co_await askLine(context, isFence);
  if (points.size() < way.fewest) {
    context.print(translated(way.tooFew));
    co_return Selection();
  }
  if (isFence) co_return picker.meeting(SelectionRegion::fence(points));
  const SelectionRegion polygon = SelectionRegion::polygon(points);
  co_return QStringView(way.keyword) == u"WPolygon" ? picker.inside(polygon)
                                                    : picker.meeting(polygon);
}

/// Asks for patterns of names.
Task<OdString> askPatterns(CommandContext& context, const char16_t* question) {
  const Answer<OdString> patterns =
      co_await context.input().string({.text = question, .defaultValue = u"*"});
  co_return patterns.value;
}

Task<void> askFilter(CommandContext& context, SelectionFilter& filter) {
  const Answer<OdString> kind =
      co_await context.input().keyword({.text = u"Enter what to filter by",
                                        .keywords = u"Type Layer Color LType None",
                                        .defaultValue = u"Type"});
  if (kind.is(u"None")) filter = {};
  if (kind.is(u"Type")) filter.types = co_await askPatterns(context, u"Enter type(s) of objects");
  if (kind.is(u"Layer")) filter.layers = co_await askPatterns(context, u"Enter layer name(s)");
  if (kind.is(u"LType"))
    filter.linetypes = co_await askPatterns(context, u"Enter linetype name(s)");
  if (kind.is(u"Color"))
    filter.color = co_await askColor(context, u"Enter color", OdCmColor(), ColorKinds::kAll);
  context.print(filter.isSet() ? translated(u"Filter: %1").arg(filter.shown())
                               : translated(u"No filter."));
}

/// The entities that one answer at the prompt means.
Task<Selection> found(CommandContext& context, SelectionPicker& picker,
                      Answer<OdGePoint3d> answer) {
  if (answer.is(u"ALL")) co_return picker.all();
  if (answer.is(u"Last")) co_return picker.last();
  if (answer.is(u"Previous")) co_return picker.previous();
  if (answer.is(u"Handle")) {
    const Answer<OdString> handle = co_await context.input().string({.text = u"Enter the handle"});
    co_return picker.byHandle(handle.value);
  }
  for (const BoxWay& way : kBoxWays)
    if (answer.is(way.keyword)) {
      const Answer<OdGePoint3d> first =
          co_await context.input().point({.text = u"Specify first corner"});
      co_return co_await askBox(context, picker, first.value, way);
    }
  for (const LineWay& way : kLineWays)
    if (answer.is(way.keyword)) co_return co_await askLineWay(context, picker, way);
  Selection picked = picker.at(answer.value);
  // An empty place begins a window.
  if (picked.empty()) picked = co_await askBox(context, picker, answer.value, kBoxWays[2]);
  co_return picked;
}

void remember(CommandContext& context, const Selection& chosen) {
  if (!chosen.empty()) context.document().previousSelection() = chosen;
}

/// True if an entity is chosen with the others of its group.
bool picksGroups(CommandContext& context) {
  OdVariant style;
  return context.variables().get(QStringLiteral("PICKSTYLE"), style) && (style.toInt32() & 1);
}

} // namespace

Selection takePreselection(CommandContext& context) {
  const Selection before = std::exchange(context.document().preselection(), {});
  OdVariant counts;
  if (!context.variables().get(QStringLiteral("PICKFIRST"), counts) || counts.toInt32() == 0)
    return {};
  return SelectionPicker(context.document()).amongst(before);
}

Task<Selection> selectObjects(CommandContext& context, QStringView prompt) {
  const OdString question = prompt.toString();
  if (const Selection before = takePreselection(context); !before.empty()) {
    context.print(translated(u"%1 found").arg(before.size()));
    remember(context, before);
    context.document().chosen() = before;
    co_return before;
  }
  SelectionPicker picker(context.document());
  SelectionSet set;
  bool removing = false, isSingle = false;
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = removing ? QStringView(u"Remove objects") : QStringView(question),
         .keywords = kKeywords,
         .allowEmpty = true,
         .picks = true});
    if (answer.isEmpty()) break;
    if (answer.is(u"Add") || answer.is(u"Remove")) {
      removing = answer.is(u"Remove");
    } else if (answer.is(u"Undo")) {
      if (!set.undo()) context.print(translated(u"There is nothing to undo."));
      context.document().chosen() = set.chosen();
    } else if (answer.is(u"SIngle")) {
      isSingle = true;
    } else if (answer.is(u"FIlter")) {
      co_await askFilter(context, picker.filter());
    } else {
      Selection more = co_await found(context, picker, answer);
      if (picksGroups(context)) more = picker.amongst(withGroups(context.database(), more));
      removing ? set.remove(more) : set.add(more);
      context.document().chosen() = set.chosen();
      context.print(translated(u"%1 found, %2 in total").arg(more.size()).arg(set.chosen().size()));
      if (isSingle && !more.empty()) break;
    }
  }
  remember(context, set.chosen());
  co_return set.chosen();
}

Task<PickedEntity> selectEntity(CommandContext& context, QStringView prompt, QStringView keywords) {
  const OdString question = prompt.toString();
  const SelectionPicker picker(context.document());
  const OdString every = keywords.toString() + QStringLiteral(" Last");
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = question, .keywords = every, .allowEmpty = true, .picks = true});
    if (answer.isEmpty()) co_return PickedEntity();
    if (!answer.isValue() && !answer.is(u"Last")) co_return PickedEntity{{}, {}, answer.keyword};
    const Selection picked = answer.isValue() ? picker.at(answer.value) : picker.last();
    if (!picked.empty())
      co_return PickedEntity{picked.front(),
                             answer.isValue() ? answer.value : context.lastPoint(),
                             {},
                             answer.isValue()};
    context.print(translated(u"Nothing was found there."));
  }
}

} // namespace drafton
