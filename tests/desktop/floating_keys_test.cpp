// Keys in panes that float.
#include "desktop/window_services_fixture.h"
#include "drafton/desktop/window_controls.h"

#include <QListWidget>
#include <QTabBar>
#include <QVBoxLayout>

using namespace drafton;

namespace {

/// A list in a pane that floats, or in a page that was pulled out of one.
class FloatingKeysTest : public WindowServicesTest {
 protected:
  FloatingKeysTest() {
    m_tabs = static_cast<HostTabs*>(kvMake<WindowControls>()->createTabs(*m_content));
    list = new QListWidget;
    list->addItems({QStringLiteral("one"), QStringLiteral("two")});
    m_tabs->addPage(list, QStringLiteral("Tools"), true);
    auto* const room = new QVBoxLayout(m_content);
    room->addWidget(m_tabs);
    pane = windows()->createPane(QStringLiteral("Test"), QStringLiteral("T"), m_content, nullptr);
    pane->show(false);
    dock()->setFloating(true);
    take();
  }
  ~FloatingKeysTest() override { pane.reset(); }

  /// The system gives the keys to the list, as it does at a click.
  void take() {
    list->window()->activateWindow();
    // Tool windows call themselves active with the main window.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == list->window(); }));
    ASSERT_TRUE(list->isVisible());
    list->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), list);
  }
  void pullOut() {
    Q_EMIT m_tabs->tabBar()->tabBarDoubleClicked(0);
    ASSERT_NE(list->window(), dock());
    take();
  }
  /// To whatever has the keys now.
  void pressAnywhere(Qt::Key key) {
    QWidget* const focused = QApplication::focusWidget();
    QTest::keyClick(focused ? focused : QApplication::activeWindow(), key);
  }
  void expectKeysForTheCommandLine() {
    type("CIRCLE ");
    take();
    pressAnywhere(Qt::Key_Escape);
    EXPECT_FALSE(desktop().isBusy());
    take();
    pressAnywhere(Qt::Key_L);
    pressAnywhere(Qt::Key_Return);
    EXPECT_EQ(document().processor().runningCommands(), QStringList{QStringLiteral("LINE")})
        << "Enter ends the word that was begun";
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    press(Qt::Key_Escape);
    take();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->currentRow(), 1) << "the arrows are the list's";
  }

  QListWidget* list;
  KVPtr<IHostPane> pane;

 private:
  QWidget* m_content = new QWidget;
  HostTabs* m_tabs;
};

TEST_F(FloatingKeysTest, TheDrawingGetsTheKeysThatAPaneOfItsOwnWindowHad) {
  windows()->focusDrawing();
  EXPECT_FALSE(list->hasFocus()) << "at once: what is typed next is the drawing's";
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == &canvas(); }));
  EXPECT_EQ(QApplication::activeWindow(), &window());
}

TEST_F(FloatingKeysTest, WhatIsTypedOnAFloatingPaneLandsOnTheCommandLine) {
  expectKeysForTheCommandLine();
}

TEST_F(FloatingKeysTest, WhatIsTypedOnAPageThatWasPulledOutLandsOnTheCommandLine) {
  pullOut();
  expectKeysForTheCommandLine();
}

TEST_F(FloatingKeysTest, ShortcutsOfTheWindowWorkInAPageThatWasPulledOut) {
  pullOut();
  EXPECT_EQ(list->window()->parentWidget(), &window());
}

} // namespace
