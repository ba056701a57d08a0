// Keeps the catalogs in line with the configured folders while the program runs.
#pragma once

#include "host/profile.h"

#include <functional>

namespace tc {

class OdTcPaletteManager;

/// Brings the palette window, which stands above the catalogs, up to date if it is visible. Set by
/// whoever makes the window; null takes it away.
void setVisibleWindowRefresh(std::function<void()> refresh);

/// Hears of every change of `ToolPaletteDir`: reloads the catalogs, then has the window refreshed.
class TcCfgChangeReactor : public CKVUnknownImpl<IPropReactor> {
 public:
  /// `manager` owns the reactor and takes it out of service with `disconnect`.
  explicit TcCfgChangeReactor(OdTcPaletteManager* manager)
    : m_manager(manager) {}

  void onPropertyChanged(const OdString& setting) override;
  /// Nothing is done from now on: the host may keep its reference for longer than the manager
  /// lives.
  void disconnect() { m_manager = nullptr; }

 private:
  OdTcPaletteManager* m_manager;
};

} // namespace tc
