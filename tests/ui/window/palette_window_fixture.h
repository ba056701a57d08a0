// The palette window over catalogs of the test's own, in a host with windows.
#pragma once

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "catalog/palette_ui.h"
#include "catalog/tool.h"
#include "support/module_fixture.h"
#include "test_controls.h"
#include "test_windows.h"
#include "tools/command_tool.h"
#include "ui/window/palette_window.h"
#include "ui/window/window_commands.h"

#include <QApplication>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace testhost {

struct PaletteWindowFixture : ModuleFixture {
  QTemporaryDir folder;
  KVPtr<TestWindows> windows = kvMake<TestWindows>();
  KVPtr<TestControls> controls = kvMake<TestControls>();
  KVPtr<TestHelp> help = kvMake<TestHelp>();
  tc::OdTcCatalogPtr catalog;

  PaletteWindowFixture() {
    host().offer<IHostWindowServices>(windows.get());
    host().offer<IHostWindowControls>(controls.get());
    host().offer<IHelpService>(help.get());
    catalog = openCatalog(QStringLiteral("one"), QStringLiteral("Office"));
  }
  ~PaletteWindowFixture() override { tc::ITcUiPaletteSet::setInstance(nullptr); }

  tc::OdTcPaletteManager& manager() { return *tc::OdTcPaletteManager::instance(); }

  tc::OdTcCatalogPtr openCatalog(const QString& name, const QString& title) {
    QDir(folder.path()).mkpath(name);
    const QString path = folder.filePath(name) + QStringLiteral("/DrfTcCatalog.dtc");
    manager().openCatalog(path);
    const auto all = manager().catalogsEnum();
    OdString at;
    tc::OdTcCatalog* found = nullptr;
    while (all->next(at, found) && !at.contains(name)) {
    }
    found->setName(title);
    return tc::OdTcCatalogPtr(found);
  }

  tc::OdTcToolPalettePtr addPalette(const QString& name, const QStringList& tools = {},
                                    tc::OdTcGroup* group = nullptr) {
    const tc::OdTcToolPalettePtr palette = tc::OdTcToolPalette::createObject();
    palette->setName(name);
    catalog->addItem(palette);
    palette->suspendAutoSave();
    for (const QString& tool : tools) addTool(*palette, tool);
    palette->resumeAutoSave();
    if (group) group->addItem(palette);
    return palette;
  }
  tc::OdTcToolPtr addTool(tc::OdTcToolPalette& palette, const QString& name) {
    const tc::OdTcToolPtr tool = tc::OdTcTool::createObject();
    tool->setName(name);
    tool->setToolType(tc::OdTcTool::kRegular);
    const auto agent = tc::OdTcToolCommand::createObject();
    agent->setCommandString(QStringLiteral("_LINE"));
    tool->setActionAgent(agent);
    palette.addItem(tool);
    return tool;
  }
  tc::OdTcGroupPtr addGroup(const QString& name) {
    const tc::OdTcGroupPtr group = tc::OdTcGroup::createObject();
    group->setName(name);
    catalog->addItem(group);
    return group;
  }

  tc::TcUiPaletteSet& open() {
    tc::ITcUiPaletteSet::setInstance(tc::TcUiPaletteSet::create());
    settle();
    return static_cast<tc::TcUiPaletteSet&>(*tc::ITcUiPaletteSet::instance());
  }
  /// Closes the program's window for good and opens it anew, as the next start does.
  tc::TcUiPaletteSet& restart() {
    tc::ITcUiPaletteSet::setInstance(nullptr);
    return open();
  }
  static void settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }

  template <class T>
  static T& part() {
    return *tc::paletteSetPart<T>();
  }
  static tc::TcUiFrameWnd& frame() {
    return static_cast<tc::TcUiFrameWnd&>(part<tc::ITcUiFrameWnd>());
  }
  static tc::TcUiTreeView& tree() { return frame().tree(); }
  static tc::TcUiListView& list() { return frame().list(); }
  void select(const tc::OdTcCatalogItem& item) { tree().selectById(item.id()); }

  /// The names of the rows below an index, as a view shows them.
  static QStringList names(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
    QStringList result;
    for (int row = 0; row < model.rowCount(parent); ++row)
      result << model.index(row, 0, parent).data().toString();
    return result;
  }
  static QStringList listed() { return names(list().rows()); }

  static QStringList checked(QMenu* menu) {
    QStringList result;
    for (const QAction* action : menu->actions())
      if (action->isChecked()) result << action->text();
    return result;
  }
  TestProfile& store() {
    return host().application.store->made(QStringLiteral("cmddata/ToolPaletteManager"));
  }
  QToolButton& button(int index) { return *controls->toolbar->buttons.at(index); }
};

} // namespace testhost
