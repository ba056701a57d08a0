// The actions of the table as Qt has them.
#pragma once

#include "drafton/desktop/action_table.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

#include <functional>
#include <map>

namespace drafton {

/// Makes menus and toolbars of the table in a window. An action that has a macro types it; all
/// others do what connect() gives them.
class WindowActions : public QObject {
  Q_OBJECT

 public:
  /// `type` takes a macro.
  WindowActions(QMainWindow& window, std::function<void(const OdString&)> type);

  /// Null if the table has no such action.
  QAction* find(QStringView name) const;
  QMenu* menu(MenuId id) const { return m_menus.at(id); }
  /// Puts entries for some of the actions into a menu that stands for a moment. The menu has access
  /// keys of its own.
  void addTo(QMenu& menu, std::initializer_list<const char16_t*> names) const;
  void connectTo(QStringView name, std::function<void()> run);
  /// Draws the icons anew, for a theme.
  void showIcons(bool dark);

 private:
  void addMenus(QMainWindow& window);
  void addToolbars(QMainWindow& window);

  std::map<OdString, QAction*> m_actions;
  std::map<MenuId, QMenu*> m_menus;
};

} // namespace drafton
