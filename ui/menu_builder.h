// Context menus of catalog items for windows outside of the palette window.
#pragma once

#include "module/catalog_item.h"

#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace tc {

/// One entry of a menu: what it sends, and what it says. The words are not translated, and differ
/// on purpose from those of the catalog tree's own menus.
using TcUiMenuEntry = std::pair<int, OdString>;
using TcUiMenuEntries = std::vector<TcUiMenuEntry>;

/// A window that has menus shown for it.
class ITcUiMenuOwner {
 public:
  /// Takes the command of the entry that was chosen.
  virtual void menuCommand(int command) = 0;

 protected:
  ~ITcUiMenuOwner() = default;
};

/// Gives a catalog item its context menu.
class ITcUiMenuBuilder {
 public:
  static constexpr std::string_view kId = "ITcUiMenuBuilder";

  /// Gives the builder as the interface `id`; false, and null in `out`, if it does not have it.
  virtual bool queryInterface(std::string_view id, void** out) = 0;
  /// Remembers the item and shows the menu of its class at the cursor; the command that is chosen
  /// goes to the owner window. An item of a class without a menu, or a missing owner, shows
  /// nothing.
  virtual void showItemMenu(OdTcCatalogItem* item) = 0;
  /// Not owned; may be null. A window that goes takes itself away here.
  virtual void setOwnerWindow(ITcUiMenuOwner* window) = 0;
  /// One value that the builder keeps for its caller and does not look at.
  virtual void setExtra(const OdVariant& value) = 0;
  virtual OdTcCatalogItem* currentItem() const = 0;
  virtual OdVariant extra() const = 0;

 protected:
  ~ITcUiMenuBuilder() = default;
};

/// The menus without a window to show them in; ui/window shows them.
class TcUiMenuBuilder : public ITcUiMenuBuilder {
 public:
  /// The classes must be registered: the table goes by their descriptions.
  TcUiMenuBuilder();
  virtual ~TcUiMenuBuilder() = default;

  /// The entries of exactly this class; null if it has no menu.
  const TcUiMenuEntries* entriesOf(const OdRxClass* itemClass) const;

  bool queryInterface(std::string_view id, void** out) override;
  void showItemMenu(OdTcCatalogItem* item) override;
  void setOwnerWindow(ITcUiMenuOwner* window) override { m_owner = window; }
  void setExtra(const OdVariant& value) override { m_extra = value; }
  OdTcCatalogItem* currentItem() const override { return m_item; }
  OdVariant extra() const override { return m_extra; }

 protected:
  /// Shows a popup at the cursor, whose choice goes to the owner.
  virtual void popUp(const TcUiMenuEntries& /*entries*/) {}
  ITcUiMenuOwner* owner() const { return m_owner; }

 private:
  ITcUiMenuOwner* m_owner = nullptr;
  OdTcCatalogItem* m_item = nullptr;
  OdVariant m_extra;
  std::map<const OdRxClass*, TcUiMenuEntries> m_menus;
};

} // namespace tc
