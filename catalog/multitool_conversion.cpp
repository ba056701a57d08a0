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
#include <utility>

namespace tc {
namespace {

/// The pictures of a converted tool: the host's button at the sizes that every tool has.
constexpr OdTcSizeKind kSizes[] = {OdTcSizeKind::kSmall, OdTcSizeKind::kNormal,
                                   OdTcSizeKind::kLarge};

/// How classes of drawings begin in the other program and here.
constexpr QStringView kForeignClasses = u"AcDb";
constexpr QStringView kOwnClasses = u"OdDb";

/// The command by which the host adds an object of the class, which files and hosts may call by
/// either of two names; empty if there is none.
OdString commandFor(const OdString& className) {
  const OdString command = addSelectedCommand(className);
  if (!command.isEmpty()) return command;
  for (const auto& [from, to] :
       {std::pair(kForeignClasses, kOwnClasses), std::pair(kOwnClasses, kForeignClasses)})
    if (className.startsWith(from))
      return addSelectedCommand(to.toString() + className.mid(from.size()));
  return {};
}

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
  const OdString wanted = commandFor(tool.customData()->className());
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
