#include "ui/window/list_view.h"

#include "drawing/database.h"
#include "palette_window_fixture.h"
#include "support/test_repetition.h"

#include <QHeaderView>
#include <QListView>
#include <QMenu>
#include <QTreeView>

namespace {

using namespace tc;
using testhost::host;

struct ListView : testhost::PaletteWindowFixture {
  testhost::TestDocument* document = nullptr;
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();

  ListView() { store().values[QStringLiteral("ActiveView")] = OdVariant(0); }

  ~ListView() override {
    if (document) document->databaseOfDocument = nullptr;
  }

  void openDrawing() {
    document = &host().documents.open(QStringLiteral("A.dxf"));
    document->databaseOfDocument = drawing.get();
  }
  static QAbstractItemView& view() { return list().shownView(); }
  QPoint placeOf(const QString& name) {
    for (int row = 0; row < list().rows().rowCount(); ++row) {
      const QModelIndex index = list().rows().index(row, 0);
      if (index.data().toString() == name) return view().visualRect(index).center();
    }
    return {};
  }
  void click(const QString& name, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, placeOf(name));
    settle();
  }
};

TEST_F(ListView, ShowsPalettesThatAreInNoGroupBeforeTheGroups) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  addPalette(QStringLiteral("Doors"), {}, group);
  addPalette(QStringLiteral("Walls"));
  open();
  select(*catalog);
  EXPECT_EQ(listed(), QStringList({QStringLiteral("Walls"), QStringLiteral("Plans")}));
  select(*group);
  EXPECT_EQ(listed(), QStringList(QStringLiteral("Doors")));
  EXPECT_NE(odrxCast<OdTcToolPalette>(list().rows().itemAt(list().rows().index(0, 0))), nullptr)
      << "a reference is shown as its palette";
}

TEST_F(ListView, AReferenceToNothingIsLeftOut) {
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  const OdTcPaletteSoftRefPtr reference = OdTcPaletteSoftRef::createObject();
  reference->setId(QStringLiteral("{nobody}"));
  group->addItem(reference);
  open();
  select(*group);
  EXPECT_TRUE(listed().isEmpty());
}

TEST_F(ListView, AToolInTheTreeLeavesItShowingTheToolsPalette) {
  const OdTcToolPalettePtr doors =
      addPalette(QStringLiteral("Doors"), {QStringLiteral("A"), QStringLiteral("B")});
  addPalette(QStringLiteral("Walls"), {QStringLiteral("C")});
  open();
  select(*doors);
  const OdTcTool* const tool = doors->enumTools()->next();
  ASSERT_TRUE(tree().selectById(tool->id()));
  EXPECT_EQ(tree().selectedItem(), tool);
  EXPECT_EQ(listed(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
}

TEST_F(ListView, ToolsStandInTheOrderOfTheirPalette) {
  const OdTcToolPalettePtr palette = addPalette(
      QStringLiteral("P"), {QStringLiteral("b"), QStringLiteral("A"), QStringLiteral("c")});
  open();
  for (const auto& [sort, expected] :
       {std::pair<int, QStringList>{OdTcPaletteUi::kByName, {"A", "b", "c"}},
        {OdTcPaletteUi::kByType, {"A", "b", "c"}}}) {
    palette->setSortType(sort);
    select(*catalog);
    select(*palette);
    EXPECT_EQ(listed(), expected) << sort;
  }
  OdArray<OdString> order;
  const auto tools = palette->enumTools();
  while (const OdTcTool* const tool = tools->next()) order.insertAt(0, tool->id());
  palette->setToolOrder(order);
  select(*catalog);
  select(*palette);
  EXPECT_EQ(listed(), QStringList({"c", "A", "b"}));
}

TEST_F(ListView, SortingKnowsTwoModes) {
  const OdTcToolPalettePtr palette =
      addPalette(QStringLiteral("P"), {QStringLiteral("b"), QStringLiteral("A")});
  palette->setToolOrder({});
  open();
  select(*palette);
  EXPECT_EQ(list().sort(2), 40);
  EXPECT_EQ(list().sort(-1), 40);
  EXPECT_EQ(listed(), QStringList({"b", "A"}));
  EXPECT_EQ(list().sort(0), 0);
  EXPECT_EQ(listed(), QStringList({"A", "b"}));
  EXPECT_EQ(list().sort(1), 0);
}

TEST_F(ListView, SortingByTypePutsToolsOfAKindTogether) {
  const OdTcToolPalettePtr palette =
      addPalette(QStringLiteral("P"), {QStringLiteral("b"), QStringLiteral("A")});
  for (const char* const name : {"z", "y"})
    addTool(*palette, QLatin1String(name))->setActionAgent(OdTcToolBlockCommand::createObject());
  palette->setToolOrder({});
  open();
  select(*palette);
  EXPECT_EQ(list().sort(1), 0);
  EXPECT_EQ(listed(), QStringList({"y", "z", "A", "b"})) << "blocks come before commands";
  EXPECT_EQ(list().sort(0), 0);
  EXPECT_EQ(listed(), QStringList({"A", "b", "y", "z"}));
}

TEST_F(ListView, ADoubleClickRunsTheToolOnce) {
  openDrawing();
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Line")});
  open();
  select(*palette);
  click(QStringLiteral("Line"));
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, placeOf(QStringLiteral("Line")));
  settle();
  EXPECT_EQ(document->sent.join(QString()).count(QStringLiteral("_LINE")), 1);
}

TEST_F(ListView, APlainClickRunsTheTool) {
  openDrawing();
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Line")});
  open();
  select(*palette);
  click(QStringLiteral("Line"));
  ASSERT_FALSE(document->sent.isEmpty());
  EXPECT_TRUE(document->sent.join(QString()).contains(QStringLiteral("_LINE")));
  EXPECT_EQ(windows->focusedDrawing, 1) << "the prompts that follow are answered at once";
}

TEST_F(ListView, TheHostRepeatsAToolAsLongAsItIsThere) {
  const auto repetition = kvMake<testhost::TestRepetition>();
  host().offer<IHostRepetition>(repetition.get());
  openDrawing();
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Line")});
  open();
  select(*palette);
  click(QStringLiteral("Line"));
  ASSERT_TRUE(repetition->last);
  EXPECT_EQ(repetition->last->name(), QStringLiteral("Line"));
  const QStringList first = document->sent;
  const KVPtr<IHostRepeatable> tool = repetition->last;
  document->sent.clear();
  tool->repeat();
  EXPECT_TRUE(document->sent.join(QString()).contains(first.join(QString())));
  document->sent.clear();
  palette->removeItem(palette->enumTools()->next()->id());
  tool->repeat();
  EXPECT_TRUE(document->sent.isEmpty());
  repetition->last.reset();
}

TEST_F(ListView, AClickWithShiftOrControlOnlySelects) {
  openDrawing();
  const OdTcToolPalettePtr palette =
      addPalette(QStringLiteral("P"), {QStringLiteral("A"), QStringLiteral("B")});
  open();
  select(*palette);
  click(QStringLiteral("A"), Qt::ControlModifier);
  click(QStringLiteral("B"), Qt::ControlModifier);
  EXPECT_EQ(view().selectionModel()->selectedIndexes().size(), 2);
  click(QStringLiteral("B"), Qt::ShiftModifier);
  EXPECT_TRUE(document->sent.isEmpty());
}

TEST_F(ListView, AClickWithoutADrawingRunsNothing) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  open();
  select(*palette);
  click(QStringLiteral("A"));
  openDrawing();
  document->databaseOfDocument = nullptr;
  click(QStringLiteral("A"));
  EXPECT_TRUE(document->sent.isEmpty());
}

