#include "tpal/command_routes.h"

#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>

namespace tpal {
namespace {

/// "LINE" as a name for a tool: "Line".
OdString shownName(const OdString& command) {
  return command.left(1).toUpper() + command.mid(1).toLower();
}

} // namespace

OdString commandRouteMap() {
  const OdString path = odpath::fromPlatform(QCoreApplication::applicationDirPath()) +
                        QLatin1String("\\command_routes.xml");
  return odrxSystemServices()->fileExists(path) ? path : OdString();
}

bool RouteMenu::queryInterface(KVInterfaceId id, void** out) {
  const bool known = id == IHostCommandMenu::kId || id == IKVUnknown::kId;
  *out = known ? static_cast<IHostCommandMenu*>(this) : nullptr;
  return known;
}

const QList<HostMenuEntry>& RouteMenu::entries() {
  if (m_isRead) return m_entries;
  m_isRead = true;
  QFile file(odpath::toPlatform(commandRouteMap()));
  if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) return m_entries;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement() || xml.name() != QLatin1String("StartCommand")) continue;
    const OdString name = xml.attributes().value(QLatin1String("name")).toString();
    m_entries.push_back({.isCommand = true,
                         .commandName = name,
                         .label = shownName(name),
                         .shortText = {},
                         .macro = QStringLiteral("^C^C_%1 ").arg(name)});
  }
  return m_entries;
}

int RouteMenu::count() { return static_cast<int>(entries().size()); }

HostMenuEntry RouteMenu::entry(int index) { return entries().value(index); }

} // namespace tpal
