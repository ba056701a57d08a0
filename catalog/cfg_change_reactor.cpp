#include "catalog/cfg_change_reactor.h"

#include "catalog/palette_manager.h"

#include <utility>

namespace tc {
namespace {

std::function<void()>& windowRefresh() {
  static std::function<void()> refresh;
  return refresh;
}

} // namespace

void setVisibleWindowRefresh(std::function<void()> refresh) {
  windowRefresh() = std::move(refresh);
}

void TcCfgChangeReactor::onPropertyChanged(const OdString&) {
  if (!m_manager) return;
  m_manager->reloadCatalogs();
  if (windowRefresh()) windowRefresh()();
}

} // namespace tc
