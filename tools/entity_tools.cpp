// Tools from entities of a drawing.
#include "drawing/database.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/raster_image.h"
#include "frame/file_path.h"
#include "host/host_locator.h"
#include "module/message_table.h"
#include "module/string_table.h"
#include "properties/entity_values.h"
#include "properties/gradient_names.h"
#include "tools/command_route_map.h"
#include "tools/hatch_tool.h"
#include "tools/host_patterns.h"
#include "tools/raster_tool.h"
#include "tools/tool_maker.h"

#include <QFileInfo>

namespace tc {
namespace {

constexpr QStringView kForeignPrefix = u"ACAD_";
constexpr QStringView kFromLines = u"From lines";

using Hatch = OdTcToolHatchCommandImpl;

void takeGradient(Hatch& agent, const OdDbHatch& hatch) {
  agent.setHatchPatternSource(1);
  agent.setGradientName(gradientDisplayName(hatch.gradientName()));
  agent.setGradientColor1(hatch.gradientColor1());
  agent.setGradientColor2(hatch.gradientColor2());
  agent.setGradientAngle(hatch.gradientAngle());
  agent.setGradientCentered(hatch.gradientShift() == 0);
}

void takePattern(Hatch& agent, const OdDbHatch& hatch) {
  agent.setHatchPatternSource(0);
  agent.setHatchType(hatch.patternType());
  if (hatch.patternType() == OdDbHatch::kUserDefined) {
    agent.setPatternName(host::translate(kFromLines.toString()));
  } else {
    agent.setPatternName(withoutForeignPrefix(hatch.patternName()));
    if (const OdString own = host::customPatternFile(agent.getPatternName()); !own.isEmpty())
      agent.setSourceFile(own);
  }
  agent.setAngle(hatch.patternAngle());
  agent.setScale(hatch.patternScale());
  agent.setSpacing(hatch.patternSpace());
  agent.setIsCrosswise(hatch.patternDouble());
}

/// A pattern can be the drawing's alone. The tool is made all the same: the pattern may come.
void tellUnknownPattern(const Hatch& agent) {
  const bool hasPattern =
      agent.fields().hatchObjectType == 0 && agent.getHatchType() != OdDbHatch::kUserDefined;
  if (hasPattern && !isPatternKnown(agent.getPatternName(), agent.patternFile()))
    host::print(formatText(
        host::translate(QStringLiteral(
            "\nThe hatch pattern \"%s\" is in no file of patterns: its tool cannot hatch here.")),
        agent.getPatternName()));
}

} // namespace

OdString withoutForeignPrefix(const OdString& patternName) {
  const qsizetype at = patternName.indexOf(kForeignPrefix);
  return at < 0 ? patternName : patternName.mid(at + kForeignPrefix.size());
}

bool OdTcToolMaker::fromEntity(OdTcTool& tool, OdDbObjectId id) {
  m_problem.clear();
  const OdDbObjectPtr object = id.openObject();
  const auto* const entity = odrxCast<OdDbEntity>(object.get());
  if (!entity) return fail(host::translate(QStringLiteral("there is no such object")));
  if (const auto* const image = odrxCast<OdDbRasterImage>(entity)) return takeImage(tool, *image);
  if (const auto* const hatch = odrxCast<OdDbHatch>(entity)) return takeHatch(tool, *hatch);
  if (odrxCast<OdDbBlockReference>(entity)) {
    if (!takeInsert(tool, id)) return false;
    captureGeneralProperties(tool.getGeneralProperties(), entity);
    return true;
  }
  return takeDrawnBy(tool, *entity);
}

bool OdTcToolMaker::takeImage(OdTcTool& tool, const OdDbRasterImage& image) {
  const OdDbRasterImageDefPtr definition = image.imageDefId().openObject();
  if (!definition || definition->activeFileName().isEmpty())
    return fail(host::translate(QStringLiteral("the image has no file")));
  // The palette does not know the drawing that a relative path starts from.
  const QFileInfo file(odpath::toPlatform(definition->activeFileName()));
  if (!file.isFile())
    return fail(showWarning(
        formatText(host::translate(QStringLiteral(
                       "Unable to create the tool. The image file '%s' could not be located.")),
                   definition->activeFileName())));
  fromRaster(tool, odpath::fromPlatform(file.absoluteFilePath()));
  if (const OdString name = definition->name(); !name.isEmpty())
    static_cast<OdTcToolRasterCommandImpl*>(tool.getActionAgent())->setRasterName(name);
  captureGeneralProperties(tool.getGeneralProperties(), &image);
  return true;
}

bool OdTcToolMaker::takeHatch(OdTcTool& tool, const OdDbHatch& hatch) {
  const auto agent = odrxMake<Hatch>();
  if (hatch.isGradient())
    takeGradient(*agent, hatch);
  else
    takePattern(*agent, hatch);
  tool.setToolType(OdTcTool::kRegular);
  tool.setName(hatch.isGradient() ? agent->getGradientName() : agent->getPatternName());
  tool.setActionAgent(agent);
  tellUnknownPattern(*agent);
  // The picture shows the colour.
  captureGeneralProperties(tool.getGeneralProperties(), &hatch);
  if (m_pictures == Pictures::kAtOnce) makePictures(tool);
  return true;
}

bool OdTcToolMaker::takeInsert(OdTcTool& tool, OdDbObjectId insert) {
  const OdDbObjectId definition = OdDbDynBlockReference(insert).dynamicBlockTableRecord();
  const OdDbObjectPtr object = definition.openObject();
  const auto* const block = odrxCast<OdDbBlockTableRecord>(object.get());
  if (!block) return fail(host::translate(QStringLiteral("the block is not defined")));
  IHostDocument* const document = host::curDocument();
  if (document && document->database() == block->database())
    return fromBlock(tool, block->getName(), document);
  // Of a drawing that is not the active one only itself can tell whether it is saved.
  const OdString file = block->database()->fileName();
  const bool isSaved = !file.isEmpty() && !block->database()->isModified();
  return isSaved ? takeBlock(tool, *block, file) : failWith(StringId::kSaveDrawingFirst);
}

bool OdTcToolMaker::takeDrawnBy(OdTcTool& tool, const OdDbEntity& entity) {
  const OdString command = addSelectedCommand(entity.isA()->name());
  if (command.isEmpty())
    return fail(host::translate(QStringLiteral("no command draws objects of this kind")));
  if (!fromCommand(tool, command)) return false;
  captureGeneralProperties(tool.getGeneralProperties(), &entity);
  return true;
}

} // namespace tc
