#include "drafton/program/program_setup.h"

#include "drafton/engine/engine.h"
#include "drafton/engine/hatch_patterns.h"
#include "drafton/icons/icon_service.h"
#include "drafton/previews/preview_service.h"

#include <QStandardPaths>

namespace drafton {

OdString defaultProfile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QLatin1String("/drafton/drafton.ini");
}

void offerPictures(Engine& engine) {
  const auto findPattern = [&engine](const OdString& name,
                                     const OdString& file) -> std::optional<OdHatchPattern> {
    OdVariant current = file;
    if (file.isEmpty()) engine.hatchSettings()->get(QStringLiteral("hatch_pattern_file"), current);
    auto found = findHatchPattern(engine, engine.documents().current(), name, current.toString());
    if (!found) return std::nullopt;
    return std::move(found->pattern);
  };
  engine.services().offer(IHostPreviewService::kId, kvMake<PreviewService>(findPattern).get());
  const auto findCommand = [&engine](const OdString& word) {
    const RegisteredCommandPtr found = engine.commands().findTyped(word);
    return found ? found->name : word;
  };
  engine.services().offer(IHostIconService::kId, kvMake<IconService>(findCommand).get());
}

bool loadToolPalettes(Engine& engine) {
  return engine.loadModule(QStringLiteral("ToolPaletteManager"));
}

} // namespace drafton
