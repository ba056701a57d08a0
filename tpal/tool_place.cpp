#include "tpal/tool_place.h"

#include "frame/file_path.h"

tpal::ToolPlace::ToolPlace(const tc::OdTcToolPalette& inPalette, const tc::OdTcTool& theTool)
  : palette(inPalette.name())
  , file(inPalette.getPath())
  , tool(theTool.name())
  , id(theTool.id()) {}

QJsonObject tpal::ToolPlace::asJson() const {
  return {{QStringLiteral("palette"), palette},
          {QStringLiteral("file"), odpath::toPlatform(file)},
          {QStringLiteral("tool"), tool},
          {QStringLiteral("id"), id}};
}
