#include "tools/command_route_map.h"

#include "frame/error.h"
#include "frame/system_services.h"
#include "host/host_locator.h"

#include <QXmlStreamReader>

#include <cstdint>

namespace tc {
namespace {

OdString nameAttribute(const QXmlStreamReader& xml) {
  return xml.attributes().value(QLatin1String("name")).toString();
}

/// The first start command of an `ADDSELECTED` command; the reader stands in `Command`.
OdString readCommand(QXmlStreamReader& xml) {
  const bool isWanted = nameAttribute(xml) == QLatin1String("ADDSELECTED");
  OdString found;
  while (xml.readNextStartElement()) {
    if (isWanted && found.isEmpty() && xml.name() == QLatin1String("StartCommand"))
      found = nameAttribute(xml);
    xml.skipCurrentElement();
  }
  return found;
}

/// The command of an entry, or nothing if the entry is of other classes. The class may stand behind
/// the command.
OdString readEntry(QXmlStreamReader& xml, const OdString& className) {
  bool isWanted = false;
  OdString found;
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("Command")) {
      const OdString command = readCommand(xml);
      if (found.isEmpty()) found = command;
      continue;
    }
    if (xml.name() == QLatin1String("OdRxClassInfo"))
      isWanted |= xml.attributes().value(QLatin1String("className")) == className;
    xml.skipCurrentElement();
  }
  return isWanted ? found : OdString();
}

QByteArray readWhole(const OdString& path) {
  const OdStreamBufPtr stream =
      odrxSystemServices()->createFile(path, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting);
  QByteArray bytes(static_cast<qsizetype>(stream->length()), Qt::Uninitialized);
  stream->getBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  return bytes;
}

} // namespace

OdString addSelectedCommand(const OdString& className) {
  const OdString path = host::commandRouteMap();
  if (path.isEmpty() || !odrxSystemServices()->fileExists(path)) return {};
  try {
    QXmlStreamReader xml(readWhole(path));
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("Entries")) return {};
    while (xml.readNextStartElement()) {
      if (xml.name() != QLatin1String("Entry")) {
        xml.skipCurrentElement();
        continue;
      }
      const OdString command = readEntry(xml, className);
      // A map that breaks off in the middle of the entry says nothing that can be relied on.
      if (!command.isEmpty() && !xml.hasError()) return command;
    }
  } catch (const OdFileError&) {
    // As without a map: nothing is converted.
  }
  return {};
}

} // namespace tc
