#include "module/test_items.h"

#include <QUuid>

#include <gtest/gtest.h>

#include <set>

using namespace tc;
using namespace tc::test;

namespace {

class CatalogItem : public testing::Test {
 protected:
  void SetUp() override { useItems(); }

  static QByteArray written(OdTcPersist* root) {
    const auto stream = odrxMake<OdMemoryStream>();
    const OdTcFilerPtr filer = makeCatalogFiler();
    EXPECT_TRUE(filer->openCatalog(stream, root, true));
    filer->flush();
    return stream->bytes();
  }
  static OdSmartPtr<Item> read(const QByteArray& content) {
    auto root = odrxMake<Item>();
    const auto stream = odrxMake<OdMemoryStream>("<Catalog>" + content + "</Catalog>");
    EXPECT_TRUE(makeCatalogFiler()->openCatalog(stream, root, false));
    return root;
  }
};

class Log : public OdTcCatalogItemReactor {
 public:
  explicit Log(QStringList& lines, QString name)
    : m_lines(lines)
    , m_name(std::move(name)) {}
  void itemChanged(OdTcCatalogItem* item) override { note(QStringLiteral("changed"), item); }
  void itemRemoved(OdTcCatalogItem* item) override {
    note(QStringLiteral("removed"), item);
    if (leaves) leaves->removeReactor(this);
  }
  void itemAdded(OdTcCatalogItem* item) override { note(QStringLiteral("added"), item); }
  OdTcCatalogItem* leaves = nullptr;

