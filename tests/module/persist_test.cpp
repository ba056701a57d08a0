#include "module/persist_cast.h"
#include "module/test_items.h"

#include <gtest/gtest.h>

using namespace tc;
using namespace tc::test;

namespace {

class Plain : public OdTcPersistImpl<OdTcPersist> {};

class Reading : public OdTcPersistImpl<OdTcPersist> {
 public:
  bool readField(const OdString& name, const OdVariant& value) override {
    log << name + u'=' + value.toString();
    return name == QLatin1String("known");
  }
  QStringList log;
};

TEST(Persist, StartsWithoutOwnerTagAndFields) {
  const auto object = odrxMake<Plain>();
  EXPECT_EQ(object->owner(), nullptr);
  EXPECT_EQ(object->ownerNoRef(), nullptr);
  EXPECT_EQ(object->tag(), OdString());
  EXPECT_EQ(object->elementName(), QStringLiteral("OdTcPersist"));
  EXPECT_EQ(object->displayName(), OdString());
  EXPECT_FALSE(object->isContainer(QStringLiteral("x")));
  EXPECT_FALSE(object->readField(QStringLiteral("x"), 1));
}

TEST(Persist, KeepsAndForgetsATag) {
  const auto object = odrxMake<Plain>();
  object->setTag(QStringLiteral("a"));
  EXPECT_EQ(object->tag(), QStringLiteral("a"));
  object->setTag(OdString());
  EXPECT_EQ(object->tag(), OdString());
}

TEST(Persist, HoldsNoReferenceToItsOwner) {
  const auto owner = odrxMake<Plain>();
  const auto object = odrxMake<Plain>();
  object->setOwner(owner);
  EXPECT_EQ(object->owner(), owner.get());
  EXPECT_EQ(owner->numRefs(), 1);
}

TEST(Persist, DoesNotRecurseWhenItOwnsItself) {
  const auto object = odrxMake<Plain>();
  object->setOwnerQuiet(object);
  EXPECT_EQ(object->database(), nullptr);
  EXPECT_EQ(object->catalog(), nullptr);
  object->setOwnerInDatabase(object, OdString());
  object->setOwnerInCatalog(object);
}

TEST(Persist, FindsTheCatalogAboveIt) {
  const auto top = odrxMake<Top>();
  const auto middle = odrxMake<Plain>();
  const auto object = odrxMake<Plain>();
  middle->setOwner(top);
  object->setOwner(middle);
  EXPECT_EQ(object->catalog(), top->catalog());
  EXPECT_EQ(object->database(), nullptr);
  middle->setOwner(nullptr);
  EXPECT_EQ(object->catalog(), nullptr);
}

TEST(Persist, TellsTheTopOnlyWhereAnOwnerIsSetAloud) {
  const auto top = odrxMake<Top>();
  const auto middle = odrxMake<Plain>();
  middle->setOwner(top);
  const auto object = odrxMake<Plain>();
  object->setOwner(middle);
  object->setOwnerQuiet(middle);
  EXPECT_TRUE(top->noted.empty());
  object->setOwnerInCatalog(middle);
  EXPECT_EQ(top->noted, std::vector<OdTcPersist*>({object}));
  EXPECT_TRUE(top->notedInDatabase.empty());
  object->setOwnerInDatabase(middle, OdString());
  EXPECT_EQ(top->notedInDatabase, std::vector<OdTcPersist*>({object}));
}

TEST(Persist, IgnoresThatNobodyKnowsAName) {
  useItems();
  const auto root = odrxMake<Reading>();
  const auto stream = odrxMake<OdMemoryStream>(
      QByteArray("<Catalog><A known=\"1\" other=\"2\"/><known>3</known></Catalog>"));
  EXPECT_TRUE(makeCatalogFiler()->openCatalog(stream, root, false));
  EXPECT_EQ(root->log, QStringList({QStringLiteral("known=1"), QStringLiteral("other=2"),
                                    QStringLiteral("known=3")}));
}

TEST(PersistCast, GivesTheObjectWithAReference) {
  const auto object = odrxMake<Plain>();
  const OdVariant value(object);
  const OdSmartPtr<Plain> found = persistCast<Plain>(value);
  EXPECT_EQ(found.get(), object.get());
  EXPECT_EQ(object->numRefs(), 3);
}

TEST(PersistCast, RaisesForAnotherClassAndForNoObject) {
  EXPECT_THROW(persistCast<Plain>(OdVariant(odrxMake<Reading>())), OdError_NotThatKindOfClass);
  EXPECT_THROW(persistCast<Plain>(OdVariant(1)), OdError_NotThatKindOfClass);
  EXPECT_THROW(persistCast<Plain>(OdVariant()), OdError_NotThatKindOfClass);
  EXPECT_THROW(persistCast<Plain>(OdVariant(OdRxObjectPtr())), OdError_NotThatKindOfClass);
}

} // namespace
