#include "catalog/catalog_loading.h"

#include "catalog/catalog_fixture.h"
#include "catalog/group_impl.h"
#include "host/message_box.h"
#include "support/test_idle.h"

#include <algorithm>
#include <functional>

namespace {

using namespace testhost;

/// Notes which palettes come, and how many were there then.
struct ArrivalLog : OdTcCatalogItemReactor {
  QStringList log;
  std::function<void(OdTcCatalogItem*)> onAdded = [](OdTcCatalogItem*) {};
  void itemAdded(OdTcCatalogItem* item) override {
    log << u"+"_s + item->name();
    onAdded(item);
  }
  void itemChanged(OdTcCatalogItem* item) override {
    log << u"all of "_s + item->elementName() + OdString::number(pendingIn(item));
  }
  static int pendingIn(OdTcCatalogItem* item) {
    return static_cast<OdTcCatalog*>(item)->loading()->pendingCount();
  }
};

class CatalogLoadingTest : public CatalogFixture {
 protected:
  /// Seven loaders: A to C are whole, X is cut off, M has no file, and two files with one id of
  /// their own, which no loader has, stand behind E and F. Groups name A, M, X, and that id.
  OdString writeAll(const OdString& name) const {
    const auto file = [&](const char* palette) {
      return name + u"\\Palettes\\"_s + QLatin1String(palette) + u".dtc"_s;
    };
    writeFile(file("a"), paletteXml("A", "Alpha"));
    writeFile(file("b"), paletteXml("B", "Beta"));
    writeFile(file("c"), paletteXml("C", "Gamma"));
    writeFile(file("x"), paletteXml("X", "Broken").left(60));
    writeFile(file("e"), paletteXml("OWN", "First of one id"));
    writeFile(file("f"), paletteXml("OWN", "Second of one id"));
    QByteArray loaders;
    for (const char* const id : {"A", "X", "E", "B", "M", "F", "C"})
      loaders += loaderXml(id, QByteArray("Palettes\\") + QByteArray(id).toLower() + ".dtc");
    const QByteArray groups =
        groupXml("G", "<ToolPalette ID=\"A\"/><ToolPalette ID=\"M\"/>" +
                          groupXml("H", "<ToolPalette ID=\"OWN\"/><ToolPalette ID=\"X\"/>"));
    const OdString catalog = name + u"\\DrfTcCatalog.dtc"_s;
    writeFile(catalog,
              catalogXml(loaders, groups)
                  .replace("</Catalog>",
                           "<CatalogItemOrder><ID>C</ID><ID>A</ID></CatalogItemOrder></Catalog>"));
    return stored(catalog);
  }
  OdTcCatalogPtr begun(const OdString& path) const {
    OdTcCatalogPtr catalog = OdTcCatalog::createObject();
    EXPECT_TRUE(catalog->beginLoad(path));
    return catalog;
  }
  static QStringList soFar(const OdTcCatalog& catalog) {
    return namesOf(catalog.loading()->palettesSoFar());
  }
  /// Everything that can be told of a catalog and its palettes.
  static QStringList told(const OdTcCatalog& catalog) {
    QStringList all;
    const auto palettes = catalog.palettesEnum();
    while (const OdTcToolPalette* const palette = palettes->next())
      all << palette->id() + u' ' + palette->name() + u' ' + palette->getPath() +
                 (palette->isReferenced() ? u" referenced"_s : OdString()) +
                 (palette->catalog() == &catalog ? OdString() : u" astray"_s) +
                 (palette->owner() == &catalog ? OdString() : u" unowned"_s) +
                 (palette->isModified() ? u" modified"_s : OdString()) + u' ' +
                 OdString::number(palette->numRefs());
    const auto loaders = catalog.loadersEnum();
    while (const OdTcCatalogItem* const loader = loaders->next())
      all << u"loader "_s + loader->id();
    for (const OdString& id : catalog.orderList()) all << u"order "_s + id;
    all << (catalog.isModified() ? u"modified"_s : u"unmodified"_s);
    return all;
  }
  /// What was printed, without the folder's name.
  static QStringList printed(const OdString& folder) {
    QStringList lines;
    for (const OdString& line : theHost().log)
      if (line.startsWith(u"print")) lines << OdString(line).replace(folder, OdString());
    lines.sort();
    return lines;
  }
};

TEST_F(CatalogLoadingTest, ShowsGroupsAtOnceAndPalettesInTheOrderOfTheirLoaders) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  EXPECT_EQ(catalog->loading()->pendingCount(), 7);
  EXPECT_EQ(catalog->groups()->count(), 1);
  EXPECT_EQ(soFar(*catalog), QStringList());
  ArrivalLog log;
  catalog->addReactor(&log);
  EXPECT_TRUE(catalog->loading()->loadWaiting(u"B"_s));
  EXPECT_FALSE(catalog->loading()->loadWaiting(u"B"_s)) << "it is there";
  EXPECT_FALSE(catalog->loading()->loadWaiting(u"nobody"_s));
  EXPECT_TRUE(catalog->loading()->loadWaiting(u"C"_s));
  EXPECT_TRUE(catalog->loading()->loadNext());
  EXPECT_EQ(soFar(*catalog), QStringList({u"Alpha"_s, u"Beta"_s, u"Gamma"_s}));
  EXPECT_EQ(catalog->loading()->pendingCount(), 4) << "looking at them loads nothing";
  EXPECT_EQ(catalog->loading()->findSoFar(u"B"_s)->name(), u"Beta"_s);
  EXPECT_EQ(catalog->loading()->findSoFar(u"X"_s), nullptr);
  while (catalog->loading()->loadNext()) {
  }
  EXPECT_EQ(log.log,
            QStringList({u"+Beta"_s, u"+Gamma"_s, u"+Alpha"_s, u"+X"_s, u"+First of one id"_s,
                         u"+Second of one id"_s, u"all of Catalog0"_s}));
  EXPECT_EQ(soFar(*catalog), QStringList({u"Alpha"_s, u"X"_s, u"First of one id"_s, u"Beta"_s,
                                          u"Second of one id"_s, u"Gamma"_s}));
  EXPECT_FALSE(catalog->loading()->loadNext());
}

