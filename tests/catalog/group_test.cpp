#include "catalog/group.h"

#include "catalog/catalog_fixture.h"

namespace {

using namespace testhost;

struct GroupTest : CatalogFixture {
  OdTcGroupPtr group = CatalogFixture::group(u"G"_s);

  OdTcGroupPtr nested(const OdTcGroupPtr& parent, const OdString& name) const {
    const OdTcGroupPtr child = CatalogFixture::group(name);
    EXPECT_TRUE(parent->addItem(child));
    return child;
  }
};

TEST_F(GroupTest, IsNewWithoutAnActivePaletteAndWithoutContents) {
  EXPECT_EQ(group->activePaletteIndex(), -1);
  EXPECT_EQ(group->contents()->count(), 0);
  EXPECT_EQ(group->children()->next(), nullptr);
  EXPECT_EQ(group->elementName(), u"ToolPaletteGroup"_s);
}

TEST_F(GroupTest, TakesAPaletteInByReferenceWithoutTellingReactors) {
  ItemLog log;
  group->addReactor(&log);
  const OdTcToolPalettePtr added = palette(u"P"_s);
  EXPECT_TRUE(group->addItem(added));
  EXPECT_TRUE(log.log.isEmpty());
  EXPECT_TRUE(added->isReferenced());
  ASSERT_TRUE(odrxCast<OdTcPaletteSoftRef>(group->contents()->at(0)));
  EXPECT_EQ(group->contents()->at(0)->id(), added->id());
  EXPECT_EQ(added->numRefs(), 1) << "a reference does not keep the palette";
}

TEST_F(GroupTest, TellsReactorsOfAnAddedGroupAndLeavesTheOrderAlone) {
  ItemLog log;
  group->addReactor(&log);
  const OdTcGroupPtr child = nested(group, u"N"_s);
  EXPECT_EQ(log.log, QStringList(u"added N"_s));
  EXPECT_EQ(child->owner(), group.get());
  EXPECT_TRUE(group->orderList().isEmpty());
}

TEST_F(GroupTest, RefusesItselfItsAncestorsAndWhatIsNoGroup) {
  const OdTcGroupPtr child = nested(group, u"N"_s);
  EXPECT_FALSE(group->addItem(group));
  EXPECT_FALSE(child->addItem(group));
  EXPECT_FALSE(group->addItem(tool(u"T"_s)));
  EXPECT_FALSE(group->addItem(nullptr));
  EXPECT_EQ(group->contents()->count(), 1);
  EXPECT_EQ(child->contents()->count(), 0);
}

TEST_F(GroupTest, TellsReactorsBeforeAnItemGoesAndStrikesItFromTheOrder) {
  const OdTcGroupPtr child = nested(group, u"N"_s);
  const OdString id = child->id();
  group->setOrderList({id, u"other"_s, id});
  struct Watch : OdTcCatalogItemReactor {
    OdTcGroup* group = nullptr;
    bool wasThere = false;
    void itemRemoved(OdTcCatalogItem* item) override { wasThere = group->findItem(item->id()); }
  } watch;
  watch.group = group;
  group->addReactor(&watch);
  EXPECT_TRUE(group->removeItem(id));
  EXPECT_TRUE(watch.wasThere);
  EXPECT_FALSE(group->findItem(id));
  EXPECT_EQ(group->orderList(), OdArray<OdString>({u"other"_s, id}));
  EXPECT_FALSE(group->removeItem(id));
}

TEST_F(GroupTest, DoesNotRemoveWhatStandsInANestedGroup) {
  const OdTcGroupPtr deep = nested(nested(group, u"N"_s), u"D"_s);
  EXPECT_FALSE(group->removeItem(deep->id()));
  EXPECT_FALSE(group->findItem(deep->id()));
}

TEST_F(GroupTest, FindsAndRemovesTheFirstOfTwoReferencesToOnePalette) {
  const OdTcToolPalettePtr twice = palette(u"P"_s);
  group->addItem(twice);
  group->addItem(twice);
  OdTcCatalogItem* const first = group->contents()->at(0);
  OdTcCatalogItem* const second = group->contents()->at(1);
  EXPECT_EQ(group->contents()->find(twice->id()), first);
  EXPECT_TRUE(group->removeItem(twice->id()));
  EXPECT_EQ(group->contents()->count(), 1);
  EXPECT_EQ(group->contents()->at(0), second);
}

TEST_F(GroupTest, ClonesToAnEmptyGroupWithAFreshId) {
  nested(group, u"N"_s);
  group->setActivePaletteIndex(3);
  const OdTcGroupPtr copy(group->clone(true));
  EXPECT_EQ(copy->contents()->count(), 0);
  EXPECT_EQ(copy->activePaletteIndex(), -1);
  EXPECT_TRUE(copy->name().isEmpty());
  EXPECT_NE(copy->id(), group->id());
}

TEST_F(GroupTest, AClonedListSharesItsElements) {
  nested(group, u"N"_s);
  const OdSmartPtr<OdTcGroupContentList> copy(group->contents()->clone());
  ASSERT_EQ(copy->count(), 1);
  EXPECT_EQ(copy->at(0), group->contents()->at(0));
  EXPECT_EQ(copy->at(0)->owner(), group.get());
}

TEST_F(GroupTest, RemovalThroughASubtreeTellsNobodyAndAnswersForTheTopLevel) {
  const OdTcToolPalettePtr struck = palette(u"P"_s);
  const OdTcGroupPtr deep = nested(nested(group, u"N"_s), u"D"_s);
  deep->addItem(struck);
  deep->setOrderList({struck->id()});
  ItemLog log;
  deep->addReactor(&log);
  EXPECT_TRUE(isReferencedInSubtree(group->contents(), struck->id()));
  EXPECT_FALSE(removeFromSubtree(group->contents(), struck->id()));
  EXPECT_FALSE(isReferencedInSubtree(group->contents(), struck->id()));
  EXPECT_TRUE(log.log.isEmpty());
  EXPECT_EQ(deep->orderList().size(), 1);
  group->addItem(struck);
  EXPECT_TRUE(removeFromSubtree(group->contents(), struck->id()));
}

TEST_F(GroupTest, AGroupIsNoReferenceToAPaletteOfItsId) {
  const OdTcGroupPtr child = nested(group, u"N"_s);
  EXPECT_FALSE(isReferencedInSubtree(group->contents(), child->id()));
}

TEST_F(GroupTest, TenThousandNestedGroupsAreWalkedAndReleased) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  OdTcGroupPtr top = group;
  OdTcGroupPtr current = top;
  for (int i = 0; i < 10000; ++i) {
    const OdTcGroupPtr child = CatalogFixture::group(u"N"_s);
    current->contents()->add(child);
    current = child;
  }
  const OdTcToolPalettePtr last = palette(u"P"_s);
  current->addItem(last);
  current = nullptr;
  EXPECT_TRUE(isReferencedInSubtree(top->contents(), last->id()));
  removeFromSubtree(top->contents(), last->id());
  EXPECT_FALSE(isReferencedInSubtree(top->contents(), last->id()));
  top = nullptr;
  group = nullptr;
}

