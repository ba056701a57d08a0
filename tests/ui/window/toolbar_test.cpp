#include "ui/window/toolbar.h"

#include "palette_window_fixture.h"

#include <QMenu>
#include <QToolButton>

namespace {

using namespace tc;
using Toolbar = testhost::PaletteWindowFixture;

TEST_F(Toolbar, TipsComeByNumberAndTheFourthIsEmpty) {
  EXPECT_EQ(TcUiToolbar::tipOf(1), QStringLiteral("Change active view"));
  EXPECT_EQ(TcUiToolbar::tipOf(2), QStringLiteral("Change icon size"));
  EXPECT_EQ(TcUiToolbar::tipOf(3), QStringLiteral("Change view style"));
  for (const int button : {0, 4, 5, -1}) EXPECT_EQ(TcUiToolbar::tipOf(button), QString());
}

TEST_F(Toolbar, ATipHas64CharactersAtMost) {
  testhost::host().translations[QStringLiteral("Change icon size")] = QString(100, u'x');
  EXPECT_EQ(TcUiToolbar::tipOf(2), QString(64, u'x'));
}

TEST_F(Toolbar, ButtonsSendTheirCommandsInOrder) {
  std::vector<int> sent;
  TcUiToolbar bar([&](int command) { sent.push_back(command); });
  for (int i = 0; i < 4; ++i) bar.button(i)->click();
  EXPECT_EQ(sent, (std::vector<int>{40009, 40007, 40008, 40010}));
}

TEST_F(Toolbar, AMenuTakesThePlaceOfACommand) {
  std::vector<int> sent;
  TcUiToolbar bar([&](int command) { sent.push_back(command); });
  QMenu menu;
  bar.setMenu(kCommandIconSize, &menu);
  EXPECT_EQ(bar.button(1)->menu(), &menu);
  Q_EMIT bar.button(1)->clicked();
  EXPECT_TRUE(sent.empty());
}

TEST_F(Toolbar, EveryButtonHasAPictureASizeAndANameToBeRead) {
  TcUiToolbar bar([](int) {});
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(bar.button(i)->icon().isNull()) << i;
    EXPECT_EQ(bar.button(i)->size(), QSize(20, 20)) << i;
    EXPECT_EQ(bar.button(i)->iconSize(), QSize(16, 16)) << i;
    EXPECT_FALSE(bar.button(i)->accessibleName().isEmpty()) << i;
  }
}

TEST_F(Toolbar, WithTheTreeShowingItsMenusDoNotOpen) {
  open();
  QMenu* const menu = ITcUiPaletteSet::instance()->sizeMenu();
  EXPECT_FALSE(button(1).isEnabled());
  QTest::mouseClick(&button(1), Qt::LeftButton);
  EXPECT_FALSE(menu->isVisible());
}

TEST_F(Toolbar, ItsPicturesFollowTheTheme) {
  TcUiToolbar bar([](int) {});
  const auto inkOf = [&] {
    return bar.button(2)->icon().pixmap(16, 16).toImage().pixelColor(10, 8);
  };
  QPalette palette = bar.palette();
  palette.setColor(QPalette::ButtonText, Qt::white);
  bar.setPalette(palette);
  const QColor light = inkOf();
  palette.setColor(QPalette::ButtonText, Qt::black);
  bar.setPalette(palette);
  EXPECT_GT(light.lightness(), inkOf().lightness() + 100);
}

} // namespace
