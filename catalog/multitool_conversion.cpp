#include "catalog/multitool_conversion.h"

#include "catalog/import_prompt.h"
#include "catalog/tool_impl.h"
#include "images/image_list.h"
#include "module/properties.h"
#include "tools/action_agent.h"
#include "tools/command_route_map.h"
#include "tools/menu_command.h"

#include <cstdint>
#include <optional>

namespace tc {
namespace {

/// The pictures of a converted tool: the host's button at two sizes.
constexpr OdTcSizeKind kSizes[] = {OdTcSizeKind::kNormal, OdTcSizeKind::kLarge};

void addButtonImages(OdTcToolImpl& tool, const OdString& button) {
  OdSmartPtr<OdTcImageList> images(tool.images());
  if (!images) {
    images = OdTcImageList::createObject();
    images->setOwner(tool.properties());
    tool.setImages(images);
  }
  for (const OdTcSizeKind size : kSizes) {
    const OdTcImagePtr image = OdTcImage::createObject();
    image->setSizeKind(static_cast<std::int32_t>(size));
    image->setResource(QStringLiteral("%ProgramBtnRes%"), button);
    images->add(image);
  }
}

} // namespace

void convertMultitool(OdTcToolImpl& tool) {
  showImportPrompt(kMultitoolPrompt);
  const OdString wanted = addSelectedCommand(tool.customData()->className());
  if (wanted.isEmpty()) return;
  const std::optional<HostMenuEntry> command = findMenuCommand(wanted);
  if (!command) return;

  tool.setToolType(OdTcTool::kRegular);
  tool.setName(toolNameOf(*command));
  tool.dropForeignRecords();
  if (!tool.getActionAgent()) {
    const OdSmartPtr<OdTcToolCommand> agent = OdTcToolCommand::createObject();
    agent->setCommandString(command->macro);
    tool.setConvertedAgent(agent);
  }
  addButtonImages(tool, command->commandName);
  tool.setConverted();
  printImported(formatText(stringText(StringId::kMultitoolConverted), tool.name()));
}

} // namespace tc
