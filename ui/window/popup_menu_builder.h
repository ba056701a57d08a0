// Context menus of catalog items, shown in windows.
#pragma once

#include "ui/menu_builder.h"

#include <QPointer>

class QMenu;

namespace tc {

/// Shows an item's menu at the cursor. The menu goes once an entry is chosen, or none.
class TcUiPopupMenuBuilder : public TcUiMenuBuilder {
 public:
  ~TcUiPopupMenuBuilder() override;

 private:
  void popUp(const TcUiMenuEntries& entries) override;

  QPointer<QMenu> m_menu;
};

} // namespace tc
