// The palette window as the rest of the module sees it.
#pragma once

#include "frame/string.h"

#include <functional>
#include <memory>
#include <string_view>

namespace tc {

class OdTcCatalogItem;

/// Tells which item is selected in the window.
class ITcUiSelection {
 public:
  static constexpr std::string_view kId = "ITcUiSelection";
  virtual OdTcCatalogItem* selectedItem() const = 0;

 protected:
  ~ITcUiSelection() = default;
};

/// The one dockable window of the module. The views find one another through it.
class ITcUiPaletteSet {
 public:
  virtual ~ITcUiPaletteSet() = default;

  /// Gives the part of the window that has the interface `id`; false if no part has it.
  virtual bool queryInterface(std::string_view id, void** out) = 0;
  virtual bool isVisible() const = 0;
  /// Shows the window.
  virtual void show(int how, int activate, int update) = 0;
  /// The close message: the window hides.
  virtual void close() = 0;
  /// Reads the catalogs anew into the views.
  virtual void refresh() = 0;

  /// The window; null until it is first opened.
  static ITcUiPaletteSet* instance();
  static void setInstance(std::unique_ptr<ITcUiPaletteSet> window);
};

/// Makes the palette window for the host at hand: one of widgets if the host offers window services,
/// else one without a window.
std::unique_ptr<ITcUiPaletteSet> makePaletteSet();

} // namespace tc
