#include "ui/window/toolbar.h"

#include "palette_window_fixture.h"

#include <QMenu>
#include <QToolButton>

namespace {

using namespace tc;
struct Toolbar : testhost::PaletteWindowFixture {
  QWidget parent;
  std::vector<int> sent;
  TcUiToolbar bar{[this](int command) { sent.push_back(command); }};

  void make() { ASSERT_TRUE(bar.create(*controls.get(), parent)); }
};

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
  make();
  for (int i = 0; i < 4; ++i) button(i).click();
  EXPECT_EQ(sent, (std::vector<int>{40009, 40007, 40008, 40010}));
}

TEST_F(Toolbar, AMenuTakesThePlaceOfACommand) {
  make();
  QMenu menu;
  bar.setMenu(kCommandIconSize, &menu);
  EXPECT_EQ(button(1).menu(), &menu);
  Q_EMIT button(1).clicked();
  EXPECT_TRUE(sent.empty());
}

TEST_F(Toolbar, EveryButtonHasAPictureASizeAndANameToBeRead) {
  make();
  for (int i = 0; i < 4; ++i) {
    EXPECT_FALSE(button(i).icon().isNull()) << i;
    EXPECT_EQ(button(i).size(), QSize(20, 20)) << i;
    EXPECT_EQ(button(i).iconSize(), QSize(16, 16)) << i;
    EXPECT_FALSE(button(i).accessibleName().isEmpty()) << i;
  }
  EXPECT_EQ(button(0).toolTip(), QStringLiteral("Change active view"));
  EXPECT_EQ(button(3).toolTip(), QString());
}

TEST_F(Toolbar, WithoutAToolbarOfTheHostsThereIsNone) {
  controls->hasToolbars = false;
  EXPECT_FALSE(bar.create(*controls.get(), parent));
  EXPECT_EQ(bar.widget(), nullptr);
}

TEST_F(Toolbar, WithTheTreeShowingItsMenusDoNotOpen) {
  open();
  QMenu* const menu = ITcUiPaletteSet::instance()->sizeMenu();
  EXPECT_FALSE(button(1).isEnabled());
  QTest::mouseClick(&button(1), Qt::LeftButton);
  EXPECT_FALSE(menu->isVisible());
}

} // namespace