TEST_F(CatalogLoadingTest, APaletteStandsInItsPlaceWhenItIsTold) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadWaiting(u"C"_s);
  ArrivalLog log;
  catalog->addReactor(&log);
  log.onAdded = [&](OdTcCatalogItem* item) {
    EXPECT_EQ(catalog->loading()->findSoFar(item->id()), item);
    EXPECT_TRUE(static_cast<OdTcToolPalette*>(item)->isReferenced()) << "a group names it";
    EXPECT_EQ(soFar(*catalog), QStringList({u"Alpha"_s, u"Gamma"_s}));
  };
  catalog->loading()->loadNext();
  EXPECT_EQ(log.log, QStringList(u"+Alpha"_s));
}

TEST_F(CatalogLoadingTest, InPiecesOfAnyOrderItEndsAsLoadedWhole) {
  const OdTcCatalogPtr whole = load(writeAll(u"whole"_s));
  const QStringList messages = printed(u"whole"_s);
  ASSERT_EQ(messages.size(), 1) << "the broken file";
  const OdString root = stored(OdString());
  const QStringList expected = told(*whole).replaceInStrings(root + u"whole"_s, OdString());
  ASSERT_TRUE(whole->save());
  const QByteArray saved = readFile(u"whole\\DrfTcCatalog.dtc"_s);
  ASSERT_EQ(saved.count("<Url"), 7) << "nothing is lost";

  std::vector<OdString> order = {u"A"_s, u"B"_s, u"C"_s, u"F"_s};
  int turn = 0;
  do {
    const OdString folder = u"turn"_s + OdString::number(++turn);
    theHost().log.clear();
    const OdTcCatalogPtr catalog = begun(writeAll(folder));
    // After each demand one that nobody asked for.
    for (const OdString& id : order) {
      catalog->loading()->loadWaiting(id);
      catalog->loading()->loadNext();
    }
    const OdString name = u"asked for "_s + QStringList(order.begin(), order.end()).join(u' ');
    EXPECT_EQ(told(*catalog).replaceInStrings(root + folder, OdString()), expected) << text(name);
    EXPECT_EQ(printed(folder), messages) << text(name);
    ASSERT_TRUE(catalog->save());
    EXPECT_EQ(readFile(folder + u"\\DrfTcCatalog.dtc"_s), saved) << text(name);
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_EQ(turn, 24);
}

/// One that has to do with palettes, by name.
struct Demand {
  const char* name;
  std::function<void(CatalogLoadingTest&, OdTcCatalog&)> ask;
};
std::ostream& operator<<(std::ostream& out, const Demand& demand) { return out << demand.name; }

OdTcGroup* firstGroup(OdTcCatalog& catalog) {
  return static_cast<OdTcGroup*>(catalog.groups()->at(0));
}

const Demand kDemands[] = {
    {"palettesEnum", [](auto&, auto& c) { EXPECT_EQ(namesOf(c.palettesEnum()).size(), 6); }},
    {"children", [](auto&, auto& c) { EXPECT_EQ(namesOf(c.children()).size(), 6); }},
    {"loadersEnum", [](auto&, auto& c) { EXPECT_EQ(namesOf(c.loadersEnum()).size(), 7); }},
    {"loaders", [](auto&, auto& c) { EXPECT_TRUE(c.loaders()->contains(QStringLiteral("OWN"))); }},
    {"findPalette", [](auto&, auto& c) { EXPECT_TRUE(c.findPalette(QStringLiteral("C"))); }},
    {"findPaletteByName",
     [](auto&, auto& c) { EXPECT_TRUE(c.findPaletteByName(QStringLiteral("Gamma"))); }},
    {"findItem", [](auto&, auto& c) { EXPECT_TRUE(c.findItem(QStringLiteral("C"))); }},
    {"isContainer", [](auto&, auto& c) { EXPECT_TRUE(c.isContainer(OdString())); }},
    {"loadPalette", [](auto&, auto& c) { EXPECT_TRUE(c.loadPalette(QStringLiteral("C"))); }},
    {"unloadPalette", [](auto&, auto& c) { EXPECT_TRUE(c.unloadPalette(QStringLiteral("C"))); }},
    {"moveToGroup", [](auto&, auto& c) { EXPECT_TRUE(c.moveToGroup(QStringLiteral("A"))); }},
    {"removeItem", [](auto&, auto& c) { EXPECT_TRUE(c.removeItem(QStringLiteral("C"))); }},
    {"addItem", [](auto&, auto& c) { EXPECT_TRUE(c.addItem(OdTcToolPalette::createObject())); }},
    {"addPalette", [](auto&, auto& c) { c.addPalette(OdTcToolPalette::createObject()); }},
    {"save", [](auto&, auto& c) { EXPECT_TRUE(c.save()); }},
    {"a reference's palette",
     [](auto&, auto& c) {
       const auto* const reference = odrxCast<OdTcPaletteSoftRef>(firstGroup(c)->contents()->at(0));
       ASSERT_TRUE(reference);
       EXPECT_TRUE(reference->resolve());
     }},
    {"a reference's name",
     [](auto&, auto& c) {
       EXPECT_EQ(firstGroup(c)->contents()->at(0)->name(), QStringLiteral("Alpha"));
     }},
    {"a reference that leaves its group",
     [](auto&, auto& c) { EXPECT_TRUE(firstGroup(c)->removeItem(QStringLiteral("A"))); }},
    {"a reference that joins a group",
     [](auto&, auto& c) {
       const OdTcPaletteSoftRefPtr reference = OdTcPaletteSoftRef::createObject();
       reference->setId(QStringLiteral("C"));
       EXPECT_TRUE(firstGroup(c)->addItem(reference));
       EXPECT_TRUE(c.findPalette(QStringLiteral("C"))->isReferenced());
     }},
};

struct CatalogDemandTest : CatalogLoadingTest, testing::WithParamInterface<Demand> {};

TEST_P(CatalogDemandTest, BringsAllPalettesFirst) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadWaiting(u"B"_s);
  ASSERT_GT(catalog->loading()->pendingCount(), 0);
  GetParam().ask(*this, *catalog);
  EXPECT_EQ(catalog->loading()->pendingCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(All, CatalogDemandTest, testing::ValuesIn(kDemands),
                         [](const auto& demand) {
                           std::string name = demand.param.name;
                           std::erase_if(name, [](char c) { return !std::isalnum(c); });
                           return name;
                         });

TEST_F(CatalogLoadingTest, AnImportInTheMiddleFindsTheNamesThatAreStillToCome) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  writeFile(u"Gamma.dtc"_s, paletteXml("Z", "Gamma"));
  OdTcToolPalette* const imported = catalog->importPaletteFile(stored(u"Gamma.dtc"_s));
  ASSERT_TRUE(imported);
  EXPECT_EQ(imported->name(), u"Gamma (2)"_s);
  EXPECT_EQ(catalog->loading()->pendingCount(), 0);
}

TEST_F(CatalogLoadingTest, ASaveToAnotherFolderInTheMiddleTakesAllAlong) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadNext();
  QDir().mkpath(platform(u"other"_s));
  ASSERT_TRUE(catalog->save(stored(u"other\\DrfTcCatalog.dtc"_s)));
  EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 6);
}

