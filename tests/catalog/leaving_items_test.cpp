// What leaves a group, a list or a catalog, and what comes in with references.
#include "catalog/catalog_fixture.h"

#include <functional>

namespace {

using namespace testhost;

struct LeavingItemsTest : CatalogFixture {
  /// Catalog with the group G, in it the group H, and in that a reference to the palette A.
  OdTcCatalogPtr catalog =
      load(writeTwoPalettes(u"c"_s, groupXml("G", groupXml("H", "<ToolPalette ID=\"A\"/>"))));
  OdTcGroupPtr outer = OdTcGroupPtr(catalog->groups()->at(0));
  OdTcGroupPtr inner = OdTcGroupPtr(outer->contents()->at(0));
};

TEST_F(LeavingItemsTest, AGroupThatLeftItsGroupBelongsToNobodyAndMayTakeThatGroupIn) {
  const OdTcGroupPtr top = group(u"T"_s);
  const OdTcGroupPtr below = group(u"B"_s);
  top->addItem(below);
  ASSERT_TRUE(top->removeItem(below->id()));
  EXPECT_EQ(below->owner(), nullptr);
  EXPECT_TRUE(below->addItem(top));
  EXPECT_EQ(top->owner(), below.get());
}

TEST_F(LeavingItemsTest, TheCatalogHoldsNothingOfAGroupThatLeftIt) {
  OdTcCatalogItemPtr reference(inner->contents()->at(0));
  EXPECT_EQ(reference->catalog(), catalog.get());
  ASSERT_TRUE(outer->removeItem(u"H"_s));
  EXPECT_EQ(inner->owner(), nullptr);
  EXPECT_EQ(inner->catalog(), nullptr);
  EXPECT_EQ(inner->numRefs(), 1);
  EXPECT_EQ(reference->owner(), inner.get()) << "what stands in it stays there";
  inner = nullptr;
  EXPECT_EQ(reference->owner(), nullptr);
  EXPECT_EQ(reference->numRefs(), 1);
}

TEST_F(LeavingItemsTest, ATopLevelGroupLeavesLikeAnyOther) {
  ASSERT_TRUE(catalog->removeItem(u"G"_s));
  EXPECT_EQ(outer->owner(), nullptr);
  EXPECT_EQ(outer->numRefs(), 1);
}

TEST_F(LeavingItemsTest, AMovedGroupIsHeldOnce) {
  ASSERT_TRUE(catalog->moveToGroup(u"H"_s));
  EXPECT_EQ(inner->owner(), catalog.get());
  ASSERT_TRUE(catalog->removeItem(u"H"_s));
  EXPECT_EQ(inner->numRefs(), 1);
  EXPECT_EQ(inner->catalog(), nullptr);
}

TEST_F(LeavingItemsTest, AReferenceStruckFromASubtreeIsLetGo) {
  const OdTcCatalogItemPtr reference(inner->contents()->at(0));
  removeFromSubtree(catalog->groups(), u"A"_s);
  EXPECT_EQ(reference->owner(), nullptr);
  EXPECT_EQ(reference->numRefs(), 1);
}

TEST_F(LeavingItemsTest, ALoaderThatIsRemovedIsLetGo) {
  const OdTcCatalogItemPtr loader(catalog->loaders()->at(0));
  ASSERT_TRUE(catalog->loaders()->remove(u"A"_s));
  EXPECT_EQ(loader->catalog(), nullptr);
  EXPECT_EQ(loader->numRefs(), 1);
}

TEST_F(LeavingItemsTest, ASharedElementOfAClonedListKeepsItsOwner) {
  const OdSmartPtr<OdTcGroupContentList> copy(outer->contents()->clone());
  ASSERT_TRUE(copy->remove(u"H"_s));
  EXPECT_EQ(inner->owner(), outer.get());
}

struct RemovalReactor : OdTcCatalogItemReactor {
  std::function<void(OdTcCatalogItem*)> call;
  void itemRemoved(OdTcCatalogItem* item) override { call(item); }
};

TEST_F(LeavingItemsTest, AReactorMayTakeThePaletteAwayItself) {
  RemovalReactor reactor;
  bool wasUnloaded = false;
  reactor.call = [&](OdTcCatalogItem* item) { wasUnloaded = catalog->unloadPalette(item->id()); };
  catalog->addReactor(&reactor);
  catalog->setOrderList({u"A"_s, u"B"_s});
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_TRUE(wasUnloaded);
  EXPECT_EQ(catalog->findPalette(u"A"_s), nullptr);
  EXPECT_TRUE(catalog->findPalette(u"B"_s));
  catalog->removeReactor(&reactor);
}

TEST_F(LeavingItemsTest, AReactorMayTakeTheLastPaletteAwayItself) {
  catalog->removeItem(u"B"_s);
  const OdTcToolPalettePtr last(catalog->findPalette(u"A"_s));
  RemovalReactor reactor;
  reactor.call = [&](OdTcCatalogItem*) { catalog->unloadPalette(u"A"_s); };
  last->addReactor(&reactor);
  EXPECT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_FALSE(catalog->findItem(u"A"_s));
  last->removeReactor(&reactor);
}

TEST_F(LeavingItemsTest, AReactorThatTakesAGroupAwayDoesNotCostAnotherOfItsId) {
  const OdTcGroupPtr twin = group(u"twin"_s);
  twin->setId(u"G"_s);
  catalog->addItem(twin);
  RemovalReactor reactor;
  reactor.call = [&](OdTcCatalogItem* item) { catalog->groups()->remove(item->id()); };
  catalog->addReactor(&reactor);
  catalog->removeItem(u"G"_s);
  catalog->removeReactor(&reactor);
  EXPECT_EQ(catalog->groups()->find(u"G"_s), twin.get());

  const OdTcGroupPtr second = group(u"second"_s);
  second->setId(u"X"_s);
  const OdTcGroupPtr first = group(u"first"_s);
  first->setId(u"X"_s);
  twin->addItem(first);
  twin->addItem(second);
  reactor.call = [&](OdTcCatalogItem* item) { twin->contents()->remove(item->id()); };
  twin->addReactor(&reactor);
  twin->removeItem(u"X"_s);
  twin->removeReactor(&reactor);
  EXPECT_EQ(twin->contents()->find(u"X"_s), second.get());
}

TEST_F(LeavingItemsTest, ARemovedPaletteIsStruckFromAllGroupsWhateverItsFlagSays) {
  outer->addItem(catalog->findPalette(u"A"_s));
  outer->addItem(catalog->findPalette(u"A"_s));
  catalog->findPalette(u"A"_s)->setReferenced(false);
  ASSERT_TRUE(catalog->removeItem(u"A"_s));
  EXPECT_FALSE(isReferencedInSubtree(catalog->groups(), u"A"_s));
  EXPECT_EQ(outer->contents()->count(), 1);
}

TEST_F(LeavingItemsTest, ANewPaletteIsAGroupMemberIfAGroupNamesItAlready) {
  const auto add = [&](const OdString& id) {
    const OdTcToolPalettePtr added = palette(u"P"_s);
    added->setId(id);
    added->setReferenced(id == u"elsewhere"_s);
    catalog->addItem(added);
    return added;
  };
  const OdSmartPtr<OdTcPaletteSoftRef> reference = OdTcPaletteSoftRef::createObject();
  reference->setId(u"late"_s);
  inner->addItem(reference);
  EXPECT_TRUE(add(u"late"_s)->isReferenced());
  EXPECT_FALSE(add(u"elsewhere"_s)->isReferenced());
}

TEST_F(LeavingItemsTest, AGroupThatComesInWithReferencesMarksTheirPalettes) {
  const auto withReference = [&](const OdString& id) {
    const OdTcGroupPtr made = group(u"with"_s);
    const OdTcGroupPtr below = group(u"below"_s);
    const OdSmartPtr<OdTcPaletteSoftRef> reference = OdTcPaletteSoftRef::createObject();
    reference->setId(id);
    below->addItem(reference);
    made->addItem(below);
    return made;
  };
  EXPECT_FALSE(catalog->findPalette(u"B"_s)->isReferenced());
  const OdTcGroupPtr top = withReference(u"B"_s);
  catalog->addItem(top);
  EXPECT_TRUE(catalog->findPalette(u"B"_s)->isReferenced());
  catalog->removeItem(top->id());
  EXPECT_FALSE(catalog->findPalette(u"B"_s)->isReferenced());
  inner->addItem(withReference(u"B"_s));
  EXPECT_TRUE(catalog->findPalette(u"B"_s)->isReferenced());
}

TEST_F(LeavingItemsTest, TheIdOfAGroupUnloadsNothing) {
  EXPECT_FALSE(catalog->unloadPalette(u"G"_s));
  EXPECT_EQ(catalog->groups()->count(), 1);
  EXPECT_FALSE(catalog->unloadPalette(u"unknown"_s));
}

} // namespace
