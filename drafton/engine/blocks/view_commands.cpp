// MVIEW and VPLAYER: the views of the model on a sheet.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"

#include <algorithm>

namespace drafton {
namespace {

/// How much more than the model a fitted view shows.
constexpr double kFitMargin = 1.05;

/// The sheet that is drawn on.
OdDbLayoutPtr activeSheet(const CommandContext& context) {
  const OdDbLayoutPtr active = oddb::activeLayout(context.database()).openObject();
  if (!active || active->isModelType())
    throw CommandFailure(
        translated(u"Views of the model stand on layouts. Choose a layout first."));
  return active;
}

OdGeExtents3d modelExtents(const OdDbDatabase& database) {
  return database.getModelSpaceId().openAs<OdDbBlockTableRecord>()->extents();
}

/// Shows a part of the model, as large as it goes; `margin` times as much if there is to be room
/// around it.
void show(OdDbViewport& view, const OdGeExtents3d& part, double margin) {
  if (part.isEmpty()) {
    view.setViewHeight(view.height());
    return;
  }
  const OdGeVector3d size = part.maxPoint() - part.minPoint();
  const OdGePoint3d middle = part.minPoint() + size * 0.5;
  const double height = std::max(size.y, size.x * view.height() / view.width());
  view.setViewCenter({middle.x, middle.y});
  view.setViewHeight(height > 0 ? height * margin : view.height());
}

void addView(CommandContext& context, const OdGePoint3d& a, const OdGePoint3d& b) {
  const double width = std::abs(b.x - a.x), height = std::abs(b.y - a.y);
  if (width == 0 || height == 0)
    throw CommandFailure(translated(u"A view needs a width and a height."));
  const auto view = odrxMake<OdDbViewport>();
  view->setCenterPoint({(a.x + b.x) / 2, (a.y + b.y) / 2, 0});
  view->setWidth(width);
  view->setHeight(height);
  int highest = 1;
  const auto sheet = context.database().getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
  for (auto at = sheet->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    if (const auto* const other = odrxCast<OdDbViewport>(entity))
      highest = std::max(highest, other->number());
  }
  view->setNumber(highest + 1);
  show(*view, modelExtents(context.database()), kFitMargin);
  addNewEntity(context.database(), *view);
}

/// The views among chosen objects, open for writing.
Task<std::vector<OdDbViewportPtr>> askViews(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  std::vector<OdDbViewportPtr> views;
  for (const OdDbObjectId& id : chosen) {
    const OdDbEntityPtr entity = id.openObject(OdDb::kForWrite);
    if (auto* const view = odrxCast<OdDbViewport>(entity)) views.emplace_back(view);
  }
  if (views.empty()) context.print(translated(u"No view was chosen."));
  co_return views;
}

using Views = std::vector<OdDbViewportPtr>;

// Each option of MVIEW for views that are there.

Task<void> showPart(CommandContext& context, const Views& views) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first corner in the model"});
  for (;;) {
    const Answer<OdGePoint3d> second = co_await input.point(
        {.text = u"Specify opposite corner in the model", .base = first.value});
    const OdGeVector3d size = second.value - first.value;
    if (size.x == 0 || size.y == 0) {
      context.print(translated(u"A view needs a width and a height."));
      continue;
    }
    OdGeExtents3d part;
    part.addPoint(first.value);
    part.addPoint(second.value);
    for (const OdDbViewportPtr& view : views) show(*view, part, 1);
    co_return;
  }
}

Task<void> scaleViews(CommandContext& context, const Views& views) {
  const Answer<double> scale =
      co_await context.input().real({.text = u"Enter sheet units for one unit of the model",
                                     .defaultValue = 1,
                                     .range = NumberRange::kPositive});
  for (const OdDbViewportPtr& view : views) view->setCustomScale(scale.value);
}

Task<void> lockViews(CommandContext& context, const Views& views) {
  const Answer<OdString> lock = co_await context.input().keyword(
      {.text = u"Lock views?", .keywords = u"Yes No", .defaultValue = u"Yes"});
  for (const OdDbViewportPtr& view : views) view->setLocked(lock.is(u"Yes"));
}

Task<void> turnOn(CommandContext&, const Views& views) {
  for (const OdDbViewportPtr& view : views) view->setOn(true);
  co_return;
}

Task<void> turnOff(CommandContext&, const Views& views) {
  for (const OdDbViewportPtr& view : views) view->setOn(false);
  co_return;
}

struct ViewOption {
  const char16_t* keyword;
  Task<void> (*run)(CommandContext& context, const Views& views);
};

constexpr ViewOption kViewOptions[] = {
    {u"ON", turnOn},        {u"OFF", turnOff},     {u"Lock", lockViews},
    {u"Scale", scaleViews}, {u"Window", showPart},
};

// The options of VPLAYER.

/// Freezes or thaws layers in chosen views of the sheet.
Task<void> setFrozen(CommandContext& context, bool isFrozen) {
  const OdString question = isFrozen ? translated(u"Enter layer name(s) to freeze in views")
                                     : translated(u"Enter layer name(s) to thaw in views");
  const LayerSet::Match match = co_await askLayers(context, question, false);
  if (match.layers.empty()) co_return;
  const Views views = co_await askViews(context);
  for (const OdDbViewportPtr& view : views) {
    std::vector<OdDbObjectId> frozen = view->frozenLayers();
    for (const OdDbLayerTableRecordPtr& layer : match.layers) {
      std::erase(frozen, layer->objectId());
      if (isFrozen) frozen.push_back(layer->objectId());
    }
    view->setFrozenLayers(std::move(frozen));
  }
}

Task<void> listFrozen(CommandContext& context) {
  const Views views = co_await askViews(context);
  for (const OdDbViewportPtr& view : views) {
    QStringList names;
    for (const OdDbObjectId& layer : view->frozenLayers())
      if (const OdDbLayerTableRecordPtr record = layer.openObject()) names << record->getName();
    context.print(names.isEmpty()
                      ? translated(u"No layers are frozen in view %1.").arg(view->number())
                      : translated(u"Layers frozen in view %1: %2")
                            .arg(view->number())
                            .arg(names.join(QStringLiteral(", "))));
  }
}

} // namespace