TEST_F(GroupTest, NestsNoDeeperThanAFileCanBeReadAgain) {
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->addItem(group);
  OdTcGroupPtr deepest = group;
  int depth = 1;
  for (;; ++depth) {
    const OdTcGroupPtr child = CatalogFixture::group(u"N"_s);
    if (!deepest->addItem(child)) break;
    deepest = child;
    ASSERT_LT(depth, 1000);
  }
  EXPECT_TRUE(wasTold({u"nested"_s}));
  QDir().mkpath(platform(u"c"_s));
  ASSERT_TRUE(catalog->save(stored(u"c\\DrfTcCatalog.dtc"_s)));
  const OdTcCatalogPtr again = load(stored(u"c\\DrfTcCatalog.dtc"_s));
  int found = 0;
  for (OdTcCatalogItem* item = again->groups()->at(0); item; ++found)
    item = item->children()->next();
  EXPECT_EQ(found, depth);

  const OdTcGroupPtr tall = CatalogFixture::group(u"T"_s);
  nested(tall, u"U"_s);
  EXPECT_FALSE(OdTcGroupPtr(deepest->owner())->addItem(tall)) << "its height counts as well";
}

TEST_F(GroupTest, AChildThatOutlivesItsGroupHasNoOwner) {
  const OdTcGroupPtr child = nested(group, u"N"_s);
  group = nullptr;
  EXPECT_EQ(child->owner(), nullptr);
  EXPECT_EQ(child->catalog(), nullptr);
}

