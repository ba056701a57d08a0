// Tools from blocks of open drawings and of drawing files.
#include "drawing/database.h"
#include "drawing/objects/xref_manager.h"
#include "frame/system_services.h"
#include "host/document.h"
#include "host/host_locator.h"
#include "images/image.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "tools/block_tool.h"
#include "tools/tool_maker.h"

#include <algorithm>
#include <array>

namespace tc {
namespace {

constexpr int kNoBlocks = 2;
constexpr int kUnreadable = 3;
constexpr int kNotSaved = 5;

/// False for what a drawing keeps for itself: its layouts, blocks that programs have named, and
/// what came with an external reference. None of these can be brought in by its name.
bool canBeInserted(const OdDbBlockTableRecord& block) {
  return !block.isLayout() && !block.isAnonymous() && !block.getName().startsWith(u'*') &&
         !OdDbXRefMan::owns(block);
}

/// The arrows of dimensions stand in many drawings; nobody wants them on a palette.
constexpr std::array<QStringView, 20> kArrows = {
    u"_ClosedFilled", u"_ClosedBlank", u"_Closed",      u"_Dot",      u"_ArchTick",
    u"_Oblique",      u"_Open",        u"_Origin",      u"_Origin2",  u"_Open90",
    u"_Open30",       u"_DotSmall",    u"_DotBlank",    u"_Small",    u"_BoxBlank",
    u"_BoxFilled",    u"_DatumBlank",  u"_DatumFilled", u"_Integral", u"_None"};

bool isArrow(const OdDbBlockTableRecord& block) {
  return std::ranges::any_of(kArrows, [&](QStringView arrow) {
    return arrow.compare(block.getName(), Qt::CaseInsensitive) == 0;
  });
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
  for (const auto at = blocks->newIterator(); !at->done(); at->step())
    if (const OdDbBlockTableRecordPtr block = at->getRecord();
        canBeInserted(*block) && !isArrow(*block))
      names << block->getName();
  return names;
}

} // namespace

OdDbDatabase* OdTcToolMaker::open(const OdString& file) {
  m_problem.clear();
  OdDbDatabase* const drawing = m_sources.drawing(file);
  if (!drawing) {
    showMessage(kUnreadable, true);
    fail(m_sources.problem());
  }
  return drawing;
}

QStringList OdTcToolMaker::blocksOf(const OdString& file) {
  const OdDbDatabase* const drawing = open(file);
  if (!drawing) return {};
  const QStringList names = insertableBlocks(*drawing);
  if (names.isEmpty()) failWith(kNoBlocks);
  return names;
}

bool OdTcToolMaker::fromBlock(OdTcTool& tool, const OdString& name, IHostDocument* document) {
  m_problem.clear();
  const OdDbDatabase* const drawing = document ? document->database() : nullptr;
  if (!drawing) return fail(host::translate(QStringLiteral("there is no drawing")));
  if (!host::isSaved(*document)) return failWith(kNotSaved);
  const OdDbBlockTableRecordPtr block = findBlock(*drawing, name);
  if (!block) return fail(host::translate(QStringLiteral("there is no such block")));
  return takeBlock(tool, *block, document->path());
}

bool OdTcToolMaker::fromDrawingBlock(OdTcTool& tool, const OdString& file, const OdString& name) {
  const OdDbDatabase* const drawing = open(file);
  if (!drawing) return false;
  if (const OdDbBlockTableRecordPtr block = findBlock(*drawing, name))
    return takeBlock(tool, *block, file);
  if (insertableBlocks(*drawing).isEmpty()) return failWith(kNoBlocks);
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