TEST_F(ListView, ARightClickBesideTheRowsClearsTheMark) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  open();
  select(*palette);
  click(QStringLiteral("A"));
  EXPECT_TRUE(view().currentIndex().isValid());
  QTest::mouseClick(view().viewport(), Qt::RightButton, {},
                    view().viewport()->rect().bottomRight() - QPoint(2, 2));
  settle();
  EXPECT_FALSE(view().currentIndex().isValid());
}

TEST_F(ListView, EnterAndADoubleClickOpenGroupsAndPalettes) {
  openDrawing();
  const OdTcGroupPtr group = addGroup(QStringLiteral("Plans"));
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")}, group);
  open();
  select(*catalog);
  view().setCurrentIndex(list().rows().index(0, 0));
  QTest::keyClick(&view(), Qt::Key_Return);
  EXPECT_EQ(listed(), QStringList("P"));
  EXPECT_EQ(tree().selectedItem(), group.get());
  EXPECT_TRUE(tree().isExpanded(tree().catalogs().indexOf(group)));
  click(QStringLiteral("P"));
  EXPECT_EQ(listed(), QStringList("P"));
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, placeOf(QStringLiteral("P")));
  EXPECT_EQ(listed(), QStringList("A"));
  EXPECT_EQ(tree().selectedItem(), palette.get());
  view().setCurrentIndex(list().rows().index(0, 0));
  QTest::keyClick(&view(), Qt::Key_Enter);
  EXPECT_EQ(listed(), QStringList("A")) << "a tool leaves the list as it is";
  EXPECT_TRUE(document->sent.isEmpty());
}

TEST_F(ListView, TheSpaceBarRunsTheToolAndBackspaceGoesUp) {
  openDrawing();
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  open();
  select(*palette);
  view().setCurrentIndex(list().rows().index(0, 0));
  QTest::keyClick(&view(), Qt::Key_Space);
  EXPECT_FALSE(document->sent.isEmpty());
  QTest::keyClick(&view(), Qt::Key_Backspace);
  EXPECT_EQ(tree().selectedItem(), catalog.get());
  QTest::keyClick(&view(), Qt::Key_Backspace);
  EXPECT_EQ(tree().selectedItem(), catalog.get()) << "nothing stands above a catalog";
}

