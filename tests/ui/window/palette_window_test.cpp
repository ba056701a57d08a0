#include "module/entry/exchange_commands.h"
#include "palette_window_fixture.h"
#include "ui/window/palette_messages.h"

#include <QFile>
#include <QMenu>

namespace {

using namespace tc;
using testhost::host;
using PaletteWindow = testhost::PaletteWindowFixture;
using testhost::TestControls;

QStringList words(QMenu* menu) {
  QStringList result;
  for (const QAction* action : menu->actions())
    result << action->text() + u' ' + QString::number(action->data().toInt());
  return result;
}

TEST_F(PaletteWindow, AFirstStartShowsTheTreeWithSizeAndViewDisabled) {
  TcUiPaletteSet& window = open();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.activeView(), 1);
  EXPECT_GE(frame().widths()[0], 200);
  EXPECT_EQ(frame().widths()[1], 0);
  EXPECT_FALSE(frame().bothPanesVisible());
  EXPECT_TRUE(button(0).isEnabled());
  EXPECT_FALSE(button(1).isEnabled());
  EXPECT_FALSE(button(2).isEnabled());
  EXPECT_TRUE(button(3).isEnabled());
}

TEST_F(PaletteWindow, TheMenusHaveTheirWordsAndCommands) {
  TcUiPaletteSet& window = open();
  EXPECT_EQ(words(window.sizeMenu()),
            QStringList({QStringLiteral("Small 5001"), QStringLiteral("Normal 5002"),
                         QStringLiteral("Large 5003")}));
  EXPECT_EQ(words(window.viewMenu()),
            QStringList({QStringLiteral("Icons 6100"), QStringLiteral("List 6120"),
                         QStringLiteral("De&tails 6130")}));
}

TEST_F(PaletteWindow, EveryWordIsTranslated) {
  for (const char16_t* word :
       {u"Icons", u"List", u"De&tails", u"Tools", u"Tool Palettes", u"Change icon size",
        u"Change view style", u"Change active view", u"Help", u"Catalogs", u"Name", u"Description",
        u"Select Tool Palette folder", u"Cannot find catalog in the specified folder."})
    host().translations[QString::fromUtf16(word)] = QString::fromUtf16(word) + u'!';
  host().translations[QStringLiteral("Small|Normal|Large")] = QStringLiteral("S|M|L");
  TcUiPaletteSet& window = open();
  EXPECT_EQ(words(window.sizeMenu()).first(), QStringLiteral("S 5001"));
  EXPECT_EQ(words(window.viewMenu()).first(), QStringLiteral("Icons! 6100"));
  EXPECT_EQ(controls->tabs->tabText(0), QStringLiteral("Tools!"));
  EXPECT_EQ(windows->pane->frame->windowTitle(), QStringLiteral("Tool Palettes!"));
  EXPECT_EQ(button(0).toolTip(), QStringLiteral("Change active view!"));
  EXPECT_EQ(button(1).toolTip(), QStringLiteral("Change icon size!"));
  EXPECT_EQ(button(2).toolTip(), QStringLiteral("Change view style!"));
  EXPECT_EQ(button(3).accessibleName(), QStringLiteral("Help!"));
  EXPECT_EQ(tree().accessibleName(), QStringLiteral("Catalogs!"));
  EXPECT_EQ(list().shownView().accessibleName(), QStringLiteral("Tools!"));
  for (const auto& [column, word] : {std::pair(0, "Name!"), std::pair(1, "Description!")})
    EXPECT_EQ(list().rows().headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
              QLatin1String(word));
  windows->chosenFolder = folder.filePath(QStringLiteral("nowhere"));
  window.dispatchCommand(kCommandOpenCatalog);
  EXPECT_EQ(windows->folderTitle, QStringLiteral("Select Tool Palette folder!"));
  ASSERT_EQ(host().messages.boxes.size(), 1u);
  EXPECT_EQ(host().messages.boxes.front().text,
            QStringLiteral("Cannot find catalog in the specified folder.!"));
}

struct SizeCase {
  int command;
  int value;
  const char* word;
};

