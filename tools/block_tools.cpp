// Tools from blocks of open drawings and of drawing files.
#include "drawing/database.h"
#include "drawing/objects/xref_manager.h"
#include "drawing/tables/standard_arrows.h"
#include "frame/system_services.h"
#include "host/document.h"
#include "host/host_locator.h"
#include "images/image.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "tools/block_tool.h"
#include "tools/tool_maker.h"

namespace tc {
namespace {

/// False for what a drawing keeps for itself: its layouts, blocks that programs have named, and
/// what came with an external reference. None of these can be brought in by its name.
bool canBeInserted(const OdDbBlockTableRecord& block) {
  return !block.isLayout() && !block.isAnonymous() && !block.getName().startsWith(u'*') &&
         !OdDbXRefMan::owns(block);
}

OdDbBlockTableRecordPtr findBlock(const OdDbDatabase& drawing, const OdString& name) {
  const OdDbBlockTablePtr blocks = drawing.getBlockTableId().openObject();
  const OdDbObjectPtr found = blocks->getAt(name).openObject();
  OdDbBlockTableRecordPtr block = odrxCast<OdDbBlockTableRecord>(found);
  return block && canBeInserted(*block) ? block : OdDbBlockTableRecordPtr();
}

QStringList insertableBlocks(const OdDbDatabase& drawing) {
  QStringList names;
  const OdDbBlockTablePtr blocks = drawing.getBlockTableId().openObject();
  // The arrows of dimensions stand in many drawings; nobody wants them on a palette.
  for (const auto at = blocks->newIterator(); !at->done(); at->step())
    if (const OdDbBlockTableRecordPtr block = at->getRecord();
        canBeInserted(*block) && !oddb::isStandardArrowBlock(block->getName()))
      names << block->getName();
  return names;
}

} // namespace

OdDbDatabase* OdTcToolMaker::open(const OdString& file) {
  m_problem.clear();
  OdDbDatabase* const drawing = m_sources.drawing(file);
  if (!drawing) {
    showMessage(StringId::kFileReadError, true);
    fail(m_sources.problem());
  }
  return drawing;
}

QStringList OdTcToolMaker::blocksOf(const OdString& file) {
  const OdDbDatabase* const drawing = open(file);
  if (!drawing) return {};
  const QStringList names = insertableBlocks(*drawing);
  if (names.isEmpty()) failWith(StringId::kNoBlockDefinitions);
  return names;
}

bool OdTcToolMaker::fromBlock(OdTcTool& tool, const OdString& name, IHostDocument* document) {
  m_problem.clear();
  const OdDbDatabase* const drawing = document ? document->database() : nullptr;
  if (!drawing) return fail(host::translate(QStringLiteral("there is no drawing")));
  if (!host::isSaved(*document)) return failWith(StringId::kSaveDrawingFirst);
  const OdDbBlockTableRecordPtr block = findBlock(*drawing, name);
  if (!block) return fail(host::translate(QStringLiteral("there is no such block")));
  return takeBlock(tool, *block, document->path());
}

bool OdTcToolMaker::fromDrawingBlock(OdTcTool& tool, const OdString& file, const OdString& name) {
  const OdDbDatabase* const drawing = open(file);
  if (!drawing) return false;
  if (const OdDbBlockTableRecordPtr block = findBlock(*drawing, name))
    return takeBlock(tool, *block, file);
  if (insertableBlocks(*drawing).isEmpty()) return failWith(StringId::kNoBlockDefinitions);
  return fail(host::translate(QStringLiteral("there is no such block")));
}

bool OdTcToolMaker::takeBlock(OdTcTool& tool, const OdDbBlockTableRecord& block,
                              const OdString& file) {
  const auto agent = odrxMake<OdTcToolBlockCommandImpl>();
  agent->setName(block.getName());
  agent->setSourceFile(file);
  if (block.isFromExternalReference()) {
    const OdString reference = OdDbXRefMan::resolvedPath(block);
    if (reference.isEmpty())
      return fail(showWarning(
          formatText(host::translate(QStringLiteral(
                         "Unable to create the tool. The xref file '%s' could not be located.")),
                     block.pathName())));
    // Only a tool of a whole file can attach it.
    agent->setBlockType(2);
    agent->setSourceFile(reference);
    agent->setInsertAs(2);
    agent->setXrefType(1);
  }
  tool.setToolType(OdTcTool::kRegular);
  tool.setName(block.getName());
  tool.setDescription(block.comments());
  tool.setActionAgent(agent);
  // What the drawing shows of a reference is at hand; its file may keep no picture of itself.
  if (m_pictures == Pictures::kAtOnce)
    setPictures(tool, [&](OdTcImage& image) { return image.makeFromBlock(block.objectId()); });
  return true;
}

} // namespace tc
