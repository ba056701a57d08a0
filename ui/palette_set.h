// The palette window as the rest of the module sees it.
#pragma once

#include "frame/string.h"

#include <memory>
#include <string_view>

class QMenu;

namespace tc {

class OdTcCatalogItem;
class OdTcCatalogItemReactor;

/// Tells which item is selected in the window.
class ITcUiSelection {
 public:
  static constexpr std::string_view kId = "ITcUiSelection";
  virtual OdTcCatalogItem* selectedItem() const = 0;
  /// What hears of changes of the items that are shown.
  virtual OdTcCatalogItemReactor* itemReactor() = 0;

 protected:
  ~ITcUiSelection() = default;
};

/// The one dockable window of the module. The views find one another through it.
class ITcUiPaletteSet {
 public:
  static constexpr std::string_view kId = "ITcUiPaletteSet";
  virtual ~ITcUiPaletteSet() = default;

  /// Gives the window, or the part of it, that has the interface `id`; false, and null in `out`, if
  /// none has it.
  virtual bool queryInterface(std::string_view id, void** out) = 0;
  /// The popups of the toolbar, also shown by the views. Null, as all that follows does nothing,
  /// where there are no widgets.
  virtual QMenu* viewMenu() { return nullptr; }
  virtual QMenu* sizeMenu() { return nullptr; }
  /// Runs a command of the window by its number; false if it is not one of them.
  virtual bool dispatchCommand(int /*command*/) { return false; }
  /// Renames a tab.
  virtual void setTabLabel(int /*index*/, const OdString& /*text*/) {}
  /// Stores which column shows, 0 the list and 1 the tree, and enables the buttons that go with it.
  /// What is shown changes with the next layout.
  virtual void setActiveView(int /*value*/) {}
  virtual int activeView() const { return 0; }

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

/// The part of a window that has the interface T; null without one. Without an argument, of the
/// open window.
template <class T>
T* paletteSetPart(ITcUiPaletteSet* window = ITcUiPaletteSet::instance()) {
  void* part = nullptr;
  return window && window->queryInterface(T::kId, &part) ? static_cast<T*>(part) : nullptr;
}

/// Makes the palette window for the host at hand, shown: what the maker gives, which is null if the
/// host offers no window services, else one without a window.
std::unique_ptr<ITcUiPaletteSet> makePaletteSet();
/// Tells how a window of widgets is made. Only the loadable module has one: programs that look
/// after catalogs need no widgets.
using PaletteSetMaker = std::unique_ptr<ITcUiPaletteSet> (*)();
void setPaletteSetMaker(PaletteSetMaker maker);

/// The flag "ToolPalettes visible": what the user asked for last, by command or by the window's
/// close button. False at the module's start.
bool isPaletteSetShown();
/// Sets the flag and records it among the commands that the host runs at its next start.
void setPaletteSetShown(bool shown);
/// Clears the flag and leaves the record alone.
void clearPaletteSetShown();

} // namespace tc