Task<void> makeView(CommandContext& context) {
  const OdDbLayoutPtr sheet = activeSheet(context);
  const Answer<OdGePoint3d> corner = co_await context.input().point(
      {.text = u"Specify corner of view", .keywords = u"ON OFF Fit Lock Scale Window"});
  if (corner.isValue()) {
    const Answer<OdGePoint3d> opposite =
        co_await context.input().point({.text = u"Specify opposite corner", .base = corner.value});
    addView(context, corner.value, opposite.value);
    co_return;
  }
  if (corner.is(u"Fit")) {
    const OdGePoint2d paper = sheet->getPlotPaperSize();
    double left = 0, bottom = 0, right = 0, top = 0;
    sheet->getPlotPaperMargins(left, bottom, right, top);
    addView(context, {0, 0, 0}, {paper.x - left - right, paper.y - bottom - top, 0});
    co_return;
  }
  const Views views = co_await askViews(context);
  if (views.empty()) co_return;
  for (const ViewOption& option : kViewOptions)
    if (corner.is(option.keyword)) co_await option.run(context, views);
}

Task<void> layersOfViews(CommandContext& context) {
  activeSheet(context);
  for (;;) {
    const Answer<OdString> option = co_await context.input().keyword(
        {.text = u"Enter an option", .keywords = u"? Freeze Thaw", .allowEmpty = true});
    if (option.isEmpty()) co_return;
    if (option.is(u"?"))
      co_await listFrozen(context);
    else
      co_await setFrozen(context, option.is(u"Freeze"));
  }
}

} // namespace drafton