TEST_F(PaletteWindow, ASizeGoesToThePaletteTheManagerTheListAndTheMark) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")});
  TcUiPaletteSet& window = open();
  select(*palette);
  for (const SizeCase& c : {SizeCase{5001, 1, "Small"}, {5002, 3, "Normal"}, {5003, 4, "Large"}}) {
    EXPECT_TRUE(window.dispatchCommand(c.command));
    EXPECT_EQ(palette->getPreviewSize(), c.value);
    EXPECT_EQ(manager().viewSetting(), static_cast<std::uint32_t>(c.value));
    EXPECT_EQ(checked(window.sizeMenu()), QStringList(QString::fromLatin1(c.word)));
    const auto picture = list().rows().index(0, 0).data(Qt::DecorationRole).value<QPixmap>();
    EXPECT_EQ(picture.width(), TcUiItemPictures::pixelsOf(c.value));
  }
}

TEST_F(PaletteWindow, ASizeWithAGroupSelectedMovesTheMarkAndChangesNoPalette) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {}, group);
  palette->setPreviewSize(3);
  TcUiPaletteSet& window = open();
  select(*group);
  list().clear();
  window.dispatchCommand(kCommandLargeIcons);
  EXPECT_EQ(palette->getPreviewSize(), 3);
  EXPECT_EQ(manager().viewSetting(), 4u);
  EXPECT_EQ(checked(window.sizeMenu()), QStringList(QStringLiteral("Large")));
  EXPECT_EQ(listed(), QStringList(QStringLiteral("Doors"))) << "the list is filled anew";
}

TEST_F(PaletteWindow, AViewStyleGoesToThePaletteAndTheListAndNotToTheManager) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")});
  TcUiPaletteSet& window = open();
  select(*palette);
  const std::uint32_t size = manager().viewSetting();
  const std::pair<int, int> cases[] = {{6120, 3}, {6130, 1}, {6100, 0}, {6110, 2}};
  const QStringList marks[] = {
      {QStringLiteral("List")}, {QStringLiteral("De&tails")}, {QStringLiteral("Icons")}, {}};
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    list().clear();
    EXPECT_TRUE(window.dispatchCommand(cases[i].first));
    EXPECT_EQ(listed(), QStringList(QStringLiteral("Door"))) << "the list is filled anew";
    EXPECT_EQ(palette->getPreviewStyle(), cases[i].second);
    EXPECT_EQ(list().viewStyle(), cases[i].second);
    EXPECT_EQ(checked(window.viewMenu()), marks[i]) << cases[i].first;
    EXPECT_EQ(manager().viewSetting(), size);
  }
}

TEST_F(PaletteWindow, WithAToolOrNothingSelectedOnlyTheMarksAndTheManagerChange) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")});
  palette->setPreviewSize(3);
  palette->setPreviewStyle(0);
  TcUiPaletteSet& window = open();
  const auto choose = [&](int size, int style) {
    EXPECT_TRUE(window.dispatchCommand(size));
    EXPECT_TRUE(window.dispatchCommand(style));
    EXPECT_EQ(palette->getPreviewSize(), 3);
    EXPECT_EQ(palette->getPreviewStyle(), 0);
  };
  ASSERT_TRUE(tree().selectById(palette->enumTools()->next()->id()));
  choose(kCommandLargeIcons, kCommandListStyle);
  EXPECT_EQ(manager().viewSetting(), 4u);
  EXPECT_EQ(checked(window.sizeMenu()), QStringList(QStringLiteral("Large")));
  EXPECT_EQ(checked(window.viewMenu()), QStringList(QStringLiteral("List")));
  tree().clearSelection();
  choose(kCommandSmallIcons, kCommandDetailsStyle);
  EXPECT_EQ(manager().viewSetting(), 1u);
  EXPECT_EQ(checked(window.sizeMenu()), QStringList(QStringLiteral("Small")));
  EXPECT_EQ(checked(window.viewMenu()), QStringList(QStringLiteral("De&tails")));
}

TEST_F(PaletteWindow, AFirstStartShowsIconsInColumnsOf200) {
  store().values[QStringLiteral("ActiveView")] = OdVariant(2);
  open();
  EXPECT_EQ(list().viewStyle(), kIconStyle);
  EXPECT_EQ(controls->splitter->asked.first(), std::vector<int>({200, 200}));
  EXPECT_NEAR(frame().widths()[0], frame().widths()[1], 1);
  EXPECT_EQ(checked(ITcUiPaletteSet::instance()->sizeMenu()), QStringList(QStringLiteral("Normal")))
      << "the size in force, though none is stored";
}

TEST_F(PaletteWindow, OtherCommandsAreNotItsOwn) {
  TcUiPaletteSet& window = open();
  EXPECT_TRUE(window.dispatchCommand(5000));
  for (const int command : {0, 5004, 6140, 40007, 40008, 40011})
    EXPECT_FALSE(window.dispatchCommand(command)) << command;
}

