// XATTACH and XREF.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/blocks/parameter_set.h"
#include "drafton/engine/blocks/place_prompts.h"
#include "drafton/engine/blocks/reference_reports.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/document.h"
#include "drafton/engine/support_files.h"
#include "drafton/engine/translator.h"
#include "drawing/objects/xref_manager.h"
#include "frame/file_path.h"

namespace drafton {
namespace {

constexpr int kOverlay = 2;

using Result = OdDbXRefMan::Result;

void print(CommandContext& context, const std::vector<OdDbXRefMan::Report>& reports) {
  for (const OdDbXRefMan::Report& report : reports) context.print(reportLine(report));
}

/// The references of the drawing whose names fit the patterns. Those within others follow them.
std::vector<OdDbBlockTableRecordPtr>
referencesOf(const OdDbDatabase& database, const OdString& patterns, bool withNested = false) {
  std::vector<OdDbBlockTableRecordPtr> found;
  const auto table = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (const OdString& name : recordNames(*table, patterns)) {
    const OdDbBlockTableRecordPtr block = table->getAt(name).openObject(OdDb::kForWrite);
    if (block && block->isFromExternalReference() && (withNested || !OdDbXRefMan::owns(*block)))
      found.push_back(block);
  }
  return found;
}

/// The reference of a file: the one that the drawing has, or a new one.
OdDbObjectId referenceTo(CommandContext& context, const OdString& file, bool overlay) {
  OdDbDatabase& database = context.database();
  const OdString path =
      findSupportFile(context.engine(), &context.document(), file, QStringLiteral("dxf"));
  if (path.isEmpty())
    throw CommandFailure(
        whyNoSupportFile(context.engine(), &context.document(), file, QStringLiteral("dxf")));
  if (odpath::samePlace(path, context.document().path()))
    throw CommandFailure(translated(u"A drawing cannot be attached to itself."));
  for (const OdDbBlockTableRecordPtr& block : referencesOf(database, QStringLiteral("*")))
    if (odpath::samePlace(OdDbXRefMan::resolvedPath(*block), path)) {
      context.print(translated(u"\"%1\" is already attached.").arg(block->getName()));
      return block->objectId();
    }
  std::vector<OdDbXRefMan::Report> reports;
  const OdDbObjectId made =
      OdDbXRefMan::attach(database, path, odpath::titleOf(path), overlay, &reports);
  // Who asked for the file learns the reason with the refusal.
  if (!reports.empty() && reports.front().result != Result::kLoaded)
    throw CommandFailure(translated(u"%1 was not attached: %2")
                             .arg(odpath::toPlatform(path), reportLine(reports.front())));
  print(context, reports);
  return made;
}

Task<void> attachTyped(CommandContext& context, bool asksType, bool overlay) {
  const Answer<OdString> file = co_await context.input().string(
      {.text = u"Enter name of file to attach", .allowBlanks = true});
  if (asksType) {
    const Answer<OdString> type = co_await context.input().keyword({.text = u"Enter reference type",
                                                                    .keywords = u"Attach Overlay",
                                                                    .defaultValue = u"Attach"});
    overlay = type.is(u"Overlay");
  }
  const OdDbObjectId block = referenceTo(context, file.value, overlay);
  const BlockPlace place = co_await askBlockPlace(context, block, false);
  co_await placeBlock(context, block, place);
}

Task<void> attachWith(CommandContext& context, ParameterSet set) {
  const OdString file = set.text(u"ToolPaletteCall");
  const double scale = set.number(u"XATT_SCALE", 1);
  if (scale == 0 || !std::isfinite(scale))
    throw CommandFailure(translated(u"A reference cannot be attached at the scale %1.").arg(scale));
  const bool overlay = static_cast<int>(set.number(u"XATT_REFTYPE", 1)) == kOverlay;
  const OdDbObjectId block = referenceTo(context, file, overlay);
  BlockPlace place;
  place.scale = {scale, scale, scale};
  place.rotation = set.number(u"XATT_ROTATION", 0);
  const bool asksRotation = set.flag(u"XATT_PROMPT_ROTATION");
  place = co_await askPointAndRotation(context, block, place, asksRotation);
  co_await placeBlock(context, block, place);
}

void listReferences(CommandContext& context, const std::vector<OdDbBlockTableRecordPtr>& blocks) {
  for (const OdDbBlockTableRecordPtr& block : blocks) {
    const OdString type =
        block->isFromOverlayReference() ? translated(u"overlay") : translated(u"attached");
    const OdString state = stateName(OdDbXRefMan::state(*block).result);
    context.print(QStringLiteral("\"%1\"  %2  %3  %4")
                      .arg(block->getName(), type, odpath::toPlatform(block->pathName()), state));
  }
  context.print(translated(u"%1 external reference(s).").arg(blocks.size()));
}

Task<std::vector<OdDbBlockTableRecordPtr>> askReferences(CommandContext& context,
                                                         const char16_t* question) {
  const Answer<OdString> patterns = co_await context.input().string({.text = question});
  std::vector<OdDbBlockTableRecordPtr> blocks = referencesOf(context.database(), patterns.value);
  if (blocks.empty())
    context.print(translated(u"No external reference fits \"%1\".").arg(patterns.value.left(200)));
  co_return blocks;
}

Task<void> changePath(CommandContext& context) {
  const auto blocks = co_await askReferences(context, u"Enter reference(s) whose path changes");
  for (const OdDbBlockTableRecordPtr& block : blocks) {
    const OdString now = odpath::toPlatform(block->pathName());
    context.print(translated(u"\"%1\": %2").arg(block->getName(), now));
    const Answer<OdString> path = co_await context.input().string(
        {.text = u"Enter new path", .allowBlanks = true, .defaultValue = QStringView(now)});
    // What the file has stays as it stands there.
    if (path.value != now) block->setPathName(path.value);
    print(context, OdDbXRefMan::load(block));
  }
}

/// Makes an ordinary block of a reference: what its file has becomes part of the drawing.
void bind(CommandContext& context, const OdDbBlockTableRecord& block) {
  const OdString name = block.getName(), path = OdDbXRefMan::resolvedPath(block);
  if (path.isEmpty())
    throw CommandFailure(
        translated(u"The file of \"%1\" was not found: %2").arg(name, block.pathName()));
  const OdDbDatabasePtr source = readDrawing(path);
  OdDbXRefMan::bind(block.objectId(), source);
  context.print(translated(u"\"%1\" bound.").arg(name));
}

} // namespace

Task<void> attachReference(CommandContext& context) {
  if (context.parameters())
    co_await attachWith(context, ParameterSet(*context.parameters()));
  else
    co_await attachTyped(context, true, false);
}

Task<void> references(CommandContext& context) {
  const Answer<OdString> option = co_await context.input().keyword(
      {.text = u"Enter an option",
       .keywords = u"? Attach Overlay Bind Detach Path Reload Unload",
       .defaultValue = u"Attach"});
  if (option.is(u"?")) {
    listReferences(context, referencesOf(context.database(), QStringLiteral("*"), true));
  } else if (option.is(u"Attach") || option.is(u"Overlay")) {
    co_await attachTyped(context, false, option.is(u"Overlay"));
  } else if (option.is(u"Path")) {
    co_await changePath(context);
  } else if (option.is(u"Detach")) {
    const auto blocks = co_await askReferences(context, u"Enter reference(s) to detach");
    for (const OdDbBlockTableRecordPtr& block : blocks) {
      const OdString name = block->getName();
      if (OdDbXRefMan::detach(block->objectId()))
        context.print(translated(u"\"%1\" detached.").arg(name));
    }
  } else if (option.is(u"Bind")) {
    const auto blocks = co_await askReferences(context, u"Enter reference(s) to bind");
    for (const OdDbBlockTableRecordPtr& block : blocks) bind(context, *block);
  } else if (option.is(u"Unload")) {
    const auto blocks = co_await askReferences(context, u"Enter reference(s) to unload");
    for (const OdDbBlockTableRecordPtr& block : blocks) {
      OdDbXRefMan::unload(block->objectId());
      context.print(translated(u"\"%1\" unloaded.").arg(block->getName()));
    }
  } else {
    const auto blocks = co_await askReferences(context, u"Enter reference(s) to reload");
    for (const OdDbBlockTableRecordPtr& block : blocks) print(context, OdDbXRefMan::load(block));
  }
}

} // namespace drafton
