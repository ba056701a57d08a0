// LAYOUT, MODEL and MVIEW.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/viewport.h"
#include "drawing/objects/layout.h"

namespace drafton {
namespace {

/// How much more than the model a fitted view shows.
constexpr double kFitMargin = 1.05;

OdDbLayoutPtr activeLayout(const OdDbDatabase& database) {
  return oddb::activeLayout(database).openObject();
}

/// A layout by its name, that of the current one for Enter.
Task<OdDbLayoutPtr> askLayout(CommandContext& context, const char16_t* question) {
  OdDbDatabase& database = context.database();
  const OdDbLayoutPtr active = activeLayout(database);
  const OdString now = active ? active->getLayoutName() : OdString();
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = question, .allowBlanks = true, .defaultValue = QStringView(now)});
    const OdDbLayoutPtr found = oddb::findLayout(database, name.value).openObject(OdDb::kForWrite);
    if (found) co_return found;
    context.print(translated(u"There is no layout \"%1\".").arg(name.value.left(200)));
  }
}

/// A name that no layout has; `shown` for Enter.
Task<OdString> askNewName(CommandContext& context, const char16_t* question, OdString shown) {
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = question, .allowBlanks = true, .defaultValue = QStringView(shown)});
    if (const OdString fault = recordNameFault(name.value); !fault.isEmpty())
      context.print(
          translated(u"\"%1\" is no name for a layout: %2.").arg(name.value.left(60), fault));
    else if (!oddb::findLayout(context.database(), name.value).isNull())
      context.print(translated(u"There is a layout \"%1\" already.").arg(name.value));
    else
      co_return name.value;
  }
}

OdString freeName(const OdDbDatabase& database) {
  for (int number = 1;; ++number) {
    const OdString name = translated(u"Layout%1").arg(number);
    if (oddb::findLayout(database, name).isNull()) return name;
  }
}

void listLayouts(CommandContext& context) {
  context.print(translated(u"Layouts:"));
  for (const OdDbLayoutPtr& layout : oddb::layouts(context.database())) {
    const OdGePoint2d paper = layout->getPlotPaperSize();
    OdString line = QStringLiteral("  \"%1\"").arg(layout->getLayoutName());
    if (!layout->isModelType()) line += translated(u"  %1 x %2 mm").arg(paper.x).arg(paper.y);
    context.print(line);
  }
}

Task<void> copyLayout(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const OdDbLayoutPtr source = co_await askLayout(context, u"Enter layout to copy");
  if (source->isModelType())
    throw CommandFailure(translated(u"The model cannot be copied to a layout."));
  const OdString shown = freeName(database);
  const OdString name = co_await askNewName(context, u"Enter name for copied layout", shown);
  const OdDbLayoutPtr made = oddb::createLayout(database, name).openObject(OdDb::kForWrite);
  made->OdDbPlotSettings::assignFrom(*source);
  std::vector<OdDbObjectId> shapes;
  const auto sheet = source->getBlockTableRecordId().openAs<OdDbBlockTableRecord>();
  for (auto at = sheet->newIterator(); !at->done(); at->step()) shapes.push_back(at->objectId());
  OdDbIdMapping copies;
  database.deepCloneObjects(shapes, made->getBlockTableRecordId(), copies);
}

// --- views of the model on a sheet

OdGeExtents3d modelExtents(const OdDbDatabase& database) {
  return database.getModelSpaceId().openAs<OdDbBlockTableRecord>()->extents();
}

/// Shows all of the model, as large as it goes.
void fitModel(const OdDbDatabase& database, OdDbViewport& view) {
  const OdGeExtents3d model = modelExtents(database);
  if (model.isEmpty()) {
    view.setViewHeight(view.height());
    return;
  }
  const OdGeVector3d size = model.maxPoint() - model.minPoint();
  const OdGePoint3d middle = model.minPoint() + size * 0.5;
  const double height = std::max(size.y, size.x * view.height() / view.width());
  view.setViewCenter({middle.x, middle.y});
  view.setViewHeight(height > 0 ? height * kFitMargin : view.height());
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
  fitModel(context.database(), *view);
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

} // namespace