TEST_F(CatalogLoadingTest, ManyAreFoundByTheirIdsWhileOthersComeBeforeThem) {
  constexpr int kCount = 40;
  QByteArray loaders;
  const auto id = [](int number) { return QByteArray::number(100 + number); };
  for (int i = 0; i < kCount; ++i) {
    writeFile(u"c\\Palettes\\"_s + QLatin1String(id(i)) + u".dtc"_s, paletteXml(id(i), id(i)));
    loaders += loaderXml(id(i), "Palettes\\" + id(i) + ".dtc");
  }
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml(loaders));
  const OdTcCatalogPtr catalog = begun(stored(u"c\\DrfTcCatalog.dtc"_s));
  const auto* const loading = catalog->loading();
  for (int last = kCount - 1; last >= 0; --last) {
    catalog->loading()->loadWaiting(QLatin1String(id(last)));
    for (int i = 0; i < kCount; ++i) {
      const OdTcToolPalette* const found = loading->findSoFar(QLatin1String(id(i)));
      ASSERT_EQ(found != nullptr, i >= last) << i << " after " << last;
      EXPECT_TRUE(!found || found->id() == QLatin1String(id(i)));
    }
  }
}

TEST_F(CatalogLoadingTest, AFileThatIsGoneInTheMiddleIsAsOneThatWasNeverThere) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadNext();
  QFile::remove(platform(u"c\\Palettes\\c.dtc"_s));
  EXPECT_EQ(catalog->findPalette(u"C"_s), nullptr);
  EXPECT_TRUE(catalog->findPalette(u"B"_s));
  ASSERT_TRUE(catalog->save());
  EXPECT_EQ(readFile(u"c\\DrfTcCatalog.dtc"_s).count("<Url"), 7) << "its loader stays";
}

