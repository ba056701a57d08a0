// ZOOM.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/zoom_scale.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

using Found = std::optional<DrawingView>;
constexpr std::size_t kMostFormerViews = 10;
// Views beyond this cannot be drawn with the digits that numbers have.
constexpr double kSmallestHeight = 1e-12;
constexpr double kGreatestHeight = 1e15;

OdGeExtents3d limitsOf(const OdDbDatabase& database) {
  OdGeExtents3d box;
  box.addPoint(database.sysVarPoint("LIMMIN"));
  box.addPoint(database.sysVarPoint("LIMMAX"));
  return box;
}

OdGeExtents3d extentsOf(const OdDbDatabase& database) {
  return database.getCurrentSpaceId().openAs<OdDbBlockTableRecord>()->extents();
}

DrawingView viewShowing(const OdDbDatabase& database, const OdGeExtents3d& box) {
  return viewOf(box, activeViewAspect(database), activeView(database).height);
}

DrawingView scaled(const OdDbDatabase& database, const ZoomScale& scale) {
  DrawingView view = activeView(database);
  double whole = view.height;
  if (scale.against == ZoomScale::Against::kLimits)
    whole = viewShowing(database, limitsOf(database)).height;
  if (scale.against == ZoomScale::Against::kPaper)
    whole = database.sysVarPoint("PLIMMAX").y - database.sysVarPoint("PLIMMIN").y;
  if (whole > 0) view.height = whole / scale.factor;
  return view;
}

// Each option gives the new view, or none if the view stays.

Task<Found> zoomAll(CommandContext& context) {
  OdGeExtents3d box = limitsOf(context.database());
  box.addExt(extentsOf(context.database()));
  co_return viewShowing(context.database(), box);
}

Task<Found> zoomExtents(CommandContext& context) {
  const OdGeExtents3d box = extentsOf(context.database());
  co_return viewShowing(context.database(), box.isEmpty() ? limitsOf(context.database()) : box);
}

Task<Found> zoomPrevious(CommandContext& context) {
  std::vector<DrawingView>& former = DrawingSession::of(context).formerViews;
  if (former.empty()) {
    context.print(translated(u"No previous view saved."));
    co_return std::nullopt;
  }
  setActiveView(context.database(), former.back());
  former.pop_back();
  co_return std::nullopt;
}

Task<Found> zoomCenter(CommandContext& context) {
  CommandInput& input = context.input();
  DrawingView view = activeView(context.database());
  const Answer<OdGePoint3d> center =
      co_await input.point({.text = u"Specify center point", .allowEmpty = true});
  if (center.isValue()) view.center = {center.value.x, center.value.y};
  const OdString now = shownReal(view.height);
  for (;;) {
    const Answer<OdString> height = co_await input.string(
        {.text = u"Enter magnification or height", .defaultValue = QStringView(now)});
    if (height.value == now) co_return view;
    const std::optional<ZoomScale> scale = parseZoomScale(height.value);
    if (scale) {
      view.height = scale->against == ZoomScale::Against::kLimits
                        ? scale->factor
                        : scaled(context.database(), *scale).height;
      co_return view;
    }
    context.print(translated(u"A height or a magnification (nX or nXP) above zero is needed."));
  }
}

Task<Found> zoomScale(CommandContext& context) {
  for (;;) {
    const Answer<OdString> text =
        co_await context.input().string({.text = u"Enter a scale factor (nX or nXP)"});
    if (const std::optional<ZoomScale> scale = parseZoomScale(text.value))
      co_return scaled(context.database(), *scale);
    context.print(translated(u"A scale factor above zero is needed."));
  }
}

Task<Found> zoomFrom(CommandContext& context, OdGePoint3d corner) {
  for (;;) {
    const Answer<OdGePoint3d> opposite = co_await context.input().point(
        {.text = u"Specify opposite corner", .base = corner, .band = RubberBand::kBox});
    OdGeExtents3d box;
    box.addPoint({corner.x, corner.y, 0});
    box.addPoint({opposite.value.x, opposite.value.y, 0});
    if (box.minPoint() != box.maxPoint()) co_return viewShowing(context.database(), box);
    context.print(translated(u"The corners must differ."));
  }
}

Task<Found> zoomWindow(CommandContext& context) {
  const Answer<OdGePoint3d> corner =
      co_await context.input().point({.text = u"Specify first corner"});
  co_return co_await zoomFrom(context, corner.value);
}

struct ZoomOption {
  const char16_t* keyword;
  Task<Found> (*run)(CommandContext& context);
};

constexpr ZoomOption kOptions[] = {
    {u"All", zoomAll},           {u"Center", zoomCenter}, {u"Extents", zoomExtents},
    {u"Previous", zoomPrevious}, {u"Scale", zoomScale},   {u"Window", zoomWindow},
};

/// Any of a corner, a factor and an option.
Task<Found> askView(CommandContext& context) {
  for (;;) {
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = u"Specify corner of window, enter a scale factor (nX or nXP)",
         .keywords = u"All Center Extents Previous Scale Window",
         .allowEmpty = true,
         .allowText = true});
    if (answer.isValue()) co_return co_await zoomFrom(context, answer.value);
    for (const ZoomOption& option : kOptions)
      if (answer.is(option.keyword)) co_return co_await option.run(context);
    if (const std::optional<ZoomScale> scale = parseZoomScale(answer.text))
      co_return scaled(context.database(), *scale);
    context.print(translated(u"A corner of a window, a scale factor or an option is needed."));
  }
}

} // namespace

Task<void> zoom(CommandContext& context) {
  const Found view = co_await askView(context);
  if (!view) co_return;
  const auto isDrawable = [](double place) { return std::abs(place) <= kGreatestHeight; };
  if (!(view->height >= kSmallestHeight && view->height <= kGreatestHeight) ||
      !isDrawable(view->center.x) || !isDrawable(view->center.y))
    throw CommandFailure(translated(u"The view would be too small or too large to be drawn."));
  std::vector<DrawingView>& former = DrawingSession::of(context).formerViews;
  const DrawingView now = activeView(context.database());
  if (*view == now) co_return;
  former.push_back(now);
  if (former.size() > kMostFormerViews) former.erase(former.begin());
  setActiveView(context.database(), *view);
}

} // namespace drafton
