#include "desktop/desktop_fixture.h"
#include "drafton/desktop/inspector.h"
#include "drafton/engine/drawing_files.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDockWidget>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

using namespace drafton;

namespace {

using MainWindowTest = DesktopFixture;

TEST_F(MainWindowTest, DrawsWithClicksAndTypedPointsSavesAndReadsBack) {
  type("LINE ");
  click(-5, -5);
  click(5, -5);
  type("5,5 ");
  press(Qt::Key_Return);
  type("CIRCLE 0,0 ");
  click(0, 3);
  picture("drawn");
  ASSERT_EQ(entities().size(), 3u);
  EXPECT_TRUE(window().isWindowModified());

  dialogs.toSave = path("drawn");
  window().actions().find(u"save")->trigger();
  EXPECT_FALSE(window().isWindowModified());
  ASSERT_TRUE(QFile::exists(path("drawn.dxf"))) << "without a suffix it is a .dxf file";

  window().actions().find(u"close")->trigger();
  EXPECT_EQ(window().documents().canvas(), nullptr);
  dialogs.toOpen = {path("drawn.dxf")};
  window().actions().find(u"open")->trigger();
  ASSERT_EQ(entities().size(), 3u);
  const OdDbLinePtr first = odrxCast<OdDbLine>(entities()[0].get());
  const OdDbCirclePtr circle = odrxCast<OdDbCircle>(entities()[2].get());
  ASSERT_TRUE(first && circle);
  EXPECT_NEAR(first->startPoint().x, -5, 0.06) << "half a pixel";
  EXPECT_NEAR(first->endPoint().x, 5, 0.06);
  EXPECT_NEAR(circle->radius(), 3, 0.06);
}

TEST_F(MainWindowTest, KeysThatNobodyElseTakesLandOnTheCommandLine) {
  canvas().setFocus();
  QTest::keyClicks(&canvas(), QStringLiteral("li"));
  EXPECT_EQ(window().commandLine().edit().text(), QStringLiteral("li"));
  QTest::keyClicks(&canvas(), QStringLiteral("ne "));
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("LINE")});
  QTest::keyClick(&canvas(), Qt::Key_Escape);
  EXPECT_FALSE(desktop().isBusy());
}

TEST_F(MainWindowTest, WhatIsTypedOnAListLandsOnTheCommandLineUnlessItsEntryIsEdited) {
  QTreeWidget& rows = window().inspector();
  rows.setFocus();
  QApplication::processEvents();
  ASSERT_TRUE(rows.hasFocus());
  QTest::keyClicks(&rows, QStringLiteral("l"));
  EXPECT_EQ(window().commandLine().edit().text(), QStringLiteral("l"));
  // The offers may stand before it.
  EXPECT_EQ(window().focusWidget(), &window().commandLine().edit());
  press(Qt::Key_Escape);

  rows.topLevelItem(0)->setFlags(rows.topLevelItem(0)->flags() | Qt::ItemIsEditable);
  rows.setCurrentItem(rows.topLevelItem(0));
  rows.setFocus();
  QTest::keyClicks(&rows, QStringLiteral("l"));
  EXPECT_EQ(window().commandLine().edit().text(), QString());
}

TEST_F(MainWindowTest, UpAndDownBringBackWhatWasTyped) {
  type("CIRCLE 0,0 2 ");
  QLineEdit& edit = window().commandLine().edit();
  press(Qt::Key_Up);
  EXPECT_EQ(edit.text(), QStringLiteral("2"));
  press(Qt::Key_Up);
  EXPECT_EQ(edit.text(), QStringLiteral("0,0"));
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(edit.text(), QString());
}

TEST_F(MainWindowTest, KeywordsOfThePromptAreLinks) {
  type("CIRCLE ");
  QLabel* const prompt = window().commandLine().findChild<QLabel*>();
  ASSERT_TRUE(prompt->text().contains(QStringLiteral("<a href=\"2P\">2P</a>")))
      << prompt->text().toStdString();
  Q_EMIT prompt->linkActivated(QStringLiteral("2P"));
  type("0,0 4,0 ");
  EXPECT_EQ(only<OdDbCircle>()->radius(), 2);
}

TEST_F(MainWindowTest, ABlankBelongsToATextThatIsAskedFor) {
  type("TEXT 0,0 1 0 Two words");
  EXPECT_EQ(window().commandLine().edit().text(), QStringLiteral("Two words"));
}

