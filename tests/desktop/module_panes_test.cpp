// Panes that modules have in the window.
#include "desktop/window_services_fixture.h"

#include <QLabel>

using namespace drafton;

namespace {

struct PaneLog : IHostPaneEvents {
  QStringList heard;
  QPointer<QWidget> content;
  KVPtr<IHostPane> pane;

  bool isWanted = true;
  QSize room;

  bool paneCreated() override {
    heard << QStringLiteral("created");
    return isWanted;
  }
  void paneResized(const QSize& size) override { room = size; }
  void paneClosed() override {
    heard << (pane && pane->isVisible() ? QStringLiteral("closed while shown")
                                        : QStringLiteral("closed"));
  }
  void paneShown() override { heard << QStringLiteral("shown"); }
  void paneDestroyed() override {
    heard << (content ? QStringLiteral("destroyed") : QStringLiteral("destroyed without content"));
  }
};

class ModulePanes : public WindowServicesTest {
 protected:
  void make(PaneLog& log) {
    log.heard.clear();
    log.content = new QLabel(QStringLiteral("content"));
    log.pane =
        windows()->createPane(QStringLiteral("Test"), QStringLiteral("A pane"), log.content, &log);
    EXPECT_EQ(log.heard, QStringList{QStringLiteral("created")});
    log.heard.clear();
  }
  /// A pane of its own window, as a drafter has it after pulling its title.
  void makeFloating(PaneLog& log) {
    make(log);
    log.pane->show(false);
    dock()->setFloating(true);
    QApplication::processEvents();
  }
};

TEST_F(ModulePanes, APaneComesHiddenAtTheRightSide) {
  PaneLog log;
  make(log);
  EXPECT_FALSE(log.pane->isVisible());
  log.pane->show(true);
  EXPECT_TRUE(log.pane->isVisible());
  EXPECT_EQ(window().dockWidgetArea(dock()), Qt::RightDockWidgetArea);
  EXPECT_EQ(log.pane->window(), &window());
  log.pane->setTitle(QStringLiteral("Other"));
  EXPECT_EQ(dock()->windowTitle(), QStringLiteral("Other"));
  log.pane.reset();
}

TEST_F(ModulePanes, ContentThatAsksForNothingGetsRoomBesideOtherPanes) {
  const auto pane =
      windows()->createPane(QStringLiteral("Bare"), QStringLiteral("Bare"), new QWidget, nullptr);
  pane->show(false);
  QApplication::processEvents();
  QApplication::processEvents();
  EXPECT_GE(dock()->widget()->height(), 100);
  EXPECT_GE(dock()->widget()->width(), 100);
}

TEST_F(ModulePanes, ClosingIsToldWhenThePaneIsHiddenAndHidingIsNot) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  log.pane->hide();
  EXPECT_TRUE(log.heard.isEmpty());
  log.pane->show(false);
  log.pane->close();
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("closed")});
  log.heard.clear();
  log.pane.reset();
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("destroyed")});
  EXPECT_FALSE(log.content) << "the pane owned it";
}

TEST_F(ModulePanes, APaneTellsTheRoomOfItsContent) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  QApplication::processEvents();
  dock()->setFloating(true);
  log.pane->place({50, 50}, {260, 380});
  QApplication::processEvents();
  EXPECT_EQ(log.room, log.content->size());
  EXPECT_EQ(log.room.width(), 260);
  log.pane.reset();
}

TEST_F(ModulePanes, TheEndOfTheWindowIsNoClosingOfAFloatingPane) {
  PaneLog log;
  makeFloating(log);
  ASSERT_TRUE(window().close());
  // The program's end closes whatever windows are left.
  dock()->close();
  EXPECT_TRUE(log.heard.isEmpty()) << log.heard.join(u' ').toStdString();
  log.pane.reset();
}

TEST_F(ModulePanes, APaneThatTheUserBringsBackTellsSo) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  EXPECT_TRUE(log.heard.isEmpty()) << "its owner knows";
  QAction* const entry = dock()->toggleViewAction();
  entry->trigger();
  entry->trigger();
  EXPECT_TRUE(log.pane->isVisible());
  EXPECT_EQ(log.heard, QStringList({QStringLiteral("closed"), QStringLiteral("shown")}));
  log.pane.reset();
}

TEST_F(ModulePanes, AFloatingPaneOfItsLeastSizeHasNoRoomAlsoAtTheNextStart) {
  PaneLog log;
  makeFloating(log);
  log.pane->place({50, 50}, {300, 1});
  QApplication::processEvents();
  EXPECT_EQ(log.room.width(), 300) << "one small side is the user's own wish";
  log.pane->place({50, 50}, {1, 1});
  QApplication::processEvents();
  EXPECT_EQ(log.room, QSize(0, 0));
  ASSERT_TRUE(window().close());
  stop();
  log.pane.reset();
  start();
  make(log);
  log.room = QSize(7, 7);
  log.pane->show(false);
  QApplication::processEvents();
  ASSERT_TRUE(dock()->isFloating());
  EXPECT_EQ(log.room, QSize(0, 0));
  log.pane.reset();
}

TEST_F(ModulePanes, APaneThatItsOwnerGivesUpIsNone) {
  PaneLog log;
  log.isWanted = false;
  log.content = new QLabel;
  log.pane = windows()->createPane(QStringLiteral("Test"), QStringLiteral("T"), log.content, &log);
  EXPECT_FALSE(log.pane);
  EXPECT_FALSE(log.content);
  EXPECT_EQ(dock(), nullptr);
  EXPECT_EQ(log.heard, QStringList{QStringLiteral("created")});
}

TEST_F(ModulePanes, APaneStaysWhereItWasOverARestart) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  window().addDockWidget(Qt::LeftDockWidgetArea, dock());
  EXPECT_TRUE(window().close());
  stop();
  EXPECT_EQ(log.heard.last(), QStringLiteral("destroyed")) << "the window goes first";
  EXPECT_FALSE(log.pane->isVisible()) << "harmless";
  log.pane->show(true);
  log.pane.reset();
  start();
  make(log);
  EXPECT_FALSE(log.pane->isVisible());
  log.pane->show(false);
  EXPECT_EQ(window().dockWidgetArea(dock()), Qt::LeftDockWidgetArea);
  log.pane.reset();
}

TEST_F(ModulePanes, AFloatingPaneIsPutWhereItIsWanted) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  dock()->setFloating(true);
  log.pane->place({120, 90}, {300, 400});
  EXPECT_EQ(dock()->size(), QSize(300, 400));
  EXPECT_EQ(dock()->pos(), QPoint(120, 90));
  EXPECT_EQ(log.pane->window(), dock());
  log.pane.reset();
}

} // namespace
