#include "drafton/desktop/window_controls.h"

#include <QMenu>
#include <QPainter>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace drafton;

namespace {

struct Pressed : IHostToolbarEvents {
  std::vector<int> commands;
  void buttonPressed(int command) override { commands.push_back(command); }
};

struct WindowControlsTest : ::testing::Test {
  KVPtr<WindowControls> controls = kvMake<WindowControls>();
  QWidget parent;
  Pressed pressed;

  QIcon filled(const QColor& color) {
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
  }
};

TEST_F(WindowControlsTest, AToolbarTellsTheCommandsOfItsButtons) {
  IHostToolbar* const bar = controls->createToolbar(parent, pressed);
  bar->setSizes({20, 20}, {16, 16});
  bar->addButton(7, filled(Qt::red), QStringLiteral("Seven"), QStringLiteral("Says seven"));
  bar->addButton(9, filled(Qt::red), QString(), QStringLiteral("Says nine"));
  const auto buttons = bar->widget()->findChildren<QToolButton*>();
  ASSERT_EQ(buttons.size(), 2);
  EXPECT_EQ(buttons[0]->toolTip(), QStringLiteral("Seven"));
  EXPECT_EQ(buttons[0]->accessibleName(), QStringLiteral("Says seven"));
  EXPECT_EQ(buttons[1]->toolTip(), QString());
  EXPECT_EQ(buttons[0]->size(), QSize(20, 20));
  EXPECT_EQ(buttons[0]->iconSize(), QSize(16, 16));
  EXPECT_EQ(buttons[0]->focusPolicy(), Qt::TabFocus) << "reachable with the keyboard";
  buttons[0]->click();
  buttons[1]->click();
  EXPECT_EQ(pressed.commands, (std::vector<int>{7, 9}));
  EXPECT_EQ(bar->widget()->height(), bar->fixedHeight());
  EXPECT_GE(bar->fixedHeight(), 20);
  bar->setIcon(1, filled(Qt::blue));
  EXPECT_EQ(buttons[1]->icon().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue));
  bar->setIcon(2, filled(Qt::blue));
}

TEST_F(WindowControlsTest, AButtonWithAMenuDropsItDownUnlessItIsGrey) {
  IHostToolbar* const bar = controls->createToolbar(parent, pressed);
  bar->addButton(7, {}, {}, QStringLiteral("Seven"));
  QMenu menu;
  menu.addAction(QStringLiteral("one"));
  bar->setMenu(0, &menu);
  auto* const button = bar->widget()->findChild<QToolButton*>();
  EXPECT_GT(button->width(), 20) << "room for the arrow";
  bool isOpened = false;
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] {
    isOpened = true;
    QMetaObject::invokeMethod(&menu, &QWidget::close, Qt::QueuedConnection);
  });
  parent.show();
  bar->setEnabled(0, false);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_FALSE(isOpened);
  bar->setEnabled(0, true);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_TRUE(isOpened);
  EXPECT_TRUE(pressed.commands.empty());
  for (const int unknown : {-1, 1}) {
    bar->setMenu(unknown, &menu);
    bar->setEnabled(unknown, false);
  }
  EXPECT_TRUE(button->isEnabled());
}

TEST_F(WindowControlsTest, LabelsOfTabsAreShownAsTheyAre) {
  auto* const tabs = static_cast<HostTabs*>(controls->createTabs(parent));
  auto* const page = new QWidget;
  EXPECT_EQ(tabs->addPage(page, QStringLiteral("Nuts & Bolts"), false), 0);
  EXPECT_EQ(tabs->addPage(new QWidget, QStringLiteral("Other"), false), 1);
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("Nuts && Bolts"));
  tabs->setLabel(0, QStringLiteral("A & B"));
  tabs->setLabel(5, QStringLiteral("nobody"));
  EXPECT_EQ(tabs->tabText(0), QStringLiteral("A && B"));
  EXPECT_TRUE(tabs->isAncestorOf(page));
}

struct DetachedTabsTest : WindowControlsTest {
  HostTabs* tabs = static_cast<HostTabs*>(controls->createTabs(parent));
  QPointer<QWidget> page = new QWidget;

  void pullOut(int index) { Q_EMIT tabs->tabBar()->tabBarDoubleClicked(index); }
};

