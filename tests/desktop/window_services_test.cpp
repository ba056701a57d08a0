#include "drafton/desktop/window_services.h"

#include "desktop/desktop_fixture.h"
#include "drafton/desktop/help_window.h"

#include <QFile>
#include <QLabel>
#include <QTextBrowser>

using namespace drafton;

namespace {

struct PaneLog : IHostPaneEvents {
  QStringList heard;
  QPointer<QWidget> content;
  KVPtr<IHostPane> pane;

  void paneClosed() override {
    heard << (pane && pane->isVisible() ? QStringLiteral("closed while shown")
                                        : QStringLiteral("closed"));
  }
  void paneDestroyed() override {
    heard << (content ? QStringLiteral("destroyed") : QStringLiteral("destroyed without content"));
  }
};

class WindowServicesTest : public DesktopFixture {
 protected:
  KVPtr<IHostWindowServices> windows() {
    return kvQuery<IHostWindowServices>(&desktop().engine().services());
  }
  void make(PaneLog& log) {
    log.content = new QLabel(QStringLiteral("content"));
    log.pane =
        windows()->createPane(QStringLiteral("Test"), QStringLiteral("A pane"), log.content, &log);
  }
  PaneDock* dock() { return window().findChild<PaneDock*>(); }
};

TEST_F(WindowServicesTest, APaneComesHiddenAtTheRightSide) {
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

TEST_F(WindowServicesTest, ContentThatAsksForNothingGetsRoomBesideOtherPanes) {
  const auto pane =
      windows()->createPane(QStringLiteral("Bare"), QStringLiteral("Bare"), new QWidget, nullptr);
  pane->show(false);
  QApplication::processEvents();
  QApplication::processEvents();
  EXPECT_GE(dock()->widget()->height(), 100);
  EXPECT_GE(dock()->widget()->width(), 100);
}

TEST_F(WindowServicesTest, ClosingIsToldWhenThePaneIsHiddenAndHidingIsNot) {
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

TEST_F(WindowServicesTest, APaneStaysWhereItWasOverARestart) {
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

TEST_F(WindowServicesTest, AFloatingPaneIsPutWhereItIsWanted) {
  PaneLog log;
  make(log);
  log.pane->show(false);
  dock()->setFloating(true);
  log.pane->place({120, 90}, {300, 400});
  EXPECT_EQ(dock()->size(), QSize(300, 400));
  EXPECT_EQ(log.pane->window(), dock());
  log.pane.reset();
}

class Listener : public QWidget {
 public:
  using QWidget::QWidget;
  int wanted = 0, heard = 0;
  bool event(QEvent* event) override {
    if (event->type() == wanted) ++heard;
    return QWidget::event(event);
  }
};

TEST_F(WindowServicesTest, MessagesHaveOneNumberANameAndReachAllDescendants) {
  const auto services = windows();
  const int message = services->registeredMessage(QStringLiteral("SettingsChanged"));
  EXPECT_EQ(services->registeredMessage(QStringLiteral("SettingsChanged")), message);
  EXPECT_NE(services->registeredMessage(QStringLiteral("Other")), message);
  QWidget top;
  QWidget middle(&top);
  Listener deep(&middle), own(&top);
  deep.wanted = own.wanted = message;
  services->broadcast(&top, message);
  EXPECT_EQ(deep.heard, 1);
  EXPECT_EQ(own.heard, 1);
}

TEST_F(WindowServicesTest, FiltersAreWrittenAsQtReadsThem) {
  EXPECT_EQ(qtFilter(QStringLiteral("Images|*.png;*.jpg|All|*.*||")),
            QStringLiteral("Images (*.png *.jpg);;All (*.*)"));
  EXPECT_EQ(qtFilter(QString()), QString());
}

TEST_F(WindowServicesTest, FocusGoesBackToTheDrawing) {
  QApplication::setActiveWindow(&window());
  window().commandLine().edit().setFocus();
  windows()->focusDrawing();
  EXPECT_EQ(window().focusWidget(), &canvas());
}

TEST_F(WindowServicesTest, TheManualHasThePagesThatAreAskedFor) {
  const auto help = kvQuery<IHelpService>(&desktop().engine().services());
  ASSERT_TRUE(help);
  EXPECT_TRUE(help->showTopic(QStringLiteral("IDH_ToolPalettes")));
  const auto* const page = window().findChild<QTextBrowser*>();
  ASSERT_TRUE(page);
  EXPECT_TRUE(page->toPlainText().startsWith(QStringLiteral("Tool palettes")));
  EXPECT_FALSE(help->showTopic(QStringLiteral("IDH_Nothing")));
}

TEST_F(WindowServicesTest, TheFirstPageOfTheManualIsThere) {
  EXPECT_TRUE(showManual(window(), kManualStart));
  EXPECT_FALSE(showManual(window(), QStringLiteral("none.md")));
}

} // namespace
