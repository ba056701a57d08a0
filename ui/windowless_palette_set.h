// The palette window of a host that has no windows.
#pragma once

#include "catalog/catalog.h"
#include "ui/menu_builder.h"
#include "ui/palette_set.h"
#include "ui/state_saver.h"

namespace tc {

/// Keeps what a window keeps (whether it is shown, what is selected) and paints nothing. The state
/// of a command line session, and of every program without a screen.
class WindowlessPaletteSet : public ITcUiPaletteSet,
                             public ITcUiSelection,
                             public OdTcCatalogItemReactor {
 public:
  /// Answers for itself, the selection, the menu builder and the state saver.
  bool queryInterface(std::string_view id, void** out) override;
  bool isVisible() const override { return m_isVisible; }
  void show(int how, int activate, int update) override;
  void close() override { m_isVisible = false; }
  /// Forgets a selection whose catalog is not loaded any more.
  void refresh() override;

  OdTcCatalogItem* selectedItem() const override { return m_selected; }
  OdTcCatalogItemReactor* itemReactor() override { return this; }
  /// Null selects nothing.
  void select(OdTcCatalogItem* item);

  void itemRemoved(OdTcCatalogItem* item) override;

 private:
  TcUiMenuBuilder m_menus;
  TcUiStateSaver m_state;
  // Both are held: an item whose catalog is gone has an owner link that leads nowhere.
  OdTcCatalogItemPtr m_selected;
  OdTcCatalogPtr m_catalog;
  bool m_isVisible = true;
};

} // namespace tc
