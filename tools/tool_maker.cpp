#include "tools/tool_maker.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "images/image_list.h"
#include "module/message_table.h"
#include "module/properties.h"
#include "persistence/value_storage.h"
#include "tools/block_tool.h"
#include "tools/clipboard_formats.h"
#include "tools/command_tool.h"
#include "tools/menu_command.h"
#include "tools/raster_tool.h"

#include <array>

namespace tc {
namespace {

/// The sizes of a tool's pictures.
constexpr std::array kSizes = {OdTcSizeKind::kSmall, OdTcSizeKind::kNormal, OdTcSizeKind::kLarge};

OdTcImageList& freshImages(OdTcTool& tool) {
  const OdTcImageListPtr images = OdTcImageList::createObject();
  images->setOwner(tool.properties());
  tool.setImages(images);
  return *tool.images();
}

/// The button of the command that the macro types, in every size.
void setButtonImages(OdTcTool& tool, const OdTcToolCommandImpl& agent) {
  OdTcImageList& images = freshImages(tool);
  for (const OdTcSizeKind size : kSizes) {
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(static_cast<std::int32_t>(size));
    agent.imageSourceFromMacro(image);
    images.add(image);
  }
}

} // namespace

bool OdTcToolMaker::fail(const OdString& problem) {
  m_problem = problem;
  return false;
}

bool OdTcToolMaker::failWith(StringId message) {
  return fail(showMessage(message, true).trimmed());
}

bool OdTcToolMaker::setPictures(OdTcTool& tool, const std::function<bool(OdTcImage& image)>& make) {
  const bool isMade = freshImages(tool).setFrom(make);
  if (!isMade) tool.setImages(nullptr);
  return isMade;
}

bool OdTcToolMaker::makePictures(OdTcTool& tool) {
  const OdTcToolActionAgent* const agent = tool.getActionAgent();
  return agent &&
         setPictures(tool, [&](OdTcImage& image) { return agent->makePicture(image, m_sources); });
}

bool OdTcToolMaker::fromFile(OdTcTool& tool, const OdString& path) {
  const OdString extension = odpath::extensionOf(path);
  if (odrxSystemServices()->fileExists(path)) {
    if (OdTcValueStorageImpl::drawingExtensions().contains(extension))
      return fromDrawing(tool, path);
    if (OdTcValueStorageImpl::imageExtensions().contains(extension)) return fromRaster(tool, path);
    // A command may be called like a file that lies here.
    return fromCommand(tool, path) ||
           fail(host::translate(QStringLiteral("files of this kind give no tool")));
  }
  return fromCommand(tool, path);
}

bool OdTcToolMaker::fromDrawing(OdTcTool& tool, const OdString& path) {
  m_problem.clear();
  const auto agent = odrxMake<OdTcToolBlockCommandImpl>();
  agent->setBlockType(2);
  agent->setSourceFile(path);
  agent->setInsertAs(1);
  agent->setName(odpath::titleOf(path));
  tool.setToolType(OdTcTool::kRegular);
  tool.setName(agent->getName());
  tool.setActionAgent(agent);
  if (m_pictures == Pictures::kAtOnce) makePictures(tool);
  return true;
}

bool OdTcToolMaker::fromRaster(OdTcTool& tool, const OdString& path) {
  m_problem.clear();
  const auto agent = odrxMake<OdTcToolRasterCommandImpl>();
  agent->setRasterName(odpath::titleOf(path));
  agent->setSourceFile(path);
  tool.setToolType(OdTcTool::kRegular);
  tool.setName(agent->getRasterName());
  tool.setActionAgent(agent);
  // A photograph is decoded once for all sizes.
  if (m_pictures == Pictures::kAtOnce && !freshImages(tool).setFromFile(path))
    tool.setImages(nullptr);
  return true;
}

bool OdTcToolMaker::fromCommand(OdTcTool& tool, const OdString& name) {
  m_problem.clear();
  const std::optional<HostMenuEntry> command = findMenuCommand(name);
  if (!command) return fail(host::translate(QStringLiteral("there is no such file or command")));
  const auto agent = odrxMake<OdTcToolCommandImpl>();
  agent->setCommandString(command->macro);
  tool.setToolType(OdTcTool::kRegular);
  tool.setName(toolNameOf(*command));
  tool.setActionAgent(agent);
  setButtonImages(tool, *agent);
  return true;
}

bool OdTcToolMaker::fromClipboard(OdTcTool& tool) {
  const OdString drawing = drawingOnClipboard();
  return drawing.isEmpty()
             ? fail(host::translate(QStringLiteral("there is no drawing on the clipboard")))
             : fromFile(tool, drawing);
}

} // namespace tc