TEST_F(DetachedTabsTest, APageIsPulledOutAndClosedBackIn) {
  tabs->addPage(page, QStringLiteral("A & B"), true);
  parent.resize(300, 300);
  tabs->resize(300, 300);
  parent.show();
  pullOut(0);
  const QPointer<QWidget> window = tabs->detachedWindow(0);
  ASSERT_TRUE(window);
  EXPECT_TRUE(window->isAncestorOf(page));
  EXPECT_TRUE(page->isVisible());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("A & B"));
  EXPECT_EQ(window->size(), tabs->currentWidget()->size());
  tabs->setLabel(0, QStringLiteral("C & D"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("C & D"));
  pullOut(0);
  EXPECT_EQ(tabs->detachedWindow(0), window) << "once is enough";
  parent.hide();
  EXPECT_FALSE(window->isVisible()) << "it goes with the tabs";
  parent.show();
  EXPECT_TRUE(window->isVisible());
  window->close();
  EXPECT_EQ(tabs->detachedWindow(0), nullptr);
  EXPECT_TRUE(tabs->isAncestorOf(page));
  EXPECT_TRUE(page->isVisible());
}

TEST_F(DetachedTabsTest, OtherPagesStayWhereTheyAre) {
  tabs->addPage(page, QStringLiteral("Fixed"), false);
  parent.show();
  for (const int index : {0, 1, -1}) pullOut(index);
  EXPECT_EQ(tabs->detachedWindow(0), nullptr);
  EXPECT_TRUE(tabs->isAncestorOf(page));
}

TEST_F(DetachedTabsTest, APulledOutPageGoesWithItsTabs) {
  tabs->addPage(page, QStringLiteral("Tools"), true);
  parent.show();
  pullOut(0);
  const QPointer<QWidget> window = tabs->detachedWindow(0);
  delete tabs;
  EXPECT_FALSE(page);
  EXPECT_FALSE(window);
}

TEST_F(WindowControlsTest, ColumnsTakeTheirWidthsAndMayBeNothing) {
  IHostSplitter* const splitter = controls->createSplitter(parent);
  splitter->addColumn(new QWidget);
  splitter->addColumn(new QWidget);
  parent.show();
  splitter->widget()->resize(401 + 4, 100);
  QCoreApplication::processEvents();
  splitter->setWidths({100, 300});
  const std::vector<int> widths = splitter->widths();
  ASSERT_EQ(widths.size(), 2u);
  EXPECT_NEAR(widths[0], 100, 3);
  EXPECT_NEAR(widths[1], 300, 3);
  splitter->setWidths({0, 400});
  EXPECT_EQ(splitter->widths()[0], 0);
  EXPECT_GT(splitter->widths()[1], 390);
}

TEST_F(WindowControlsTest, BesideAColumnOfNoWidthStandsNoBar) {
  auto* const splitter = static_cast<HostSplitter*>(controls->createSplitter(parent));
  splitter->addColumn(new QWidget);
  splitter->addColumn(new QWidget);
  parent.show();
  splitter->resize(400, 100);
  for (const std::vector<int>& widths : {std::vector<int>{0, 400}, {400, 0}}) {
    splitter->setWidths(widths);
    QCoreApplication::processEvents();
    EXPECT_FALSE(splitter->handle(1)->isVisible());
    EXPECT_EQ(splitter->widths(), widths);
  }
  splitter->setWidths({100, 300});
  QCoreApplication::processEvents();
  EXPECT_TRUE(splitter->handle(1)->isVisible());
  EXPECT_NEAR(splitter->widths()[0], 100, 3);
}

TEST_F(WindowControlsTest, TheBarHasItsColour) {
  auto* const splitter = static_cast<HostSplitter*>(controls->createSplitter(parent));
  splitter->addColumn(new QWidget);
  splitter->addColumn(new QWidget);
  parent.resize(200, 100);
  splitter->resize(200, 100);
  parent.show();
  const auto barColor = [&] {
    return splitter->handle(1)->grab().toImage().pixel(1, splitter->height() / 2);
  };
  EXPECT_EQ(barColor(), splitter->palette().color(QPalette::Mid).rgb());
  splitter->setBarColor(QColor(10, 200, 30));
  EXPECT_EQ(barColor(), qRgb(10, 200, 30));
}

} // namespace
