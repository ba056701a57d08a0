#include "module/catalog_item_list.h"
#include "module/item_order_list_impl.h"
#include "module/test_items.h"

#include <QUuid>

#include <gtest/gtest.h>

using namespace tc;
using namespace tc::test;

namespace {

class List : public testing::Test {
 protected:
  void SetUp() override { useItems(); }

  OdSmartPtr<ItemList> of(std::initializer_list<const char*> ids) {
    auto list = odrxMake<ItemList>();
    for (const char* id : ids) list->add(makeItem(QString::fromLatin1(id)));
    return list;
  }
  static std::string text(const ItemList& list) {
    QStringList ids;
    const auto items = list.items();
    while (OdTcCatalogItem* item = items->next()) ids << item->id();
    return ids.join(u' ').toStdString();
  }
};

TEST_F(List, KeepsWhatIsAddedInOrderWithDuplicates) {
  const auto list = of({"a", "b", "a"});
  EXPECT_EQ(text(*list), "a b a");
  EXPECT_EQ(list->count(), 3);
  list->add(nullptr);
  EXPECT_EQ(list->count(), 3);
}

TEST_F(List, SetsTheOwnerOfAnItemToItsOwn) {
  const auto top = odrxMake<Top>();
  const auto list = odrxMake<ItemList>();
  list->setOwner(top);
  const auto item = makeItem(QStringLiteral("a"));
  list->add(item);
  EXPECT_EQ(item->owner(), top.get());
  EXPECT_EQ(item->numRefs(), 2);
  EXPECT_EQ(top->noted, std::vector<OdTcPersist*>({item}));
}

TEST_F(List, RegistersAnItemThatIsReadOnlyOnce) {
  const auto top = odrxMake<Top>();
  const auto list = odrxMake<ItemList>();
  list->setOwner(top);
  const auto stream = odrxMake<OdMemoryStream>(
      QByteArray("<Catalog><Item><ItemID idValue=\"a\"/></Item></Catalog>"));
  ASSERT_TRUE(makeCatalogFiler()->openCatalog(stream, list, false));
  ASSERT_EQ(list->count(), 1);
  EXPECT_EQ(list->at(0)->owner(), top.get());
  EXPECT_EQ(std::count(top->noted.begin(), top->noted.end(), list->at(0)), 1);
}

TEST_F(List, ReadsItsOwnElementsOnly) {
  const auto list = odrxMake<ItemList>();
  const auto item = makeItem(QStringLiteral("a"));
  EXPECT_THROW(list->readField(QStringLiteral("Other"), item), OdError_NotThatKindOfClass);
  EXPECT_FALSE(list->readField(QStringLiteral("Item"), QStringLiteral("text")));
  EXPECT_FALSE(list->readField(QStringLiteral("Other"), QStringLiteral("text")));
  EXPECT_TRUE(list->readField(QStringLiteral("Item"), item));
  EXPECT_THROW(list->readField(QStringLiteral("Item"), odrxMake<ItemList>()),
               OdError_NotThatKindOfClass);
  EXPECT_EQ(list->count(), 1);
}

TEST_F(List, FindsTheFirstOfTwoEqualIds) {
  const auto list = of({"a", "b", "a"});
  EXPECT_EQ(list->indexOf(QStringLiteral("a")), 0);
  EXPECT_EQ(list->find(QStringLiteral("a")), list->at(0));
  EXPECT_EQ(list->indexOf(QStringLiteral("b")), 1);
}

TEST_F(List, SaysWhereNothingIsFound) {
  const auto list = of({"a", "b"});
  EXPECT_EQ(list->indexOf(QStringLiteral("c")), 2);
  EXPECT_EQ(list->find(QStringLiteral("c")), nullptr);
  EXPECT_FALSE(list->contains(QStringLiteral("c")));
  EXPECT_FALSE(list->contains(QStringLiteral("A")));
  EXPECT_FALSE(list->remove(QStringLiteral("c")));
  EXPECT_THROW(list->at(2), OdError_InvalidIndex);
  EXPECT_THROW(list->at(-1), OdError_InvalidIndex);
}

TEST_F(List, RemovesOnlyTheFirstOfTwoEqualIds) {
  const auto list = of({"a", "b", "a", "c"});
  const OdTcCatalogItemPtr first = list->at(0);
  EXPECT_TRUE(list->remove(QStringLiteral("a")));
  EXPECT_EQ(text(*list), "b a c");
  EXPECT_EQ(first->numRefs(), 1);
}

TEST_F(List, LetsGoOfWhatItRemoves) {
  const auto top = odrxMake<Top>();
  const auto list = odrxMake<ItemList>();
  list->setOwner(top);
  const auto item = makeItem(QStringLiteral("a"));
  list->add(item);
  list->add(item);
  EXPECT_TRUE(list->remove(QStringLiteral("a")));
  EXPECT_EQ(item->owner(), top.get()) << "it stands here once more";
  EXPECT_TRUE(top->forgotten.empty());
  EXPECT_TRUE(list->remove(QStringLiteral("a")));
  EXPECT_EQ(item->owner(), nullptr);
  EXPECT_EQ(top->forgotten, std::vector<OdTcPersist*>({item}));
}

TEST_F(List, LeavesTheOwnerOfAnItemThatHasFoundAnotherOne) {
  const auto top = odrxMake<Top>();
  const auto other = odrxMake<Top>();
  const auto list = odrxMake<ItemList>();
  list->setOwner(top);
  const auto item = makeItem(QStringLiteral("a"));
  list->add(item);
  item->setOwnerQuiet(other);
  EXPECT_TRUE(list->remove(QStringLiteral("a")));
  EXPECT_EQ(item->owner(), other.get());
}

TEST_F(List, WritesItsItemsInOrder) {
  const auto list = of({"a", "b"});
  const auto stream = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr filer = makeCatalogFiler();
  ASSERT_TRUE(filer->openCatalog(stream, list, true));
  filer->flush();
  const QByteArray bytes = stream->bytes();
  EXPECT_TRUE(bytes.startsWith("<Items>\n    <Item "));
  EXPECT_LT(bytes.indexOf("\"a\""), bytes.indexOf("\"b\""));
}

TEST_F(List, GivesFreshIdsAndSaysWhich) {
  const auto list = of({"a", "b", "a"});
  OdTcIdMap map;
  map.insert(QStringLiteral("b"), QStringLiteral("stale"));
  list->regenerateIds(map);
  EXPECT_EQ(map.size(), 2);
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(QUuid(list->at(i)->id()).isNull());
  EXPECT_EQ(map.value(QStringLiteral("b")), list->at(1)->id());
  EXPECT_EQ(map.value(QStringLiteral("a")), list->at(2)->id());
  EXPECT_FALSE(list->contains(QStringLiteral("a")));
}

TEST_F(List, IsWalkedFromItsFirstElementAgainAndAgain) {
  const auto list = of({"a", "b"});
  const auto items = list->items();
  EXPECT_EQ(items->next(), list->at(0));
  EXPECT_EQ(items->next(), list->at(1));
  EXPECT_EQ(items->next(), nullptr);
  EXPECT_EQ(items->next(), nullptr);
  items->reset();
  EXPECT_EQ(items->next(), list->at(0));
}

TEST_F(List, LivesAsLongAsItsEnumerator) {
  auto list = of({"a"});
  const auto items = list->items();
  list = nullptr;
  ASSERT_NE(items->next(), nullptr);
}

class LongList : public List {
 protected:
  static constexpr int kCount = 2000;
  void SetUp() override {
    List::SetUp();
    m_list = odrxMake<ItemList>();
    for (int i = 0; i < kCount; ++i) m_list->add(makeItem(OdString::number(i)));
    checkAll();
  }
  void checkAll() {
    for (int i = 0; i < m_list->count(); ++i) ASSERT_EQ(m_list->indexOf(m_list->at(i)->id()), i);
  }
  OdSmartPtr<ItemList> m_list;
};

TEST_F(LongList, FindsWhatIsAddedAfterASearch) {
  m_list->add(makeItem(QStringLiteral("new")));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("new")), kCount);
  m_list->add(makeItem(QStringLiteral("0")));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("0")), 0);
}

