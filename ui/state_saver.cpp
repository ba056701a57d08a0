#include "ui/state_saver.h"

#include "host/host_locator.h"

namespace tc {

TcUiStateSaver::TcUiStateSaver() {
  if (const KVPtr<IProfile> section = host::profileSection(QStringLiteral("cmddata")))
    m_section = section->openSection(host::ownText(QStringLiteral("ToolPaletteManager")), true);
}

bool TcUiStateSaver::queryInterface(std::string_view id, void** out) {
  *out = id == kId ? static_cast<ITcUiStateSaver*>(this) : nullptr;
  return *out != nullptr;
}

bool TcUiStateSaver::read(const OdString& key, OdVariant& out) const {
  return m_section && m_section->get(key, out);
}

void TcUiStateSaver::write(const OdString& key, OdVariant& value) {
  const OdVariant stored =
      value.isText() ? OdVariant(host::ownText(value.toString())) : std::exchange(value, {});
  if (m_section) m_section->set(host::ownText(key), stored);
  value = {};
}

static OdTcStateSaverImplPtr g_saver;

OdTcStateSaverImpl* OdTcStateSaverImpl::instance() { return g_saver; }

void OdTcStateSaverImpl::setInstance(const OdTcStateSaverImplPtr& saver) { g_saver = saver; }

} // namespace tc
