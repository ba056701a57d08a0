#include "drafton/engine/command_routes.h"

#include "frame/file_path.h"

#include <QFile>
#include <QXmlStreamReader>

namespace drafton {

OdString startCommand(const OdString& mapPath, const OdString& className, const OdString& command) {
  QFile file(odpath::toPlatform(mapPath));
  if (mapPath.isEmpty() || !file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader xml(&file);
  bool isClass = false, isCommand = false;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    const auto is = [&](QLatin1String attribute, const OdString& value) {
      return xml.attributes().value(attribute) == value;
    };
    if (xml.name() == QLatin1String("Entry")) {
      isClass = isCommand = false;
    } else if (xml.name() == QLatin1String("OdRxClassInfo")) {
      isClass = isClass || is(QLatin1String("className"), className);
    } else if (xml.name() == QLatin1String("Command")) {
      isCommand = is(QLatin1String("name"), command);
    } else if (xml.name() == QLatin1String("StartCommand") && isClass && isCommand) {
      return xml.attributes().value(QLatin1String("name")).toString();
    }
  }
  return {};
}

} // namespace drafton
