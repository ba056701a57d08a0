// WBLOCK.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/document.h"
#include "drafton/engine/drawing_files.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "frame/file_path.h"

#include <QFileInfo>

namespace drafton {
namespace {

OdString absolutePath(const CommandContext& context, const OdString& typed) {
  OdString path = odpath::fromPlatform(typed);
  if (odpath::extensionOf(path).isEmpty()) path += QStringLiteral(".dxf");
  const OdString folder = odpath::folderOf(context.document().path());
  return odpath::isRelative(path) && !folder.isEmpty() ? folder + u'\\' + path : path;
}

/// The file to be written; empty if the user keeps the one that is there.
Task<OdString> askFile(CommandContext& context) {
  const Answer<OdString> typed =
      co_await context.input().string({.text = u"Enter name of output file", .allowBlanks = true});
  const OdString path = absolutePath(context, typed.value);
  if (odpath::samePlace(path, context.document().path()))
    throw CommandFailure(
        translated(u"%1 is the drawing's own file.").arg(odpath::toPlatform(path)));
  if (!QFileInfo::exists(odpath::toPlatform(path))) co_return path;
  const OdString question =
      translated(u"%1 already exists. Replace it?").arg(odpath::toPlatform(path));
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No", .defaultValue = u"No"});
  co_return answer.is(u"Yes") ? path : OdString();
}

Task<OdDbDatabasePtr> askSelected(CommandContext& context) {
  const Answer<OdGePoint3d> base =
      co_await context.input().point({.text = u"Specify insertion base point"});
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return OdDbDatabasePtr();
  const OdDbDatabase& database = context.database();
  co_return database.wblock(std::vector<OdDbObjectId>(chosen.begin(), chosen.end()), base.value);
}

/// What is to be written: a block, all of the drawing, or what the user chooses. Null for nothing.
Task<OdDbDatabasePtr> askContents(CommandContext& context, OdString path) {
  const OdDbDatabase& database = context.database();
  const auto table = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter name of existing block, = (block of the file's name), * (whole drawing), "
                 u"or nothing to choose objects",
         .allowEmpty = true});
    if (name.isEmpty() || name.value.isEmpty()) co_return co_await askSelected(context);
    if (name.value == u"*") co_return database.wblock();
    const OdString wanted = name.value == u"=" ? odpath::titleOf(path) : name.value;
    const OdDbObjectId block = wanted.startsWith(u'*') ? OdDbObjectId() : table->getAt(wanted);
    if (!block.isNull()) co_return database.wblock(block);
    context.print(translated(u"There is no block \"%1\".").arg(wanted.left(200)));
  }
}

} // namespace

Task<void> writeBlock(CommandContext& context) {
  const OdString path = co_await askFile(context);
  if (path.isEmpty()) co_return;
  const OdDbDatabasePtr drawing = co_await askContents(context, path);
  if (!drawing) co_return;
  try {
    writeDrawing(context.engine(), *drawing, path);
  } catch (const OdError& error) {
    throw CommandFailure(error.description());
  }
  context.print(translated(u"%1 written.").arg(odpath::toPlatform(path)));
}

} // namespace drafton