 private:
  void note(const QString& what, OdTcCatalogItem* item) {
    m_lines << m_name + u' ' + what + u' ' + item->id();
  }
  QStringList& m_lines;
  QString m_name;
};

TEST_F(CatalogItem, IsNewWithIdRevisionOptionsAndRecords) {
  const auto item = odrxMake<Item>();
  EXPECT_FALSE(QUuid(item->id()).isNull());
  EXPECT_EQ(item->id(), item->id());
  EXPECT_EQ(item->revision(), QStringLiteral("8.0"));
  EXPECT_EQ(item->options(), 0u);
  EXPECT_TRUE(item->orderList().isEmpty());
  EXPECT_NE(item->properties(), nullptr);
  EXPECT_EQ(item->properties()->owner(), item.get());
  EXPECT_FALSE(item->isModified());
  EXPECT_FALSE(item->isMarked());
  EXPECT_FALSE(item->isDeleted());
  EXPECT_EQ(item->children()->next(), nullptr);
}

TEST_F(CatalogItem, HasAnIdOfItsOwn) {
  std::set<OdString> ids;
  for (int i = 0; i < 1000; ++i) ids.insert(odrxMake<Item>()->id());
  EXPECT_EQ(ids.size(), 1000u);
}

TEST_F(CatalogItem, KeepsItsFreshIdIfTheFileHasNone) {
  EXPECT_FALSE(QUuid(read("<ItemName>x</ItemName>")->id()).isNull());
  EXPECT_FALSE(QUuid(read("<ItemID idValue=\"\"/>")->id()).isNull());
  EXPECT_EQ(read("<ItemID idValue=\"{1}\"/><ItemID idValue=\"\"/>")->id(), QStringLiteral("{1}"));
}

TEST_F(CatalogItem, IsModifiedByItsSetters) {
  const auto changed = [](auto&& change) {
    const auto item = odrxMake<Item>();
    change(*item);
    return item->isModified();
  };
  EXPECT_TRUE(changed([](Item& i) { i.setName(QStringLiteral("n")); }));
  EXPECT_TRUE(changed([](Item& i) { i.setDescription(QStringLiteral("d")); }));
  EXPECT_TRUE(changed([](Item& i) { i.setOptions(1); }));
  EXPECT_TRUE(changed([](Item& i) { i.setImages(nullptr); }));
  EXPECT_FALSE(changed([](Item& i) { i.setId(QStringLiteral("x")); }));
  EXPECT_FALSE(changed([](Item& i) { i.setMarked(); }));
  EXPECT_FALSE(changed([](Item& i) { i.setOrderList({QStringLiteral("x")}); }));
}

TEST_F(CatalogItem, ShowsTheNameAndDescriptionOfItsProperties) {
  const auto item = odrxMake<Item>();
  item->setName(QStringLiteral("n"));
  item->setDescription(QStringLiteral("d"));
  EXPECT_EQ(item->properties()->getName(), QStringLiteral("n"));
  EXPECT_EQ(item->name(), QStringLiteral("n"));
  EXPECT_EQ(item->displayName(), QStringLiteral("n"));
  EXPECT_EQ(item->description(), QStringLiteral("d"));
  EXPECT_EQ(item->propertyValue(QStringLiteral("ItemName")).toString(), QStringLiteral("n"));
  EXPECT_TRUE(item->setPropertyValue(QStringLiteral("ItemName"), QStringLiteral("m")));
  EXPECT_FALSE(item->setPropertyValue(QStringLiteral("Nothing"), QStringLiteral("m")));
  EXPECT_EQ(item->name(), QStringLiteral("m"));
}

TEST_F(CatalogItem, TakesNoItemsUnlessItIsAContainer) {
  const auto item = odrxMake<Item>();
  EXPECT_FALSE(item->addItem(odrxMake<Item>()));
  EXPECT_FALSE(item->removeItem(QStringLiteral("x")));
  EXPECT_FALSE(item->findItem(QStringLiteral("x")));
}

TEST_F(CatalogItem, CarriesItsMarks) {
  const auto item = odrxMake<Item>();
  item->setMarked();
  EXPECT_TRUE(item->isMarked());
  item->clearMarked();
  EXPECT_FALSE(item->isMarked());
  item->setDeleted();
  EXPECT_TRUE(item->isDeleted());
}

TEST_F(CatalogItem, WritesItsFieldsInOrder) {
  const auto item = makeItem(QStringLiteral("{1}"));
  item->setOptions(4000000000u);
  item->setName(QStringLiteral("n"));
  EXPECT_EQ(written(item), "<Item Revision=\"8.0\" option=\"4000000000\">\n"
                           "    <ItemID idValue=\"{1}\" />\n"
                           "    <Properties>\n"
                           "        <ItemName>n</ItemName>\n"
                           "    </Properties>\n"
                           "</Item>\n");
}

TEST_F(CatalogItem, ReadsItsFieldsInAnyOrderAndDropsTheRest) {
  const auto root = odrxMake<Item>();
  EXPECT_TRUE(root->readField(QStringLiteral("option"), QStringLiteral("4294967295")));
  EXPECT_TRUE(root->readField(QStringLiteral("Revision"), QStringLiteral("25.1")));
  EXPECT_TRUE(root->readField(QStringLiteral("idValue"), QStringLiteral("{2}")));
  EXPECT_FALSE(root->readField(QStringLiteral("revision"), QStringLiteral("1")));
  EXPECT_FALSE(root->readField(QStringLiteral("Unknown"), QStringLiteral("1")));
  EXPECT_EQ(root->options(), 4294967295u);
  EXPECT_EQ(root->revision(), QStringLiteral("25.1"));
  EXPECT_EQ(root->id(), QStringLiteral("{2}"));
  EXPECT_TRUE(root->readField(QStringLiteral("option"), QStringLiteral("no number")));
  EXPECT_EQ(root->options(), 0u);
}

TEST_F(CatalogItem, LosesUnknownNamesWithTheNextSave) {
  const auto list = odrxMake<ItemList>();
  const auto stream = odrxMake<OdMemoryStream>(
      QByteArray("<Catalog><Item option=\"1\" later=\"x\"><Later a=\"1\">y</Later>"
                 "<ItemID idValue=\"{1}\"/></Item></Catalog>"));
  ASSERT_TRUE(makeCatalogFiler()->openCatalog(stream, list, false));
  EXPECT_EQ(written(list->at(0)), "<Item Revision=\"8.0\" option=\"1\">\n"
                                  "    <ItemID idValue=\"{1}\" />\n"
                                  "    <Properties>\n"
                                  "        <ItemName></ItemName>\n"
                                  "    </Properties>\n"
                                  "</Item>\n");
}

TEST_F(CatalogItem, RaisesForPropertiesOfAnotherClass) {
  const auto item = odrxMake<Item>();
  EXPECT_THROW(item->readField(QStringLiteral("Properties"), odrxMake<Item>()),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(item->readField(QStringLiteral("Properties"), QStringLiteral("text")),
               OdError_NotThatKindOfClass);
}

TEST_F(CatalogItem, MakesOneRecordForAnItemThatIsRead) {
  const int before = PlainProperties::made;
  const auto item = read("<Properties><ItemName>n</ItemName></Properties>");
  EXPECT_EQ(item->name(), QStringLiteral("n"));
  EXPECT_EQ(item->properties()->owner(), item.get());
  EXPECT_EQ(PlainProperties::made, before + 1);
}

TEST_F(CatalogItem, CallsReactorsInTheOrderOfAdding) {
  QStringList lines;
  Log a(lines, QStringLiteral("a")), b(lines, QStringLiteral("b"));
  const auto item = makeItem(QStringLiteral("1"));
  const auto other = makeItem(QStringLiteral("2"));
  EXPECT_TRUE(item->addReactor(&b));
  EXPECT_TRUE(item->addReactor(&a));
  EXPECT_TRUE(item->addReactor(&b));
  item->sayAdded(other);
  item->sayRemoved(other);
  item->setModified();
  EXPECT_EQ(lines.join(u','),
            QStringLiteral("b added 2,a added 2,b added 2,b removed 2,a removed 2,"
                           "b removed 2,b changed 1,a changed 1,b changed 1"));
}

TEST_F(CatalogItem, RemovesTheFirstEqualReactorOnly) {
  QStringList lines;
  Log a(lines, QStringLiteral("a")), b(lines, QStringLiteral("b")), c(lines, QStringLiteral("c"));
  const auto item = makeItem(QStringLiteral("1"));
  EXPECT_FALSE(item->removeReactor(&a));
  for (Log* log : {&a, &b, &a}) item->addReactor(log);
  EXPECT_FALSE(item->removeReactor(&c));
  EXPECT_TRUE(item->removeReactor(&a));
  item->setModified();
  EXPECT_EQ(lines.join(u','), QStringLiteral("b changed 1,a changed 1"));
}

TEST_F(CatalogItem, LetsAReactorLeaveWhileItIsCalled) {
  QStringList lines;
  Log a(lines, QStringLiteral("a")), b(lines, QStringLiteral("b"));
  const auto item = makeItem(QStringLiteral("1"));
  a.leaves = item;
  item->addReactor(&a);
  item->addReactor(&b);
  item->sayRemoved(item);
  item->sayRemoved(item);
  EXPECT_EQ(lines.join(u','), QStringLiteral("a removed 1,b removed 1,b removed 1"));
}

TEST_F(CatalogItem, GivesACopyAllButItsIdentity) {
  const auto item = makeItem(QStringLiteral("{1}"));
  item->setName(QStringLiteral("n"));
  item->setOptions(3);
  item->setMarked();
  item->record().setTag2(QStringLiteral("t"));
  item->readField(QStringLiteral("Revision"), QStringLiteral("9.1"));
  const OdTcCatalogItemPtr copy = item->clone(true);
  EXPECT_FALSE(QUuid(copy->id()).isNull());
  EXPECT_EQ(copy->name(), QStringLiteral("n"));
  EXPECT_EQ(copy->options(), 3u);
  EXPECT_EQ(copy->revision(), QStringLiteral("9.1"));
  EXPECT_EQ(static_cast<Item*>(copy.get())->record().tag2(), QStringLiteral("t"));
  EXPECT_FALSE(copy->isMarked());
  EXPECT_EQ(copy->properties()->owner(), copy.get());
  copy->setName(QStringLiteral("m"));
  EXPECT_EQ(item->name(), QStringLiteral("n"));
}

TEST_F(CatalogItem, LivesOnWhenItsClassesAreGone) {
  const auto item = odrxMake<Item>();
  OdRxClass* const former = std::exchange(OdTcProperties::g_pDesc, nullptr);
  EXPECT_NE(item->properties(), nullptr);
  EXPECT_FALSE(item->id().isEmpty());
  OdTcProperties::g_pDesc = former;
}

TEST_F(CatalogItem, TellsItsReactorsOnceForEachChange) {
  QStringList lines;
  Log log(lines, QStringLiteral("a"));
  const auto item = makeItem(QStringLiteral("1"));
  item->addReactor(&log);
  const auto told = [&] { return std::exchange(lines, {}).join(u','); };
  item->setName(QStringLiteral("n"));
  EXPECT_EQ(told(), QStringLiteral("a changed 1"));
  item->setDescription(QStringLiteral("d"));
  EXPECT_EQ(told(), QStringLiteral("a changed 1"));
  item->setOptions(1);
  EXPECT_EQ(told(), QStringLiteral("a changed 1"));
  item->setImages(nullptr);
  EXPECT_EQ(told(), QStringLiteral("a changed 1"));
  item->setModified();
  item->setModified();
  EXPECT_EQ(told(), QStringLiteral("a changed 1,a changed 1"));
  item->setMarked();
  EXPECT_EQ(told(), QString()) << "a mark is no change of what is stored";
}

} // namespace
