#include "drafton/engine/blocks/block_source.h"

#include "drafton/engine/blocks/reference_reports.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/document.h"
#include "drafton/engine/support_files.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/block_reference.h"
#include "drawing/objects/file_references.h"
#include "frame/file_path.h"

#include <QFileInfo>

#include <unordered_set>

namespace drafton {
namespace {

OdDbBlockTablePtr blocks(const OdDbDatabase& database) {
  return database.getBlockTableId().openAs<OdDbBlockTable>();
}

OdString shortened(const OdString& words) { return words.left(200); }

/// The model space of a file as a block of the drawing; one that is there gets its contents.
OdDbObjectId insertFile(CommandContext& context, const OdString& path, const OdString& name) {
  OdDbDatabase& database = context.database();
  if (const OdString fault = recordNameFault(name); !fault.isEmpty())
    throw CommandFailure(
        translated(u"\"%1\" is no name for a block: %2.").arg(shortened(name), fault));
  if (odpath::samePlace(path, context.document().path()))
    throw CommandFailure(translated(u"A drawing cannot be inserted into itself."));
  const OdDbDatabasePtr source = readDrawing(path);
  for (const OdDbXRefMan::Report& reference : OdDbXRefMan::loadAll(*source))
    if (reference.result != OdDbXRefMan::Result::kLoaded) context.print(reportLine(reference));
  oddbRebaseFileReferences(*source, context.document().path());
  const OdDbObjectId id = database.insert(name, source, true);
  const auto block = id.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  block->setBlockInsertUnits(static_cast<int>(source->sysVarInt("INSUNITS")));
  return id;
}

OdString fileFor(CommandContext& context, const OdString& name) {
  return findSupportFile(context.engine(), &context.document(), name, QStringLiteral("dxf"));
}

OdString whyNoFile(CommandContext& context, const OdString& name) {
  return whyNoSupportFile(context.engine(), &context.document(), name, QStringLiteral("dxf"));
}

} // namespace

QStringList blockNames(const OdDbDatabase& database, const OdString& patterns) {
  QStringList names;
  for (const OdString& name : recordNames(*blocks(database), patterns))
    if (!name.startsWith(u'*')) names << name;
  names.sort(Qt::CaseInsensitive);
  return names;
}

void listBlocks(CommandContext& context, const OdString& patterns) {
  const QStringList names = blockNames(context.database(), patterns);
  context.print(translated(u"Defined blocks:"));
  for (const OdString& name : names) context.print(QStringLiteral("  \"%1\"").arg(name));
  context.print(translated(u"%1 block(s).").arg(names.size()));
}

OdDbDatabasePtr readDrawing(const OdString& path) {
  try {
    return OdDbDatabase::readFile(path);
  } catch (const OdError& error) {
    throw CommandFailure(error.description());
  }
}

OdDbObjectId blockFor(CommandContext& context, const OdString& words) {
  const qsizetype equals = words.indexOf(u'=');
  if (equals > 0) {
    const OdString name = words.left(equals).trimmed(), file = words.mid(equals + 1).trimmed();
    const OdString path = fileFor(context, file.isEmpty() ? name : file);
    if (path.isEmpty()) throw CommandFailure(whyNoFile(context, file.isEmpty() ? name : file));
    return insertFile(context, path, name);
  }
  if (const OdDbBlockTableRecordPtr block = blocks(context.database())->getAt(words).openObject();
      block && !words.startsWith(u'*')) {
    if (const OdString fault = recordUseFault(*block); !fault.isEmpty())
      throw CommandFailure(fault);
    return block->objectId();
  }
  const OdString path = fileFor(context, words);
  if (path.isEmpty() && QFileInfo::exists(odpath::toPlatform(words)))
    throw CommandFailure(whyNoFile(context, words));
  if (path.isEmpty())
    throw CommandFailure(
        translated(u"There is neither a block nor a file \"%1\".").arg(shortened(words)));
  const OdString name = odpath::titleOf(path);
  const OdDbObjectId there = blocks(context.database())->getAt(name);
  return there.isNull() ? insertFile(context, path, name) : there;
}

bool blockContains(OdDbObjectId block, OdDbObjectId part) {
  std::unordered_set<OdDbObjectId> seen;
  std::vector<OdDbObjectId> waiting{block};
  while (!waiting.empty()) {
    const OdDbObjectId id = waiting.back();
    waiting.pop_back();
    if (id == part) return true;
    if (!seen.insert(id).second) continue;
    const OdDbBlockTableRecordPtr record = id.openObject();
    if (!record) continue;
    for (auto at = record->newIterator(); !at->done(); at->step()) {
      const OdDbEntityPtr entity = at->entity();
      if (const auto* const insert = odrxCast<OdDbBlockReference>(entity))
        waiting.push_back(insert->blockTableRecord());
    }
  }
  return false;
}

} // namespace drafton
