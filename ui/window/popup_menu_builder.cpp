#include "ui/window/popup_menu_builder.h"

#include <QCursor>
#include <QMenu>

namespace tc {

TcUiPopupMenuBuilder::~TcUiPopupMenuBuilder() { delete m_menu; }

void TcUiPopupMenuBuilder::popUp(const TcUiMenuEntries& entries) {
  delete m_menu;
  if (entries.empty()) return;
  m_menu = new QMenu;
  m_menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const auto& [command, text] : entries) {
    QAction* const action = m_menu->addAction(text);
    // The window for which the menu was shown may be gone, or not be the owner any longer.
    QObject::connect(action, &QAction::triggered, m_menu,
                     [this, window = owner(), command = command] {
                       if (window == owner()) window->menuCommand(command);
                     });
  }
  m_menu->popup(QCursor::pos());
}

} // namespace tc
