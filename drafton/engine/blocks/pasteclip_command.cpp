// PASTECLIP.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/blocks/drawing_units.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/translator.h"
#include "drawing/id_mapping.h"
#include "drawing/objects/file_references.h"
#include "host/clipboard.h"
#include "host/clipboard_payload.h"

namespace drafton {
namespace {

/// The drawing that holds what was copied. Its references and pictures are told as they are found
/// from where they are put down: relative paths count from the folder that they were copied in.
OdDbDatabasePtr copiedDrawing(CommandContext& context) {
  KVPtr<IHostClipboard> clipboard = kvQuery<IHostClipboard>(&context.engine().services());
  if (!clipboard) throw CommandFailure(translated(u"There is no clipboard."));
  const QByteArray bytes =
      clipboard->data(clipboard->registerFormat(kHostClipboardFormat.toString()));
  const HostClipboardPayload payload = hostclipboard::fromBytes(bytes);
  if (payload.drawing.isEmpty())
    throw CommandFailure(translated(u"There are no objects on the clipboard."));
  const OdDbDatabasePtr drawing = readDrawing(payload.drawing);
  drawing->setFileName(payload.source);
  oddbRebaseFileReferences(*drawing, context.document().path());
  return drawing;
}

/// The corner from above by which copied objects are put down; their heights stay.
OdGePoint3d lowerLeftOf(const Selection& entities) {
  OdGeExtents3d box;
  for (const OdDbObjectId& id : entities)
    if (OdGeExtents3d own; id.openAs<OdDbEntity>()->getGeomExtents(own)) box.addExt(own);
  return box.isEmpty() ? OdGePoint3d() : OdGePoint3d{box.minPoint().x, box.minPoint().y, 0};
}

/// The copied entities, in a block of the drawing until they are put down: so they can be shown.
class Pasted {
 public:
  Pasted(CommandContext& context, OdDbDatabase& source)
    : m_context(context)
    , m_block(oddb::addAnonymousBlock(context.database(), u'U')) {
    const auto space = source.getModelSpaceId().openAs<OdDbBlockTableRecord>();
    const Selection entities = space->entityIds();
    OdDbIdMapping mapping;
    context.database().wblockCloneObjects(entities, m_block, mapping);
    const auto block = m_block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
    m_entities = block->entityIds();
    block->setOrigin(lowerLeftOf(m_entities));
  }

  OdDbObjectId block() const { return m_block; }
  OdGePoint3d origin() const { return m_block.openAs<OdDbBlockTableRecord>()->origin(); }

  /// Puts them into the current space, and takes the block away.
  void putDown(const EntityMover& mover) {
    OdDbDatabase& database = m_context.database();
    OdDbIdMapping mapping;
    database.deepCloneObjects(m_entities, database.getCurrentSpaceId(), mapping);
    int refused = 0;
    for (const OdDbObjectId& id : m_entities) {
      const auto copy = mapping.find(id).openAs<OdDbEntity>(OdDb::kForWrite);
      if (mover(*copy)) continue;
      copy->erase();
      ++refused;
    }
    for (const OdDbObjectId& id : m_entities) id.safeOpenObject(OdDb::kForWrite)->erase();
    m_block.safeOpenObject(OdDb::kForWrite)->erase();
    if (refused > 0) m_context.print(translated(u"%1 could not be pasted.").arg(refused));
  }

 private:
  CommandContext& m_context;
  OdDbObjectId m_block;
  Selection m_entities;
};

} // namespace

Task<void> pasteFromClipboard(CommandContext& context) {
  const OdDbDatabasePtr source = copiedDrawing(context);
  const double factor = unitFactor(static_cast<int>(source->sysVarInt("INSUNITS")),
                                   static_cast<int>(context.database().sysVarInt("INSUNITS")));
  Pasted pasted(context, *source);
  const auto shown = [&](const OdGePoint3d& at) {
    return insertShape(context.database(), pasted.block(), at, {factor, factor, factor}, 0);
  };
  const Answer<OdGePoint3d> point = co_await context.input().point(
      {.text = u"Specify insertion point", .keywords = u"Original", .preview = shown});
  const OdGeMatrix3d scaled = OdGeMatrix3d::scaling(factor);
  const OdGeVector3d shift =
      point.isValue() ? point.value - scaled * pasted.origin() : OdGeVector3d();
  pasted.putDown(by(OdGeMatrix3d::translation(shift) * scaled));
}

} // namespace drafton