TEST_F(CatalogLoadingTest, ABrokenFileIsToldWhenItIsMet) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadNext();
  EXPECT_FALSE(wasTold({u"x.dtc"_s}));
  catalog->loading()->loadNext();
  EXPECT_TRUE(wasTold({u"x.dtc"_s}));
}

TEST_F(CatalogLoadingTest, ACatalogMayGoWhileItsPalettesWaitOrCome) {
  OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  ArrivalLog log;
  catalog->addReactor(&log);
  log.onAdded = [&](OdTcCatalogItem*) { catalog = nullptr; };
  OdTcCatalogLoading* const loading = catalog->loading();
  EXPECT_TRUE(loading->loadNext());
  EXPECT_EQ(catalog, nullptr);
  catalog = begun(stored(u"c\\DrfTcCatalog.dtc"_s));
  catalog->loading()->loadNext();
  const OdTcToolPalettePtr held = catalog->loading()->palettesSoFar()->next();
  catalog = nullptr;
  EXPECT_EQ(held->numRefs(), 1);
  EXPECT_EQ(held->owner(), nullptr);
}

TEST_F(CatalogLoadingTest, WhoeverHearsOfAPaletteMayAskForAll) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  ArrivalLog log;
  catalog->addReactor(&log);
  log.onAdded = [&](OdTcCatalogItem*) { EXPECT_TRUE(catalog->findPalette(u"C"_s)); };
  catalog->loading()->loadNext();
  EXPECT_EQ(log.log.count(u"all of Catalog0"_s), 1);
  EXPECT_EQ(log.log.size(), 7);
  EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 6);
}

