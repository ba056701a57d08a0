// The palette window while palettes are still to come.
#include "catalog/catalog_loading.h"

#include "frame/file_path.h"
#include "palette_window_fixture.h"
#include "support/test_idle.h"
#include "ui/window/loading_note.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

using namespace tc;

struct PalettesToCome : testhost::PaletteWindowFixture {
  KVPtr<testhost::TestIdle> idle = kvMake<testhost::TestIdle>();
  OdTcGroupPtr group;
  OdTcToolPalettePtr doors, walls, roofs;
  OdString file;

  /// The catalog is saved with a group that holds Doors and Walls, and Roofs beside it.
  PalettesToCome() {
    group = addGroup(QStringLiteral("Plans"));
    doors = addPalette(QStringLiteral("Doors"), {QStringLiteral("A"), QStringLiteral("B")}, group);
    walls = addPalette(QStringLiteral("Walls"), {QStringLiteral("C")}, group);
    roofs = addPalette(QStringLiteral("Roofs"), {QStringLiteral("D")});
    for (const OdTcToolPalettePtr& palette : {doors, walls, roofs}) EXPECT_TRUE(palette->save());
    EXPECT_TRUE(catalog->save());
    file = catalog->path();
    testhost::host().offer<IHostIdle>(idle.get());
  }

  /// As the next start finds it: the window closed, the catalog loaded anew, its palettes to come.
  void closeAll() {
    ITcUiPaletteSet::setInstance(nullptr);
    manager().removeCatalog(file);
    catalog = nullptr;
  }
  void openAll() {
    manager().openCatalog(file);
    const auto all = manager().catalogsEnum();
    OdString at;
    OdTcCatalog* found = nullptr;
    all->next(at, found);
    catalog = OdTcCatalogPtr(found);
    open();
  }
  void piece() {
    idle->doPiece();
    settle();
  }
  int pending() { return catalog->loading()->pendingCount(); }
  TcUiCatalogModel& model() { return tree().catalogs(); }
  QModelIndex at(const OdString& id) { return model().indexOfId(id); }
  /// The rows of the tree, a palette below a group as "Plans/Doors".
  QStringList shown() {
    QStringList rows;
    const QModelIndex root = model().index(0, 0);
    for (int row = 0; row < model().rowCount(root); ++row) {
      const QModelIndex index = model().index(row, 0, root);
      rows << index.data().toString();
      if (index.data() == QStringLiteral("Plans"))
        for (const QString& name : names(model(), index)) rows << QStringLiteral("Plans/") + name;
    }
    return rows;
  }
  OdVariant stored(const QString& key) { return store().values.value(key); }
};

