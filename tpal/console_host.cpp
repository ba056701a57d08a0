#include "tpal/console_host.h"

#include "frame/file_path.h"

#include <QStandardPaths>

namespace tpal {
namespace {

/// The previews of a thread that has its own.
thread_local KVPtr<IHostPreviewService> t_previews;

} // namespace

ConsoleHost::ThreadPreviews::ThreadPreviews() { t_previews = instance().m_previewMaker(); }

ConsoleHost::ThreadPreviews::~ThreadPreviews() { t_previews = nullptr; }

ConsoleHost& ConsoleHost::instance() {
  static ConsoleHost host;
  return host;
}

QStringList ConsoleHost::takeMessages() { return std::exchange(m_messages.lines, {}); }

void ConsoleHost::setToolPaletteFolders(const QStringList& folders) {
  m_application.toolPaletteFolders = folders.join(u';');
}

bool ConsoleHost::Messages::queryInterface(KVInterfaceId id, void** out) {
  const bool known = id == IHostMessages::kId || id == IKVUnknown::kId;
  *out = known ? static_cast<IHostMessages*>(this) : nullptr;
  return known;
}

void ConsoleHost::Messages::print(const OdString& text) {
  for (const OdString& line : text.split(u'\n', Qt::SkipEmptyParts)) lines << line.trimmed();
}

void ConsoleHost::Messages::messageBox(const OdString& text, const OdString&) { print(text); }

bool ConsoleHost::Messages::messageBoxWithCheckBox(const OdString&, const OdString& text,
                                                   const OdString&, unsigned) {
  print(text);
  return false;
}

bool ConsoleHost::Services::queryInterface(KVInterfaceId id, void** out) {
  if (id == IHostMessages::kId) return m_messages->queryInterface(id, out);
  if (id == IHostCommandMenu::kId) return m_menu->queryInterface(id, out);
  if (id == IHostPreviewService::kId && t_previews) return t_previews->queryInterface(id, out);
  if (id == IHostPreviewService::kId && previews) return previews->queryInterface(id, out);
  if (id == IHostIconService::kId && icons) return icons->queryInterface(id, out);
  const bool own = id == IHostServices::kId || id == IKVUnknown::kId;
  *out = own ? static_cast<IHostServices*>(this) : nullptr;
  return own;
}

bool ConsoleHost::Application::setting(const OdString& name, OdString& out) {
  if (name != QLatin1String("ToolPaletteDir")) return false;
  out = toolPaletteFolders;
  return true;
}

OdString ConsoleHost::Application::userDataFolder() {
  return odpath::fromPlatform(
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
      QLatin1String("/drafton"));
}

} // namespace tpal
