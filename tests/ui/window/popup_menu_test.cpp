#include "ui/window/popup_menu_builder.h"

#include "palette_window_fixture.h"

#include <QCursor>

namespace {

using namespace tc;

struct Owner : ITcUiMenuOwner {
  QList<int> commands;
  void menuCommand(int command) override { commands << command; }
};

struct PopupMenu : testhost::PaletteWindowFixture {
  Owner owner;
  ITcUiMenuBuilder* builder = nullptr;

  PopupMenu() {
    open();
    builder = &part<ITcUiMenuBuilder>();
    builder->setOwnerWindow(&owner);
    QCursor::setPos(120, 90);
  }
  /// The menu that shows; null if there is none.
  static QMenu* shown() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
};

TEST_F(PopupMenu, StandsAtTheCursorWithTheWordsInOrder) {
  builder->showItemMenu(catalog);
  ASSERT_TRUE(shown());
  EXPECT_EQ(shown()->pos(), QCursor::pos());
  QStringList words;
  for (const QAction* const action : shown()->actions()) words << action->text();
  EXPECT_EQ(words, QStringList({"Create group", "Create palette", "Rename", "Import palette"}));
  shown()->close();
}

TEST_F(PopupMenu, TheChosenCommandGoesToTheOwnerAndTheMenuGoes) {
  builder->showItemMenu(catalog);
  const QPointer<QMenu> menu = shown();
  ASSERT_TRUE(menu);
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_EQ(owner.commands, QList<int>({102}));
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(menu);
  builder->showItemMenu(catalog);
  ASSERT_TRUE(shown());
  QTest::keyClick(shown(), Qt::Key_Escape);
  EXPECT_EQ(owner.commands.size(), 1) << "nothing was chosen";
}

TEST_F(PopupMenu, AToolHasAMenuWithoutEntriesWhichDoesNotShow) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  builder->showItemMenu(palette->enumTools()->next());
  EXPECT_FALSE(shown());
}

TEST_F(PopupMenu, AnOwnerThatHasGoneGetsNoCommand) {
  builder->showItemMenu(catalog);
  QMenu* const menu = shown();
  ASSERT_TRUE(menu);
  builder->setOwnerWindow(nullptr);
  menu->actions().first()->trigger();
  EXPECT_TRUE(owner.commands.isEmpty());
  menu->close();
}

TEST_F(PopupMenu, AMenuThatShowsGoesWithTheWindow) {
  builder->showItemMenu(catalog);
  const QPointer<QMenu> menu = shown();
  ASSERT_TRUE(menu);
  ITcUiPaletteSet::setInstance(nullptr);
  EXPECT_FALSE(menu);
}

} // namespace
