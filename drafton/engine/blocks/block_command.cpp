// BLOCK.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/block_reference.h"

namespace drafton {
namespace {

Task<bool> askRedefinition(CommandContext& context, OdString name) {
  const OdString question = translated(u"Block \"%1\" already exists. Redefine it?").arg(name);
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No", .defaultValue = u"No"});
  co_return answer.is(u"Yes");
}

/// The name of a block that may be made; empty if the user keeps the one that is there.
Task<OdString> askName(CommandContext& context) {
  for (;;) {
    const Answer<OdString> name =
        co_await context.input().string({.text = u"Enter block name", .keywords = u"?"});
    if (name.is(u"?")) {
      listBlocks(context, QStringLiteral("*"));
      continue;
    }
    if (const OdString fault = recordNameFault(name.value); !fault.isEmpty()) {
      context.print(
          translated(u"\"%1\" is no name for a block: %2.").arg(name.value.left(60), fault));
      continue;
    }
    const auto table = context.database().getBlockTableId().openAs<OdDbBlockTable>();
    const OdDbBlockTableRecordPtr there = table->getAt(name.value).openObject();
    if (!there) co_return name.value;
    if (there->isFromExternalReference()) {
      context.print(translated(u"\"%1\" is an external reference.").arg(name.value));
      continue;
    }
    const bool redefine = co_await askRedefinition(context, name.value);
    co_return redefine ? there->getName() : OdString();
  }
}

/// An empty block of that name; the contents of one that is there go.
OdDbBlockTableRecordPtr emptyBlock(OdDbDatabase& database, const OdString& name) {
  const auto table = database.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
  if (const OdDbBlockTableRecordPtr there = table->getAt(name).openObject(OdDb::kForWrite)) {
    for (auto at = there->newIterator(); !at->done(); at->step())
      at->entity(OdDb::kForWrite)->erase();
    return there;
  }
  const auto made = odrxMake<OdDbBlockTableRecord>();
  made->setName(name);
  table->add(made);
  return made;
}

void checkNotInItself(OdDbDatabase& database, const OdString& name, const Selection& chosen) {
  const OdDbObjectId block = database.getBlockTableId().openAs<OdDbBlockTable>()->getAt(name);
  if (block.isNull()) return;
  for (const OdDbObjectId& id : chosen) {
    const OdDbEntityPtr entity = id.openObject();
    const auto* const insert = odrxCast<OdDbBlockReference>(entity);
    if (insert && blockContains(insert->blockTableRecord(), block))
      throw CommandFailure(translated(u"Block \"%1\" would contain itself.").arg(name));
  }
}

} // namespace

Task<void> makeBlock(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const OdString name = co_await askName(context);
  if (name.isEmpty()) co_return;
  const Answer<OdGePoint3d> base =
      co_await context.input().point({.text = u"Specify insertion base point"});
  const Selection chosen = co_await selectObjects(context);
  checkNotInItself(database, name, chosen);

  const OdDbBlockTableRecordPtr block = emptyBlock(database, name);
  block->setOrigin(base.value);
  block->setBlockInsertUnits(static_cast<int>(database.sysVarInt("INSUNITS")));
  OdDbIdMapping copies;
  database.deepCloneObjects({chosen.begin(), chosen.end()}, block->objectId(), copies);
  for (const OdDbObjectId& id : chosen) id.openAs<OdDbEntity>(OdDb::kForWrite)->erase();
  context.variables().set(QStringLiteral("INSNAME"), name);
}

} // namespace drafton