TEST_F(PaletteWindow, HelpOpensItsPage) {
  open().dispatchCommand(kCommandHelp);
  EXPECT_EQ(help->topics, QStringList(QStringLiteral("IDH_ToolPalettes")));
  host().switchOff(IHelpService::kId);
  EXPECT_TRUE(ITcUiPaletteSet::instance()->dispatchCommand(kCommandHelp));
}

TEST_F(PaletteWindow, OpensTheCatalogOfAFolder) {
  QDir(folder.path()).mkpath(QStringLiteral("two"));
  QFile file(folder.filePath(QStringLiteral("two/DrfTcCatalog.dtc")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(
      "<Catalog><ItemID idValue=\"{C}\"/><Properties><ItemName>Second</ItemName></Properties>"
      "<Palettes/><Groups/></Catalog>");
  file.close();
  TcUiPaletteSet& window = open();
  window.dispatchCommand(kCommandOpenCatalog);
  EXPECT_EQ(windows->folderTitle, QStringLiteral("Select Tool Palette folder"));
  EXPECT_EQ(tree().catalogs().rowCount(), 1) << "nothing was chosen";
  windows->chosenFolder = folder.filePath(QStringLiteral("two"));
  window.dispatchCommand(kCommandOpenCatalog);
  EXPECT_EQ(names(tree().catalogs()),
            QStringList({QStringLiteral("Office"), QStringLiteral("Second")}));
  EXPECT_TRUE(host().messages.boxes.empty());
}

TEST_F(PaletteWindow, TheCommandToOpenACatalogShowsThePalettesAndAsksThere) {
  setPaletteSetMaker(&TcUiPaletteSet::create);
  const auto run = [] { return KVPtr<ICmdProcess>::attach(makeOpenCommand())->Run(); };
  EXPECT_EQ(run(), 0);
  ASSERT_TRUE(ITcUiPaletteSet::instance());
  EXPECT_TRUE(ITcUiPaletteSet::instance()->isVisible());
  EXPECT_TRUE(isPaletteSetShown());
  EXPECT_EQ(windows->folderTitle, QStringLiteral("Select Tool Palette folder"));
  ITcUiPaletteSet::instance()->close();
  EXPECT_EQ(run(), 0);
  EXPECT_TRUE(ITcUiPaletteSet::instance()->isVisible());
  setPaletteSetMaker(nullptr);
}

TEST_F(PaletteWindow, AFolderWithTheFileUnderAnotherNameOrCaseIsRefused) {
  QDir(folder.path()).mkpath(QStringLiteral("two/DrfTcCatalog.dtc"));
  QFile file(folder.filePath(QStringLiteral("two/drftccatalog.dtc")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("<Catalog/>");
  file.close();
  windows->chosenFolder = folder.filePath(QStringLiteral("two"));
  open().dispatchCommand(kCommandOpenCatalog);
  ASSERT_EQ(host().messages.boxes.size(), 1u);
  EXPECT_EQ(host().messages.boxes.front().text,
            QStringLiteral("Cannot find catalog in the specified folder."));
  EXPECT_EQ(tree().catalogs().rowCount(), 1);
}

TEST_F(PaletteWindow, ACollapsedWindowIsBroughtBack) {
  open();
  windows->pane->frame->setMinimumSize(0, 0);
  tree().window()->layout()->setSizeConstraint(QLayout::SetNoConstraint);
  QWidget* const content = button(0).parentWidget()->parentWidget();
  content->setMinimumSize(0, 0);
  content->resize(4, 4);
  settle();
  EXPECT_EQ(windows->pane->corner, QPoint(10, 10));
  EXPECT_EQ(windows->pane->frame->size(), QSize(300, 400));
  windows->pane->corner = {};
  for (const QSize size : {QSize(4, 300), QSize(300, 4), QSize(5, 5), QSize(5, 4), QSize(4, 5)}) {
    content->resize(size);
    EXPECT_EQ(content->size(), size) << "one small side is the user's own wish";
    EXPECT_TRUE(windows->pane->corner.isNull()) << size.width() << " by " << size.height();
  }
}

TEST_F(PaletteWindow, AColumnIsVisibleFromAWidthOfTwo) {
  open();
  for (const auto& [widths, isVisible] :
       {std::pair(std::vector<int>{2, 2}, true), std::pair(std::vector<int>{1, 300}, false),
        std::pair(std::vector<int>{300, 1}, false), std::pair(std::vector<int>{2, 300}, true)}) {
    controls->splitter->pretended = widths;
    EXPECT_EQ(frame().bothPanesVisible(), isVisible) << widths[0] << " and " << widths[1];
  }
}

TEST_F(PaletteWindow, TheTabsStandBelowTheStripWith23Less) {
  open();
  const QTabWidget* const tabs = controls->tabs;
  QWidget* const content = tabs->parentWidget();
  EXPECT_EQ(tabs->y(), controls->toolbar->fixedHeight());
  EXPECT_EQ(tabs->width(), content->width());
  EXPECT_EQ(tabs->height(), content->height() - 23);
}

TEST_F(PaletteWindow, ClosingForgetsItForTheNextStartAndTellsEverybody) {
  setPaletteSetShown(true);
  TcUiPaletteSet& window = open();
  testhost::TestProfile& startup = host().application.store->made(QStringLiteral("Startup"));
  ASSERT_TRUE(startup.values.contains(QStringLiteral("ToolPalettes")));
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(isPaletteSetShown());
  EXPECT_FALSE(startup.values.contains(QStringLiteral("ToolPalettes")));
  ASSERT_EQ(windows->broadcasts.size(), 1);
  EXPECT_EQ(windows->broadcasts[0].first, &windows->main);
  EXPECT_EQ(windows->broadcasts[0].second,
            windows->messages[QStringLiteral("WM_TC_PALETTE_CLOSED")]);
}

TEST_F(PaletteWindow, BroughtBackByTheHostItIsShownForTheCommandAndTheNextStart) {
  TcUiPaletteSet& window = open();
  setPaletteSetShown(true);
  window.close();
  windows->pane->bringBack();
  EXPECT_TRUE(isPaletteSetShown());
  EXPECT_TRUE(host()
                  .application.store->made(QStringLiteral("Startup"))
                  .values.contains(QStringLiteral("ToolPalettes")));
}

TEST_F(PaletteWindow, TheColumnThatComesTakesTheKeysOfTheOneThatGoes) {
  TcUiPaletteSet& window = open();
  QWidget& top = *windows->pane->frame;
  tree().setFocus();
  ASSERT_EQ(top.focusWidget(), &tree());
  window.dispatchCommand(kCommandToggleView);
  EXPECT_EQ(top.focusWidget(), &list().shownView());
  window.dispatchCommand(kCommandToggleView);
  EXPECT_EQ(top.focusWidget(), &tree());
  button(0).setFocusPolicy(Qt::TabFocus);
  button(0).setFocus();
  window.dispatchCommand(kCommandToggleView);
  EXPECT_EQ(top.focusWidget(), &button(0)) << "the button keeps them";
}

TEST_F(PaletteWindow, EnterUnfoldsWhatIsSelectedInTheTreeAndIsNobodyElses) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")}, group);
  open();
  select(*group);
  const QModelIndex index = tree().currentIndex();
  ASSERT_FALSE(tree().isExpanded(index));
  for (const bool isExpanded : {true, false}) {
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&tree(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(tree().isExpanded(index), isExpanded);
  }
}

TEST_F(PaletteWindow, TheMessageToCustomizeIsAnswered) {
  open();
  QWidget* const content = button(0).parentWidget()->parentWidget();
  windows->main.show();
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  HostMessage event(windows->messages[QStringLiteral("WM_TC_CUSTOMIZE")]);
  EXPECT_TRUE(QCoreApplication::sendEvent(content, &event));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&windows->main)) << "the owner comes forward";
}

TEST_F(PaletteWindow, PartsAreFoundByTheirIdentity) {
  TcUiPaletteSet& window = open();
  for (const std::string_view id :
       {ITcUiPaletteSet::kId, ITcUiMenuBuilder::kId, ITcUiFrameWnd::kId, ITcUiTreeView::kId,
        ITcUiListView::kId, ITcUiStateSaver::kId, ITcUiSelection::kId}) {
    void* found = nullptr;
    EXPECT_TRUE(window.queryInterface(id, &found)) << id;
    EXPECT_NE(found, nullptr) << id;
  }
  void* found = &window;
  EXPECT_FALSE(window.queryInterface("ITcUiNothing", &found));
  EXPECT_EQ(found, nullptr);
}

TEST_F(PaletteWindow, TheDefaultCatalogStandsFirst) {
  const OdTcCatalogPtr second = openCatalog(QStringLiteral("two"), QStringLiteral("Second"));
  const OdTcCatalogPtr third = openCatalog(QStringLiteral("three"), QStringLiteral("Third"));
  third->setDefault(true);
  open();
  EXPECT_EQ(
      names(tree().catalogs()),
      QStringList({QStringLiteral("Third"), QStringLiteral("Office"), QStringLiteral("Second")}));
}

/// Pictures fit the screen's pixels, whatever its ratio: see the second run of this test.
TEST_F(PaletteWindow, ItsPicturesFitTheScreen) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")});
  open();
  select(*palette);
  for (const QModelIndex& index : {tree().catalogs().indexOf(catalog), list().rows().index(0, 0)})
    EXPECT_EQ(index.data(Qt::DecorationRole).value<QPixmap>().devicePixelRatio(),
              tree().devicePixelRatioF());
}

TEST_F(PaletteWindow, ARemovedCatalogLeavesBothViews) {
  addPalette(QStringLiteral("Doors"));
  const OdTcCatalogPtr second = openCatalog(QStringLiteral("two"), QStringLiteral("Second"));
  TcUiPaletteSet& window = open();
  select(*catalog);
  EXPECT_EQ(listed(), QStringList(QStringLiteral("Doors")));
  manager().removeCatalog(catalog->path());
  EXPECT_EQ(names(tree().catalogs()), QStringList(QStringLiteral("Second")));
  window.refresh();
}

TEST_F(PaletteWindow, TheHostMayTakeTheWindowAwayFirst) {
  TcUiPaletteSet& window = open();
  delete windows->pane->frame.data();
  EXPECT_EQ(window.selectedItem(), nullptr);
  EXPECT_TRUE(window.dispatchCommand(kCommandToggleView));
  window.refresh();
}

TEST_F(PaletteWindow, OneWindowIsToldOfTheClosingByItself) {
  registerPaletteMessages();
  EXPECT_EQ(windows->messages.keys(), QStringList({QStringLiteral("WM_TC_CUSTOMIZE"),
                                                   QStringLiteral("WM_TC_PALETTE_CLOSED")}));
  struct Listener : QWidget {
    int wanted = closedMessage(), heard = 0;
    bool event(QEvent* event) override {
      if (event->type() != wanted) return QWidget::event(event);
      const auto& message = *static_cast<HostMessage*>(event);
      return ++heard, message.first == 0 && message.second == 0;
    }
  } told, other;
  sendPaletteClosed(told);
  EXPECT_EQ(told.heard, 1);
  EXPECT_EQ(other.heard, 0);
  host().switchOff(IHostWindowServices::kId);
  sendPaletteClosed(told);
  EXPECT_EQ(told.heard, 1);
}

TEST_F(PaletteWindow, ThePageWithTheColumnsMayBePulledOut) {
  open();
  EXPECT_TRUE(controls->tabs->detachable);
}

TEST_F(PaletteWindow, WithoutAnyOfItsControlsThereIsNoWindow) {
  for (bool TestControls::*missing :
       {&TestControls::hasToolbars, &TestControls::hasTabs, &TestControls::hasSplitters}) {
    controls.get()->*missing = false;
    EXPECT_EQ(TcUiPaletteSet::create(), nullptr);
    controls.get()->*missing = true;
  }
  EXPECT_NE(TcUiPaletteSet::create(), nullptr);
  host().switchOff(IHostWindowControls::kId);
  EXPECT_EQ(TcUiPaletteSet::create(), nullptr);
}

TEST_F(PaletteWindow, ItsPicturesFollowTheTheme) {
  open();
  const auto inkOf = [&] { return button(2).icon().pixmap(16, 16).toImage().pixelColor(10, 8); };
  const auto groupOf = [&] { return frame().pictures().ink(); };
  QWidget* const content = controls->toolbar->parentWidget();
  QPalette palette = content->palette();
  for (const auto role : {QPalette::ButtonText, QPalette::WindowText})
    palette.setColor(role, Qt::white);
  content->setPalette(palette);
  const QColor light = inkOf();
  EXPECT_EQ(groupOf(), QColor(Qt::white));
  for (const auto role : {QPalette::ButtonText, QPalette::WindowText})
    palette.setColor(role, Qt::black);
  content->setPalette(palette);
  EXPECT_GT(light.lightness(), inkOf().lightness() + 100);
  EXPECT_EQ(groupOf(), QColor(Qt::black));
}

TEST_F(PaletteWindow, WithoutWindowsThereIsNone) {
  host().switchOff(IHostWindowServices::kId);
  EXPECT_EQ(TcUiPaletteSet::create(), nullptr);
}

} // namespace