TEST_F(MainWindowTest, WhatIsChosenFirstCountsForCommandsOnlyWherePickFirstIsOn) {
  type("LINE -3,0 3,0  PICKFIRST 0 ");
  click(0, 0);
  EXPECT_EQ(document().preselection().size(), 1u) << "for grips and the inspector";
  type("ERASE ");
  EXPECT_TRUE(desktop().isBusy()) << "it asks";
  press(Qt::Key_Escape);
  EXPECT_EQ(entities().size(), 1u);
  type("PICKFIRST 1 ");
  click(0, 0);
  type("ERASE ");
  EXPECT_FALSE(desktop().isBusy());
  EXPECT_TRUE(entities().empty());
}

TEST_F(MainWindowTest, ShowsWhatWasAnsweredAndWhatIsAsked) {
  type("LINE 1,2 ");
  EXPECT_TRUE(history().contains(QStringLiteral("Specify first point: 1,2")))
      << history().toStdString();
  const auto* const shown = window().commandLine().findChild<QPlainTextEdit*>();
  EXPECT_EQ(shown->toPlainText(), history());
}

TEST_F(MainWindowTest, TheStatusBarTellsWhereTheCursorIs) {
  moveTo(3, -4);
  const QStringList parts = window().statusLine().placeText().split(QStringLiteral(", "));
  ASSERT_EQ(parts.size(), 2);
  EXPECT_NEAR(parts[0].toDouble(), 3, 0.06);
  EXPECT_NEAR(parts[1].toDouble(), -4, 0.06);
}

TEST_F(MainWindowTest, TheButtonForWhatAToolbarHasNoRoomForHasAName) {
  int buttons = 0;
  for (const drafton::ToolbarTitle& title : drafton::toolbarTitles()) {
    const auto* const bar = window().findChild<QToolBar*>(OdString::fromUtf16(title.name));
    ASSERT_TRUE(bar);
    for (const QToolButton* const button : bar->findChildren<QToolButton*>())
      if (!button->defaultAction()) {
        ++buttons;
        EXPECT_EQ(button->accessibleName(), QStringLiteral("More commands"));
      }
  }
  EXPECT_EQ(buttons, 4);
}

TEST_F(MainWindowTest, EachDrawingHasItsTabAndItsOwnCommands) {
  type("LINE 0,0 ");
  Document* const first = &document();
  window().files().newDrawing();
  ASSERT_NE(&document(), first);
  EXPECT_FALSE(desktop().isBusy());
  window().documents().documentTabs().setCurrentIndex(0);
  EXPECT_EQ(&document(), first);
  type("3,0  ");
  EXPECT_EQ(entities().size(), 1u);
}

TEST_F(MainWindowTest, LayoutTabsFollowTheDrawingAndSwitchIt) {
  QTabBar& tabs = window().documents().layoutTabs();
  ASSERT_EQ(tabs.count(), 2);
  QTest::mouseClick(&tabs, Qt::LeftButton, Qt::NoModifier, tabs.tabRect(1).center());
  EXPECT_EQ(database().sysVarInt("TILEMODE"), 0);
  EXPECT_EQ(tabs.currentIndex(), 1);
  picture("layout");
  type("MODEL ");
  EXPECT_EQ(tabs.currentIndex(), 0);
  type("LAYOUT New Second\n");
  EXPECT_EQ(tabs.count(), 3);
}

TEST_F(MainWindowTest, CommandsThatBeginWithTheTextAreOfferedAndChosen) {
  auto* const list = window().commandLine().findChild<QCompleter*>()->popup();
  type("ell");
  ASSERT_TRUE(list->isVisible());
  QTest::keyClick(list, Qt::Key_Down);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("ELLIPSE")});
  press(Qt::Key_Escape);
  type("li");
  ASSERT_TRUE(list->isVisible());
  QTest::keyClicks(list, QStringLiteral("ne "));
  EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("LINE")})
      << "a blank takes what is typed, not what is offered";
  EXPECT_FALSE(list->isVisible());
}

TEST_F(MainWindowTest, KeysOfEditingAreThoseOfTheDrawingWhereThereIsNoText) {
  type("LINE 0,0 1,1  ");
  window().commandLine().edit().setFocus();
  QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
  undo.ignore();
  QApplication::sendEvent(&window().commandLine().edit(), &undo);
  EXPECT_FALSE(undo.isAccepted());
  window().commandLine().edit().setText(QStringLiteral("text"));
  QApplication::sendEvent(&window().commandLine().edit(), &undo);
  EXPECT_TRUE(undo.isAccepted());
}

