// LAYOUT and MODEL.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/objects/layout.h"

namespace drafton {
namespace {

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

} // namespace drafton