TEST_F(LongList, FollowsIdsThatChange) {
  m_list->at(1500)->setId(QStringLiteral("x"));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("x")), 1500);
  EXPECT_FALSE(m_list->contains(QStringLiteral("1500")));
  m_list->at(3)->setId(QStringLiteral("x"));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("x")), 3);
  m_list->at(4)->readField(QStringLiteral("idValue"), QStringLiteral("y"));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("y")), 4);
}

TEST_F(LongList, FollowsRemovals) {
  EXPECT_TRUE(m_list->remove(QStringLiteral("10")));
  EXPECT_FALSE(m_list->contains(QStringLiteral("10")));
  m_list->add(makeItem(QStringLiteral("10")));
  EXPECT_EQ(m_list->indexOf(QStringLiteral("10")), kCount - 1);
  checkAll();
}

TEST_F(LongList, AsksNoMoreThanOnceForEachIdHoweverOftenItIsSearched) {
  // What makes lookups constant: an index, not a walk.
  class Counted : public Item {
   public:
    explicit Counted(int& asked)
      : m_asked(asked) {}
    OdString id() const override {
      ++m_asked;
      return Item::id();
    }

   private:
    int& m_asked;
  };
  int asked = 0;
  const auto list = odrxMake<ItemList>();
  for (int i = 0; i < kCount; ++i) {
    const auto item = odrxMake<Counted>(asked);
    item->setId(OdString::number(i));
    list->add(item);
  }
  for (int i = 0; i < 10; ++i) EXPECT_FALSE(list->contains(QStringLiteral("none")));
  asked = 0;
  for (int i = 0; i < 1000; ++i) EXPECT_FALSE(list->contains(QStringLiteral("none")));
  EXPECT_EQ(asked, 0);
}