struct SoftReferenceTest : CatalogFixture {
  OdTcCatalogPtr catalog = load(
      writeTwoPalettes(u"c"_s, groupXml("G", "<ToolPalette ID=\"A\"/><ToolPalette ID=\"gone\"/>")));
  OdTcGroupPtr group = OdTcGroupPtr(catalog->groups()->at(0));

  const OdTcPaletteSoftRef* reference(int position) const {
    return odrxCast<OdTcPaletteSoftRef>(group->contents()->at(position));
  }
};

TEST_F(SoftReferenceTest, HasTheIdAndTheNameOfItsPalette) {
  ASSERT_EQ(group->contents()->count(), 2);
  EXPECT_EQ(reference(0)->id(), u"A"_s);
  EXPECT_EQ(reference(0)->name(), u"Alpha"_s);
  EXPECT_EQ(reference(0)->resolve(), catalog->findPalette(u"A"_s));
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->isReferenced());
  EXPECT_FALSE(catalog->findPalette(u"B"_s)->isReferenced());
}

TEST_F(SoftReferenceTest, ToAnUnknownPaletteHasAnEmptyNameAndIsLostAtTheNextSave) {
  EXPECT_EQ(reference(1)->id(), u"gone"_s);
  EXPECT_EQ(reference(1)->name(), OdString());
  EXPECT_EQ(reference(1)->resolve(), nullptr);
  ASSERT_TRUE(catalog->save());
  EXPECT_EQ(group->contents()->count(), 2) << "it stays in memory";
  const QByteArray saved = readFile(u"c\\DrfTcCatalog.dtc"_s);
  EXPECT_TRUE(saved.contains("<ToolPalette ID=\"A\" />"));
  EXPECT_FALSE(saved.contains("gone"));
}

TEST_F(SoftReferenceTest, ClonesToASecondReferenceToThePalette) {
  const OdSmartPtr<OdTcPaletteSoftRef> copy(group->contents()->at(0)->clone(true));
  EXPECT_EQ(copy->id(), u"A"_s);
}

TEST_F(SoftReferenceTest, OutsideOfACatalogDoesNotResolve) {
  const OdSmartPtr<OdTcPaletteSoftRef> loose = OdTcPaletteSoftRef::createObject();
  loose->setId(u"A"_s);
  EXPECT_EQ(loose->resolve(), nullptr);
  EXPECT_EQ(loose->name(), OdString());
}

TEST_F(SoftReferenceTest, WhenTheLastOneGoesThePaletteIsNoGroupMemberAnyMore) {
  const OdTcGroupPtr second = CatalogFixture::group(u"H"_s);
  catalog->addItem(second);
  second->addItem(catalog->findPalette(u"A"_s));
  group->removeItem(u"A"_s);
  EXPECT_TRUE(catalog->findPalette(u"A"_s)->isReferenced());
  catalog->removeItem(second->id());
  EXPECT_FALSE(catalog->findPalette(u"A"_s)->isReferenced());
}

TEST_F(SoftReferenceTest, ThatNamesItsOwnGroupDoesNotResolve) {
  const OdTcCatalogPtr odd =
      load(writeTwoPalettes(u"odd"_s, groupXml("G", "<ToolPalette ID=\"G\"/>")));
  const OdTcGroupPtr self(odd->groups()->at(0));
  EXPECT_EQ(self->contents()->at(0)->name(), OdString());
  EXPECT_TRUE(odd->save());
  EXPECT_EQ(odd->findInGroups(self), self->contents()->at(0));
}

} // namespace
