// The palette window of a host that has windows.
#pragma once

#include "host/window_services.h"
#include "ui/palette_set.h"
#include "ui/window/frame_wnd.h"
#include "ui/window/popup_menu_builder.h"
#include "ui/window/toolbar.h"

#include <QPointer>

class QMenu;

namespace tc {

/// A pane of the host with a toolbar over the catalogs. One of two columns shows at a time: the
/// tree of catalogs, or the list of what is selected there.
class TcUiPaletteSet : public ITcUiPaletteSet,
                       public ITcUiSelection,
                       private IHostPaneEvents,
                       private OdTcCatalogItemReactor {
 public:
  /// Makes the window and shows it; null if the host has no windows.
  static std::unique_ptr<ITcUiPaletteSet> create();
  ~TcUiPaletteSet() override;

  bool queryInterface(std::string_view id, void** out) override;
  QMenu* viewMenu() override;
  QMenu* sizeMenu() override;
  bool dispatchCommand(int command) override;
  void setTabLabel(int index, const OdString& text) override;
  void setActiveView(int value) override;
  int activeView() const override { return m_activeView; }

  bool isVisible() const override { return m_pane->isVisible(); }
  void show(int how, int activate, int update) override;
  void close() override { m_pane->close(); }
  void refresh() override;

  OdTcCatalogItem* selectedItem() const override;
  OdTcCatalogItemReactor* itemReactor() override { return this; }

 private:
  class Content;
  struct Command;

  explicit TcUiPaletteSet(const KVPtr<IHostWindowServices>& windows);
  bool paneCreated() override;
  void paneResized(const QSize& size) override { layOut(size); }
  void layOut(const QSize& size);
  void readState();
  void writeActiveView();
  bool comeForward();
  void paneClosed() override;
  void paneShown() override { setPaletteSetShown(true); }
  void paneDestroyed() override;
  void itemChanged(OdTcCatalogItem* item) override;

  void nothing(std::int32_t) {}
  void setIconSize(std::int32_t size);
  void markSize(std::int32_t size);
  void applyViewStyle(std::int32_t style);
  void chooseCatalogFolder(std::int32_t);
  void toggleView(std::int32_t);
  void showHelp(std::int32_t);

  KVPtr<IHostWindowServices> m_windows;
  TcUiPopupMenuBuilder m_menus;
  QPointer<Content> m_content; ///< the pane's
  TcUiToolbar m_toolbar;
  IHostTabs* m_tabs = nullptr;
  TcUiFrameWnd* m_frame = nullptr;
  QPointer<QMenu> m_sizeMenu, m_viewMenu;
  int m_activeView = 1;
  bool m_isBuilt = false;
  KVPtr<IHostPane> m_pane;
};

} // namespace tc