TEST(OrderList, KeepsRepeatedIdsInOrder) {
  useItems();
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  for (const char* id : {"b", "a", "b"})
    EXPECT_TRUE(order->readField(QStringLiteral("ID"), QString::fromLatin1(id)));
  EXPECT_FALSE(order->readField(QStringLiteral("Id"), QStringLiteral("c")));
  EXPECT_EQ(order->ids(),
            OdArray<OdString>({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")}));
}

TEST(OrderList, RemovesTheFirstOccurrenceOnly) {
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  order->setIds({QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")});
  EXPECT_TRUE(order->removeFirst(QStringLiteral("b")));
  EXPECT_EQ(order->ids(), OdArray<OdString>({QStringLiteral("a"), QStringLiteral("b")}));
  EXPECT_FALSE(order->removeFirst(QStringLiteral("c")));
}

TEST(OrderList, IsWrittenAsOneElementForEachId) {
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  order->setIds({QStringLiteral("b"), QStringLiteral("b")});
  const auto stream = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr filer = makeCatalogFiler();
  ASSERT_TRUE(filer->openCatalog(stream, order, true));
  filer->flush();
  EXPECT_EQ(stream->bytes(), "<CatalogItemOrder>\n    <ID>b</ID>\n    <ID>b</ID>\n"
                             "</CatalogItemOrder>\n");
}

TEST(OrderList, IsCopiedWhole) {
  useItems();
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  order->setIds({QStringLiteral("b")});
  const OdTcCatalogItemOrderListPtr copy = order->clone();
  order->setIds({});
  EXPECT_EQ(copy->ids(), OdArray<OdString>({QStringLiteral("b")}));
}

TEST(OrderList, OfAnItemIsReadAndGivenWhole) {
  useItems();
  const auto item = makeItem(QStringLiteral("a"));
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  order->setIds({QStringLiteral("x"), QStringLiteral("y")});
  EXPECT_TRUE(item->readField(QStringLiteral("CatalogItemOrder"), order));
  EXPECT_EQ(item->orderList().size(), 2);
  item->setOrderList({});
  EXPECT_TRUE(order->ids().isEmpty());
  EXPECT_THROW(item->readField(QStringLiteral("CatalogItemOrder"), item),
               OdError_NotThatKindOfClass);
}

TEST(ItemCollection, HoldsAReferenceToEachItem) {
  const auto collection = odrxMake<OdTcCatalogItemListImpl>();
  const auto item = makeItem(QStringLiteral("a"));
  collection->add(item);
  collection->add(nullptr);
  EXPECT_EQ(collection->count(), 1);
  EXPECT_EQ(item->numRefs(), 2);
  EXPECT_EQ(item->owner(), nullptr);
  EXPECT_EQ(collection->items()->next(), item.get());
}

TEST(OrderList, PassesOverEmptyIdsSoThatTheOthersAreReadAgain) {
  useItems();
  const auto item = odrxMake<Item>();
  const auto order = odrxMake<OdTcCatalogItemOrderListImpl>();
  order->setIds({QString(), QStringLiteral("a"), QString(), QStringLiteral("b")});
  const auto stream = odrxMake<OdMemoryStream>();
  const OdTcFilerPtr filer = makeCatalogFiler();
  ASSERT_TRUE(filer->openCatalog(stream, order, true));
  filer->flush();
  const auto document = odrxMake<OdMemoryStream>("<Catalog>" + stream->bytes() + "</Catalog>");
  ASSERT_TRUE(makeCatalogFiler()->openCatalog(document, item, false));
  EXPECT_EQ(item->orderList(), OdArray<OdString>({QStringLiteral("a"), QStringLiteral("b")}));
}

} // namespace