TEST_F(MainWindowTest, AThousandClicksAndKeysInARowDoNoHarm) {
  type("LINE ");
  for (int i = 0; i < 1000; ++i)
    QTest::mouseClick(&canvas(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(50 + i % 300, 40 + i % 200));
  press(Qt::Key_Return);
  EXPECT_EQ(entities().size(), 999u);
  type("U ");
  EXPECT_EQ(entities().size(), 0u);
}

TEST_F(MainWindowTest, FilesThatAreDroppedAreOpenedAndOthersNamed) {
  const QString good = QStringLiteral(SOURCE_DIR "/samples/drawings/mechanical-sheet.dxf");
  QFile garbage(path("garbage.dxf"));
  ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
  garbage.write("no drawing\0 at all", 18);
  garbage.close();
  QMimeData files;
  files.setUrls({QUrl::fromLocalFile(garbage.fileName()), QUrl::fromLocalFile(path("missing.dxf")),
                 QUrl(QStringLiteral("https://somewhere/plan.dxf")), QUrl::fromLocalFile(good)});
  type("LINE 0,0 ");
  QDragEnterEvent enter(QPoint(200, 200), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window(), &enter);
  QDropEvent drop(QPointF(200, 200), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window(), &drop);
  // The line has to end first.
  ASSERT_TRUE(QTest::qWaitFor([&] { return dialogs.said.size() == 2; }));
  EXPECT_TRUE(dialogs.said[0].contains(QStringLiteral("garbage.dxf cannot be opened: ")));
  EXPECT_TRUE(dialogs.said[1].contains(QStringLiteral("missing.dxf cannot be opened: ")));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return document().name() == QStringLiteral("mechanical-sheet.dxf"); }));
  EXPECT_EQ(window().documents().documentTabs().count(), 2) << "and what was open stays";
}

// --- closing

TEST_F(MainWindowTest, ClosingAsksForChangesAndCanBeGivenUp) {
  type("LINE 0,0 1,1  ");
  dialogs.save = UserDialogs::Save::kCancel;
  EXPECT_FALSE(window().close());
  EXPECT_EQ(dialogs.asked, 1);
  ASSERT_TRUE(desktop().document());
  dialogs.save = UserDialogs::Save::kSave;
  dialogs.toSave = QString();
  EXPECT_FALSE(window().close()) << "no name was given";
  dialogs.toSave = path("kept.dxf");
  EXPECT_TRUE(window().close());
  EXPECT_TRUE(QFile::exists(path("kept.dxf")));
}

TEST_F(MainWindowTest, ClosingEndsTheCommandThatWaits) {
  type("LINE 0,0 1,1 ");
  ASSERT_TRUE(desktop().isBusy());
  EXPECT_TRUE(window().close());
  EXPECT_EQ(dialogs.asked, 0) << "what the command had drawn goes with it";
}

TEST_F(MainWindowTest, ExitClosesTheWindow) {
  type("QUIT ");
  QTRY_VERIFY_WITH_TIMEOUT(!window().isVisible(), 2000);
}

TEST_F(MainWindowTest, AFileThatCannotBeReadIsNamedWithTheReasonAndNothingElseHappens) {
  QFile file(path("bad.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("no drawing at all");
  file.close();
  EXPECT_FALSE(window().files().openFile(path("bad.dxf")));
  EXPECT_FALSE(window().files().openFile(path("missing.dxf")));
  ASSERT_EQ(dialogs.said.size(), 2);
  EXPECT_TRUE(dialogs.said[0].contains(QStringLiteral("bad.dxf cannot be opened: ")));
  EXPECT_EQ(window().documents().documentTabs().count(), 1);
}

TEST_F(MainWindowTest, RecentFilesStandInTheMenuWithTheLatestFirst) {
  for (const char* name : {"one.dxf", "two.dxf"}) {
    dialogs.toSave = path(name);
    window().actions().find(u"saveAs")->trigger();
  }
  EXPECT_EQ(window().files().recentFiles(), (QStringList{path("two.dxf"), path("one.dxf")}));
  stop();
  start();
  EXPECT_EQ(window().files().recentFiles().size(), 2) << "at the next start as well";
}

TEST_F(MainWindowTest, PlacesOfPanesStayOverARestart) {
  auto* dock = window().findChild<QDockWidget*>(QStringLiteral("commandLine"));
  window().addDockWidget(Qt::TopDockWidgetArea, dock);
  EXPECT_TRUE(window().close());
  stop();
  start();
  dock = window().findChild<QDockWidget*>(QStringLiteral("commandLine"));
  EXPECT_EQ(window().dockWidgetArea(dock), Qt::TopDockWidgetArea);
}

} // namespace