TEST_F(PalettesToCome, TheTreeShowsGroupsAtOnceAndPalettesAsTheyCome) {
  closeAll();
  openAll();
  const QAbstractItemModelTester tester(&model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(shown(), QStringList("Plans"));
  EXPECT_EQ(pending(), 3) << "showing the tree reads none";
  piece();
  EXPECT_EQ(shown(), QStringList({"Plans", "Plans/Doors"}));
  EXPECT_EQ(names(model(), at(doors->id())), QStringList({"A", "B"}));
  catalog->loading()->loadWaiting(roofs->id());
  settle();
  EXPECT_EQ(shown(), QStringList({"Plans", "Plans/Doors", "Roofs"}));
  piece();
  EXPECT_EQ(shown(), QStringList({"Plans", "Plans/Doors", "Plans/Walls", "Roofs"}));
  EXPECT_EQ(pending(), 0);
}

TEST_F(PalettesToCome, ATreeThatWasExpandedTakesThemIn) {
  closeAll();
  openAll();
  tree().expand(at(group->id()));
  piece();
  EXPECT_TRUE(tree().isExpanded(at(group->id())));
  EXPECT_FALSE(tree().visualRect(at(doors->id())).isEmpty());
}

TEST_F(PalettesToCome, AListOfAGroupOrCatalogTakesThemIn) {
  closeAll();
  openAll();
  tree().selectById(group->id());
  EXPECT_EQ(listed(), QStringList());
  piece();
  EXPECT_EQ(listed(), QStringList("Doors"));
  tree().selectById(catalog->id());
  EXPECT_EQ(listed(), QStringList("Plans"));
  idle->doAll();
  settle();
  EXPECT_EQ(listed(), QStringList({"Roofs", "Plans"}));
  tree().selectById(group->id());
  EXPECT_EQ(listed(), QStringList({"Doors", "Walls"}));
  EXPECT_EQ(pending(), 0);
}

TEST_F(PalettesToCome, LookingAroundReadsNone) {
  closeAll();
  openAll();
  for (const OdString& id : {catalog->id(), group->id()}) {
    tree().selectById(id);
    list().grab();
    tree().grab();
    (void)at(id).data(Qt::ToolTipRole);
  }
  EXPECT_FALSE(tree().selectById(roofs->id()));
  for (const int command : {kCommandSmallIcons, kCommandDetailsStyle, kCommandToggleView})
    ITcUiPaletteSet::instance()->dispatchCommand(command);
  ITcUiPaletteSet::instance()->refresh();
  settle();
  EXPECT_EQ(pending(), 3);
}

TEST_F(PalettesToCome, ARememberedSelectionComesFirstAndIsSelected) {
  open();
  select(*roofs);
  closeAll();
  openAll();
  EXPECT_EQ(shown(), QStringList({"Plans", "Roofs"})) << "before the host was idle at all";
  EXPECT_EQ(pending(), 2);
  ASSERT_TRUE(tree().selectedItem());
  EXPECT_EQ(tree().selectedItem()->id(), roofs->id());
  EXPECT_EQ(listed(), QStringList("D"));
}

TEST_F(PalettesToCome, WhatWasExpandedIsExpandedWhenItComes) {
  open();
  for (const OdTcCatalogItemPtr& item : {OdTcCatalogItemPtr(group), OdTcCatalogItemPtr(walls)})
    tree().expand(at(item->id()));
  closeAll();
  openAll();
  idle->doAll();
  settle();
  EXPECT_TRUE(tree().isExpanded(at(group->id())));
  EXPECT_TRUE(tree().isExpanded(at(walls->id())));
  EXPECT_FALSE(tree().isExpanded(at(doors->id())));
}

TEST_F(PalettesToCome, AWindowThatClosesInTheMiddleForgetsNothing) {
  open();
  tree().expand(at(group->id()));
  tree().expand(at(walls->id()));
  select(*doors);
  closeAll();
  const OdVariant expanded = stored(QStringLiteral("ExpandedItems"));
  ASSERT_TRUE(expanded.toString().contains(walls->id()));
  // The palette that was selected cannot be read until the window closes again.
  const QString palette = odpath::toPlatform(doors->getPath());
  ASSERT_TRUE(QFile::rename(palette, palette + QStringLiteral(".away")));
  openAll();
  ASSERT_GT(pending(), 0);
  closeAll();
  EXPECT_EQ(stored(QStringLiteral("ExpandedItems")).toString(), expanded.toString());
  EXPECT_EQ(stored(QStringLiteral("LastSelected")).toString(), doors->id());
}

TEST_F(PalettesToCome, WhatIsGoneForGoodIsForgotten) {
  open();
  tree().expand(at(walls->id()));
  select(*doors);
  closeAll();
  for (const OdTcToolPalettePtr& palette : {doors, walls})
    ASSERT_TRUE(QFile::remove(odpath::toPlatform(palette->getPath())));
  openAll();
  idle->doAll();
  settle();
  closeAll();
  EXPECT_FALSE(stored(QStringLiteral("ExpandedItems")).toString().contains(walls->id()));
  EXPECT_EQ(stored(QStringLiteral("LastSelected")).toString(), OdString());
}

TEST_F(PalettesToCome, WhatTheUserSelectsMeanwhileStaysSelected) {
  open();
  select(*walls);
  closeAll();
  manager().openCatalog(file);
  ITcUiPaletteSet::setInstance(TcUiPaletteSet::create());
  tree().selectById(group->id());
  settle();
  idle->doAll();
  settle();
  EXPECT_EQ(tree().selectedItem()->id(), group->id());
}

TEST_F(PalettesToCome, AWindowThatIsHiddenOrGoneDoesNotStopThem) {
  closeAll();
  openAll();
  ITcUiPaletteSet::instance()->close();
  piece();
  EXPECT_EQ(pending(), 2);
  ITcUiPaletteSet::setInstance(nullptr);
  idle->doAll();
  EXPECT_EQ(pending(), 0);
  open();
  EXPECT_EQ(shown(), QStringList({"Plans", "Plans/Doors", "Plans/Walls", "Roofs"}));
}

TEST_F(PalettesToCome, ACatalogThatGoesInTheMiddleLeavesTheTree) {
  closeAll();
  openAll();
  tree().selectById(group->id());
  piece();
  manager().removeCatalog(file);
  settle();
  EXPECT_EQ(model().rowCount(), 0);
  idle->doAll();
  settle();
  EXPECT_EQ(model().rowCount(), 0);
}

TEST_F(PalettesToCome, ManyThatComeAtOnceAreOneInsertion) {
  closeAll();
  openAll();
  QSignalSpy inserted(&model(), &QAbstractItemModel::rowsInserted);
  EXPECT_TRUE(catalog->findPalette(roofs->id()));
  EXPECT_EQ(inserted.size(), 0);
  settle();
  EXPECT_EQ(inserted.size(), 2) << "those of the group, and that beside it";
}

TEST_F(PalettesToCome, ANoteTellsHowManyAreLeftUntilAllAreThere) {
  closeAll();
  openAll();
  TcUiLoadingNote note(model(), 0);
  EXPECT_FALSE(note.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return note.isVisible(); }));
  EXPECT_EQ(note.text(), QStringLiteral("Reading palettes, 3 to go..."));
  piece();
  const QString two = QStringLiteral("Reading palettes, 2 to go...");
  EXPECT_TRUE(QTest::qWaitFor([&] { return note.text() == two; })) << note.text().toStdString();
  idle->doAll();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !note.isVisible(); }));
}

TEST_F(PalettesToCome, NoNoteShowsWhereNothingIsLeft) {
  open();
  TcUiLoadingNote note(model(), 0);
  settle();
  EXPECT_FALSE(note.isVisible());
  // Palettes may have to come later, with another catalog.
  manager().removeCatalog(file);
  manager().openCatalog(file);
  EXPECT_TRUE(QTest::qWaitFor([&] { return note.isVisible(); }));
}

} // namespace