TEST_F(ListView, DetailsWithoutStoredWidthsTakeHalfEach) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  palette->enumTools()->next()->setDescription(QStringLiteral("What it does"));
  TcUiPaletteSet& window = open();
  select(*palette);
  window.dispatchCommand(kCommandDetailsStyle);
  const auto* const details = list().findChild<QTreeView*>();
  EXPECT_TRUE(details->isVisible());
  EXPECT_EQ(details->columnWidth(0), details->viewport()->width() / 2);
  EXPECT_EQ(details->columnWidth(1), details->viewport()->width() / 2);
  EXPECT_EQ(details->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
  EXPECT_EQ(details->model()->headerData(1, Qt::Horizontal).toString(),
            QStringLiteral("Description"));
  EXPECT_EQ(list().rows().index(0, 1).data().toString(), QStringLiteral("What it does"));
}

TEST_F(ListView, StoredWidthsOfDetailsComeBack) {
  store().values[QStringLiteral("ViewStyle")] = OdVariant(std::uint32_t{1});
  store().values[QStringLiteral("NameClmn")] = OdVariant(70);
  store().values[QStringLiteral("DescClmn")] = OdVariant(90);
  TcUiPaletteSet& window = open();
  auto* const details = list().findChild<QTreeView*>();
  EXPECT_EQ(details->columnWidth(0), 70);
  EXPECT_EQ(details->columnWidth(1), 90);
  details->setColumnWidth(0, 120);
  window.dispatchCommand(kCommandListStyle);
  window.dispatchCommand(kCommandDetailsStyle);
  EXPECT_EQ(details->columnWidth(0), 120) << "it stays through other styles";
  ITcUiPaletteSet::setInstance(nullptr);
  EXPECT_EQ(store().values[QStringLiteral("NameClmn")].toInt32(), 120);
}

TEST_F(ListView, AStoredStyleOfTwoSetsNone) {
  store().values[QStringLiteral("ViewStyle")] = OdVariant(std::uint32_t{2});
  TcUiPaletteSet& window = open();
  EXPECT_EQ(list().viewStyle(), kIconStyle);
  EXPECT_TRUE(checked(window.viewMenu()).isEmpty()) << "nothing was put in force";
}

TEST_F(ListView, StoredSizesArePutInForceAndOthersAreNot) {
  manager().setViewSetting(3);
  store().values[QStringLiteral("IconSize")] = OdVariant(2);
  EXPECT_EQ(checked(open().sizeMenu()), QStringList(QStringLiteral("Normal"))) << "as before";
  EXPECT_EQ(manager().viewSetting(), 3u);
  store().values[QStringLiteral("IconSize")] = OdVariant(4);
  ITcUiPaletteSet::setInstance(nullptr);
  manager().setViewSetting(3);
  store().values[QStringLiteral("IconSize")] = OdVariant(4);
  EXPECT_EQ(checked(open().sizeMenu()), QStringList(QStringLiteral("Large")));
  EXPECT_EQ(manager().viewSetting(), 4u);
}

TEST_F(ListView, FollowsWhatIsAddedAndRemoved) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("A")});
  open();
  select(*palette);
  const OdTcToolPtr added = addTool(*palette, QStringLiteral("B"));
  settle();
  EXPECT_EQ(listed(), QStringList({"A", "B"}));
  palette->removeItem(added->id());
  EXPECT_EQ(listed(), QStringList("A"));
  catalog->removeItem(palette->id());
  EXPECT_TRUE(listed().isEmpty());
}

int darkPixels(QWidget& widget) {
  const QImage picture = widget.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
  int count = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y).lightness() < 100;
  return count;
}

TEST_F(ListView, WhatCameWhileTheTreeShowedIsPaintedWhenTheListUnfolds) {
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), {QStringLiteral("Alpha")});
  store().values[QStringLiteral("ActiveView")] = OdVariant(1);
  TcUiPaletteSet& window = open();
  select(*palette);
  settle();
  for (const int style : {6100, 6120, 6130, 6110}) {
    window.dispatchCommand(kCommandToggleView);
    window.dispatchCommand(style);
    settle();
    EXPECT_GT(darkPixels(view()), 50) << style;
    window.dispatchCommand(kCommandToggleView);
    select(*catalog);
    select(*palette);
    settle();
  }
}

TEST_F(ListView, OfTenThousandToolsOnlyThoseInSightShowTheirPictures) {
  QStringList tools;
  for (int i = 0; i < 10000; ++i) tools << QStringLiteral("Tool %1").arg(i);
  const OdTcToolPalettePtr palette = addPalette(QStringLiteral("P"), tools);
  open();
  select(*palette);
  settle();
  EXPECT_EQ(list().rows().rowCount(), 10000);
  EXPECT_LT(frame().pictures().count(), 500);
}

} // namespace