TEST_F(CatalogLoadingTest, IfTheNextFileIsMissingAllPalettesOfThisOneStay) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  EXPECT_FALSE(catalog->load(stored(u"nowhere\\DrfTcCatalog.dtc"_s)));
  EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 6) << "read beside their own catalog";
}

TEST_F(CatalogLoadingTest, LoadedAnewItForgetsWhatWaited) {
  const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
  catalog->loading()->loadNext();
  ASSERT_TRUE(catalog->load(writeTwoPalettes(u"two"_s)));
  EXPECT_EQ(catalog->loading()->pendingCount(), 0);
  EXPECT_EQ(namesOf(catalog->palettesEnum()), QStringList({u"Alpha"_s, u"Beta"_s}));
}

/// A message box behind which something happens.
struct BusyBox : CKVUnknownImpl<IHostMessageBoxes> {
  std::function<void()> meanwhile;
  int shown = 0;
  messagebox::Answer show(const OdString&, const OdString&, unsigned) override {
    ++shown;
    if (shown == 1) meanwhile();
    return messagebox::kAnswerOk;
  }
};

TEST_F(CatalogLoadingTest, WhoeverAsksWhileABrokenFileIsToldGetsThatPaletteToo) {
  const OdTcCatalogPtr whole = load(writeAll(u"whole"_s));
  const OdString root = stored(OdString());
  const QStringList expected = told(*whole).replaceInStrings(root + u"whole"_s, OdString());
  const auto box = kvMake<BusyBox>();
  theHost().offer<IHostMessageBoxes>(box.get());
  for (const OdString& first : {u"X"_s, u"C"_s}) {
    const OdTcCatalogPtr catalog = begun(writeAll(u"c"_s));
    ArrivalLog log;
    catalog->addReactor(&log);
    box->shown = 0;
    QByteArray saved;
    box->meanwhile = [&] {
      EXPECT_FALSE(catalog->loading()->loadWaiting(u"X"_s)) << "it is being read";
      EXPECT_EQ(namesOf(catalog->palettesEnum()).size(), 6);
      EXPECT_EQ(catalog->loading()->pendingCount(), 0);
      EXPECT_TRUE(catalog->save());
      saved = readFile(u"c\\DrfTcCatalog.dtc"_s);
    };
    catalog->loading()->loadWaiting(first);
    while (catalog->loading()->loadNext()) {
    }
    EXPECT_EQ(saved.count("<ToolPalette ID"), 3) << "no reference is lost";
    EXPECT_EQ(told(*catalog).replaceInStrings(root + u"c"_s, OdString()), expected);
    EXPECT_EQ(log.log.size(), 7) << "each once, and that all are there";
    catalog->removeReactor(&log);
  }
}

/// The manager, which has palettes read while the host is idle.
struct IdleLoadingTest : CatalogLoadingTest {
  KVPtr<TestIdle> idle = kvMake<TestIdle>();
  OdTcPaletteManager& manager = *OdTcPaletteManager::instance();

  OdTcCatalog* opened(const OdString& path) {
    EXPECT_TRUE(manager.openCatalog(path));
    return found(path);
  }
  OdTcCatalog* found(const OdString& path) const {
    const auto all = manager.catalogsEnum();
    OdString at;
    OdTcCatalog* catalog = nullptr;
    while (all->next(at, catalog))
      if (odpath::samePlace(at, path)) return catalog;
    return nullptr;
  }
};

TEST_F(IdleLoadingTest, WithoutIdleTimeLoadsAllAtOnce) {
  const OdTcCatalog* const catalog = opened(writeAll(u"c"_s));
  EXPECT_EQ(catalog->loading()->pendingCount(), 0);
  EXPECT_EQ(soFar(*catalog).size(), 6);
  EXPECT_TRUE(wasTold({u"x.dtc"_s}));
}

