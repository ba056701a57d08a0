// What the palette window stores, and what comes back of it.
#include "palette_window_fixture.h"

#include <QTreeView>

namespace {

using namespace tc;
using testhost::host;
using PaletteWindowState = testhost::PaletteWindowFixture;
using testhost::TestControls;

TEST_F(PaletteWindowState, AStoredListShowsInFullWidth) {
  store().values[QStringLiteral("ActiveView")] = OdVariant(0);
  TcUiPaletteSet& window = open();
  EXPECT_EQ(window.activeView(), 0);
  EXPECT_EQ(frame().widths()[0], 0);
  EXPECT_GE(frame().widths()[1], 200);
  EXPECT_FALSE(frame().bothPanesVisible());
  EXPECT_TRUE(button(1).isEnabled());
  EXPECT_TRUE(button(2).isEnabled());
}

TEST_F(PaletteWindowState, TogglingIsStoredAtOnceAndShownAfterARestart) {
  open().dispatchCommand(kCommandToggleView);
  EXPECT_EQ(store().values[QStringLiteral("ActiveView")].toInt32(), 0);
  EXPECT_EQ(frame().widths()[0], 0);
  EXPECT_EQ(restart().activeView(), 0);
  ITcUiPaletteSet::instance()->dispatchCommand(kCommandToggleView);
  EXPECT_EQ(store().values[QStringLiteral("ActiveView")].toInt32(), 1);
  EXPECT_EQ(frame().widths()[1], 0);
}

TEST_F(PaletteWindowState, AnyOtherStoredViewLeavesTheColumnsAndTogglesToTheTree) {
  store().values[QStringLiteral("ActiveView")] = OdVariant(2);
  TcUiPaletteSet& window = open();
  EXPECT_TRUE(frame().bothPanesVisible());
  EXPECT_TRUE(button(1).isEnabled()) << "the list shows as well";
  window.setActiveView(7);
  EXPECT_FALSE(button(1).isEnabled());
  window.dispatchCommand(kCommandToggleView);
  EXPECT_EQ(window.activeView(), 1);
}

TEST_F(PaletteWindowState, EmptyAndUnknownPiecesOfWhatWasExpandedAreSkipped) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  addPalette(QStringLiteral("Doors"), {}, group);
  addPalette(QStringLiteral("Walls"), {QStringLiteral("Wall")});
  store().values[QStringLiteral("ExpandedItems")] =
      OdVariant(QStringLiteral("||{gone}||") + group->id() + u'|');
  store().values[QStringLiteral("LastSelected")] = OdVariant(OdString(QStringLiteral("{gone}")));
  open();
  EXPECT_TRUE(tree().isExpanded(tree().catalogs().indexOf(group)));
  const QModelIndex walls = tree().catalogs().index(1, 0, tree().catalogs().indexOf(catalog));
  ASSERT_EQ(walls.data().toString(), QStringLiteral("Walls"));
  EXPECT_FALSE(tree().isExpanded(walls));
  EXPECT_EQ(tree().selectedItem(), nullptr);
}

TEST_F(PaletteWindowState, ItsStateComesBackAtTheNextStart) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  const OdTcToolPalettePtr palette =
      addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")}, group);
  TcUiPaletteSet& window = open();
  tree().selectById(palette->id());
  tree().expand(tree().catalogs().indexOf(group));
  window.dispatchCommand(kCommandToggleView);
  window.dispatchCommand(kCommandDetailsStyle);
  window.dispatchCommand(kCommandLargeIcons);
  ITcUiPaletteSet::setInstance(nullptr);
  EXPECT_EQ(store().values[QStringLiteral("IconSize")], OdVariant(std::int32_t{4}));
  EXPECT_EQ(store().values[QStringLiteral("ViewStyle")],
            OdVariant(static_cast<std::uint32_t>(kDetailsStyle)));
  // The manager of the next start knows of nothing.
  manager().setViewSetting(1);
  open();
  EXPECT_EQ(store().values[QStringLiteral("ExpandedItems")].toString(),
            catalog->id() + u'|' + group->id());
  EXPECT_EQ(tree().selectedItem(), palette.get());
  EXPECT_TRUE(tree().isExpanded(tree().catalogs().indexOf(group)));
  EXPECT_EQ(list().viewStyle(), kDetailsStyle);
  EXPECT_EQ(manager().viewSetting(), 4u);
  EXPECT_EQ(listed(), QStringList(QStringLiteral("Door")));
}

TEST_F(PaletteWindowState, StoredColumnWidthsAreTaken) {
  store().values[QStringLiteral("ActiveView")] = OdVariant(2);
  store().values[QStringLiteral("Col0")] = OdVariant(100);
  store().values[QStringLiteral("Col1")] = OdVariant(300);
  open();
  EXPECT_EQ(controls->splitter->asked.first(), std::vector<int>({100, 300}));
  EXPECT_LT(frame().widths()[0] * 2, frame().widths()[1]);
  const std::vector<int> shown = frame().widths();
  ITcUiPaletteSet::setInstance(nullptr);
  EXPECT_EQ(store().values[QStringLiteral("Col0")], OdVariant(std::int32_t{shown[0]}));
  EXPECT_EQ(store().values[QStringLiteral("Col1")], OdVariant(std::int32_t{shown[1]}));
}

TEST_F(PaletteWindowState, OneStoredColumnLeavesTheOtherAt200) {
  store().values[QStringLiteral("Col1")] = OdVariant(90);
  open();
  EXPECT_EQ(controls->splitter->asked.first(), std::vector<int>({200, 90}));
}

TEST_F(PaletteWindowState, TheViewIsStoredWhenTheWindowGoesToo) {
  open().setActiveView(0);
  EXPECT_FALSE(store().values.contains(QStringLiteral("ActiveView"))) << "nobody toggled";
  ITcUiPaletteSet::setInstance(nullptr);
  EXPECT_EQ(store().values[QStringLiteral("ActiveView")], OdVariant(std::int32_t{0}));
}

TEST_F(PaletteWindowState, BothColumnsOfTheDetailsAreStored) {
  TcUiPaletteSet& window = open();
  window.dispatchCommand(kCommandDetailsStyle);
  auto& details = static_cast<QTreeView&>(list().shownView());
  details.setColumnWidth(0, 110);
  details.setColumnWidth(1, 70);
  restart();
  EXPECT_EQ(store().values[QStringLiteral("NameClmn")], OdVariant(std::int32_t{110}));
  EXPECT_EQ(store().values[QStringLiteral("DescClmn")], OdVariant(std::int32_t{70}));
  auto& again = static_cast<QTreeView&>(list().shownView());
  EXPECT_EQ(again.columnWidth(0), 110);
  EXPECT_EQ(again.columnWidth(1), 70);
}

TEST_F(PaletteWindowState, ASelectedToolIsRememberedAsItsPalette) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("Doors"), {QStringLiteral("Door")});
  open();
  ASSERT_TRUE(tree().selectById(palette->enumTools()->next()->id()));
  restart();
  EXPECT_EQ(store().values[QStringLiteral("LastSelected")].toString(), palette->id());
  EXPECT_EQ(tree().selectedItem(), palette.get());
}

} // namespace
