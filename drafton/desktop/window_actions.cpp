#include "drafton/desktop/window_actions.h"

#include "drafton/desktop/access_keys.h"
#include "drafton/desktop/theme.h"
#include "drafton/engine/translator.h"

#include <QMenuBar>
#include <QToolButton>

namespace drafton {
namespace {

QList<QKeySequence> shortcutsOf(const ActionRow& row) {
  QList<QKeySequence> keys;
  for (const OdString& key :
       OdString::fromUtf16(row.shortcut).split(QStringLiteral("; "), Qt::SkipEmptyParts))
    keys << QKeySequence(key);
  return keys;
}

} // namespace

WindowActions::WindowActions(QMainWindow& window, std::function<void(const OdString&)> type)
  : QObject(&window) {
  for (const ActionRow& row : actionTable()) {
    const ActionTexts texts = textsOf(row);
    const OdString name = OdString::fromUtf16(row.name);
    auto* const action = new QAction(texts.text, this);
    action->setObjectName(name);
    action->setCheckable(row.isCheckable);
    action->setShortcuts(shortcutsOf(row));
    action->setStatusTip(texts.tip);
    const OdString key = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(key.isEmpty() ? texts.tip : QStringLiteral("%1 (%2)").arg(texts.tip, key));
    if (!texts.macro.isEmpty())
      connect(action, &QAction::triggered, this, [type, macro = texts.macro] { type(macro); });
    m_actions[name] = action;
  }
  addMenus(window);
  addToolbars(window);
}

QAction* WindowActions::find(QStringView name) const {
  const auto at = m_actions.find(name.toString());
  return at == m_actions.end() ? nullptr : at->second;
}

void WindowActions::addMenus(QMainWindow& window) {
  for (const MenuTitle& title : menuTitles())
    m_menus[title.menu] = window.menuBar()->addMenu(translated(title.title));
  for (const ActionRow& row : actionTable()) {
    QMenu* const menu = m_menus.at(row.menu);
    if (row.startsGroup) menu->addSeparator();
    menu->addAction(find(row.name));
  }
  for (const auto& [id, menu] : m_menus) giveAccessKeys(*menu);
}

void WindowActions::addToolbars(QMainWindow& window) {
  for (const ToolbarTitle& title : toolbarTitles()) {
    QToolBar* const bar = window.addToolBar(translated(title.title));
    bar->setObjectName(OdString::fromUtf16(title.name));
    for (const ActionRow& row : actionTable())
      if (row.toolbar == title.toolbar) bar->addAction(find(row.name));
    // Qt shows it where there is no room for all of them, and gives it no name.
    if (auto* const more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
      more->setAccessibleName(translated(u"More commands"));
  }
}

void WindowActions::addTo(QMenu& menu, std::initializer_list<const char16_t*> names) const {
  for (const char16_t* const name : names) {
    QAction* const action = find(name);
    OdString text = action->text().remove(u'&');
    if (const QKeySequence key = action->shortcut(); !key.isEmpty())
      text += u'\t' + key.toString(QKeySequence::NativeText);
    QAction* const entry = menu.addAction(action->icon(), text);
    entry->setEnabled(action->isEnabled());
    connect(entry, &QAction::triggered, action, &QAction::trigger);
  }
}

void WindowActions::connectTo(QStringView name, std::function<void()> run) {
  connect(find(name), &QAction::triggered, this, [run = std::move(run)] { run(); });
}

void WindowActions::showIcons(bool dark) {
  for (const ActionRow& row : actionTable())
    find(row.name)->setIcon(themeIcon(OdString::fromUtf16(row.icon ? row.icon : row.name), dark));
}

} // namespace drafton