TEST_F(IdleLoadingTest, APieceIsAPaletteAndTheWorkEndsWithTheLast) {
  theHost().offer<IHostIdle>(idle.get());
  const OdTcCatalog* const one = opened(writeAll(u"one"_s));
  const OdTcCatalog* const two = opened(writeTwoPalettes(u"two"_s));
  ASSERT_EQ(idle->works.size(), 1u);
  int pieces = 0;
  for (int left = 9; left > 0; --left, ++pieces) {
    EXPECT_EQ(one->loading()->pendingCount() + two->loading()->pendingCount(), left);
    idle->doPiece();
  }
  EXPECT_EQ(soFar(*one).size() + soFar(*two).size(), 8);
  idle->doPiece();
  EXPECT_TRUE(idle->works.empty());
}

TEST_F(IdleLoadingTest, ACatalogWithoutPalettesLeavesTheHostAlone) {
  theHost().offer<IHostIdle>(idle.get());
  writeFile(u"c\\DrfTcCatalog.dtc"_s, catalogXml({}));
  opened(stored(u"c\\DrfTcCatalog.dtc"_s));
  opened(stored(u"none\\DrfTcCatalog.dtc"_s));
  EXPECT_TRUE(idle->works.empty());
}

TEST_F(IdleLoadingTest, WhatWasAskedForMeanwhileLeavesNothingToDo) {
  theHost().offer<IHostIdle>(idle.get());
  const OdTcCatalog* const catalog = opened(writeAll(u"c"_s));
  idle->doPiece();
  EXPECT_TRUE(catalog->findPalette(u"C"_s));
  idle->doPiece();
  EXPECT_TRUE(idle->works.empty());
}

TEST_F(IdleLoadingTest, CatalogsMayComeAndGoInTheMiddle) {
  theHost().offer<IHostIdle>(idle.get());
  const OdString one = writeAll(u"one"_s), two = writeTwoPalettes(u"two"_s);
  const auto folders = [&](const QStringList& names) {
    QStringList all;
    for (const OdString& name : names) all << stored(name);
    theHost().application.change(u"ToolPaletteDir"_s, all.join(u';'));
  };
  folders({u"one"_s});
  ASSERT_TRUE(found(one));
  idle->doPiece();
  folders({u"two"_s});
  EXPECT_EQ(found(one), nullptr);
  ASSERT_TRUE(found(two));
  EXPECT_EQ(found(two)->loading()->pendingCount(), 2);
  idle->doPiece();
  folders({u"one"_s, u"two"_s});
  EXPECT_EQ(found(one)->loading()->pendingCount(), 7) << "it has come back, and begins anew";
  idle->doAll();
  EXPECT_EQ(soFar(*found(one)).size() + soFar(*found(two)).size(), 8);
}

TEST_F(IdleLoadingTest, WhoeverHearsOfAPaletteMayRemoveItsCatalog) {
  theHost().offer<IHostIdle>(idle.get());
  OdTcCatalog* const one = opened(writeAll(u"one"_s));
  const OdTcCatalog* const two = opened(writeTwoPalettes(u"two"_s));
  ArrivalLog log;
  one->addReactor(&log);
  log.onAdded = [&](OdTcCatalogItem*) { manager.removeCatalog(OdString(one->path())); };
  idle->doAll();
  EXPECT_EQ(log.log.size(), 1);
  EXPECT_EQ(soFar(*two).size(), 2);
}

TEST_F(IdleLoadingTest, SavingAllInTheMiddleSavesWholeCatalogs) {
  theHost().offer<IHostIdle>(idle.get());
  OdTcCatalog* const catalog = opened(writeAll(u"c"_s));
  idle->doPiece();
  catalog->loading()->findSoFar(u"A"_s)->setName(u"Renamed"_s);
  manager.saveAll();
  const QByteArray saved = readFile(u"c\\DrfTcCatalog.dtc"_s);
  EXPECT_EQ(saved.count("<Url"), 7);
  EXPECT_TRUE(saved.contains("Renamed"));
  EXPECT_EQ(saved.count("<ToolPalette ID"), 3) << "references are kept, but for that to no file";
}

TEST_F(IdleLoadingTest, AManagerThatGoesTakesItsWorkAlong) {
  theHost().offer<IHostIdle>(idle.get());
  opened(writeAll(u"c"_s));
  ASSERT_EQ(idle->works.size(), 1u);
  OdTcPaletteManager::setInstance(nullptr);
  EXPECT_TRUE(idle->works.empty());
}

} // namespace