Task<void> layout(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const Answer<OdString> option =
      co_await context.input().keyword({.text = u"Enter layout option",
                                        .keywords = u"Copy Delete New Rename Set ?",
                                        .defaultValue = u"Set"});
  if (option.is(u"?")) {
    listLayouts(context);
  } else if (option.is(u"New")) {
    const OdString shown = freeName(database);
    const OdString name = co_await askNewName(context, u"Enter new layout name", shown);
    oddb::createLayout(database, name);
  } else if (option.is(u"Copy")) {
    co_await copyLayout(context);
  } else if (option.is(u"Delete")) {
    const OdDbLayoutPtr gone = co_await askLayout(context, u"Enter name of layout to delete");
    if (gone->isModelType()) throw CommandFailure(translated(u"The model cannot be deleted."));
    const OdString name = gone->getLayoutName();
    oddb::deleteLayout(database, gone->objectId());
    context.print(translated(u"Layout \"%1\" deleted.").arg(name));
  } else if (option.is(u"Rename")) {
    const OdDbLayoutPtr renamed = co_await askLayout(context, u"Enter layout to rename");
    if (renamed->isModelType()) throw CommandFailure(translated(u"The model cannot be renamed."));
    const OdString now = renamed->getLayoutName();
    const OdString name = co_await askNewName(context, u"Enter new layout name", now);
    renamed->setLayoutName(name);
  } else {
    const OdDbLayoutPtr chosen = co_await askLayout(context, u"Enter layout to make current");
    oddb::setActiveLayout(database, chosen->objectId());
  }
}

Task<void> modelSpace(CommandContext& context) {
  OdDbDatabase& database = context.database();
  oddb::setActiveLayout(database, oddb::layouts(database).front()->objectId());
  co_return;
}

Task<void> makeView(CommandContext& context) {
  const OdDbLayoutPtr active = activeLayout(context.database());
  if (!active || active->isModelType())
    throw CommandFailure(
        translated(u"Views of the model stand on layouts. Choose a layout first."));
  const Answer<OdGePoint3d> corner = co_await context.input().point(
      {.text = u"Specify corner of view", .keywords = u"ON OFF Fit Lock Scale"});
  if (corner.isValue()) {
    const Answer<OdGePoint3d> opposite =
        co_await context.input().point({.text = u"Specify opposite corner", .base = corner.value});
    addView(context, corner.value, opposite.value);
    co_return;
  }
  if (corner.is(u"Fit")) {
    const OdGePoint2d paper = active->getPlotPaperSize();
    double left = 0, bottom = 0, right = 0, top = 0;
    active->getPlotPaperMargins(left, bottom, right, top);
    addView(context, {0, 0, 0}, {paper.x - left - right, paper.y - bottom - top, 0});
    co_return;
  }
  const auto views = co_await askViews(context);
  if (views.empty()) co_return;
  if (corner.is(u"Scale")) {
    const Answer<double> scale =
        co_await context.input().real({.text = u"Enter sheet units for one unit of the model",
                                       .defaultValue = 1,
                                       .range = NumberRange::kPositive});
    for (const OdDbViewportPtr& view : views) view->setCustomScale(scale.value);
  } else if (corner.is(u"Lock")) {
    const Answer<OdString> lock = co_await context.input().keyword(
        {.text = u"Lock views?", .keywords = u"Yes No", .defaultValue = u"Yes"});
    for (const OdDbViewportPtr& view : views) view->setLocked(lock.is(u"Yes"));
  } else {
    for (const OdDbViewportPtr& view : views) view->setOn(corner.is(u"ON"));
  }
}

} // namespace drafton
