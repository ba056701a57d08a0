#include "tpal/command_routes.h"

#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>

namespace tpal {
namespace {

/// The stored path of a file beside this program; empty if it is not there.
OdString besideProgram(const OdString& name) {
  const OdString path =
      odpath::fromPlatform(QCoreApplication::applicationDirPath()) + u'\\' + name;
  return odrxSystemServices()->fileExists(path) ? path : OdString();
}

} // namespace

OdString commandRouteMap() { return besideProgram(QStringLiteral("command_routes.xml")); }

bool RouteMenu::queryInterface(KVInterfaceId id, void** out) {
  const bool known = id == IHostCommandMenu::kId || id == IKVUnknown::kId;
  *out = known ? static_cast<IHostCommandMenu*>(this) : nullptr;
  return known;
}

const QList<HostMenuEntry>& RouteMenu::entries() {
  if (m_isRead) return m_entries;
  m_isRead = true;
  QFile file(odpath::toPlatform(besideProgram(QStringLiteral("command_menu.xml"))));
  if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) return m_entries;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement() || xml.name() != QLatin1String("MenuCommand")) continue;
    const auto value = [&](const char* name) {
      return xml.attributes().value(QLatin1String(name)).toString();
    };
    m_entries.push_back({.isCommand = true,
                         .commandName = value("name"),
                         .label = value("label"),
                         .shortText = value("tip"),
                         .macro = value("macro")});
  }
  return m_entries;
}

int RouteMenu::count() { return static_cast<int>(entries().size()); }

HostMenuEntry RouteMenu::entry(int index) { return entries().value(index); }

} // namespace tpal
