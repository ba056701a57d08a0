#include "properties/property_bag_impl.h"

#include "drawing/database.h"
#include "properties/general_properties.h"
#include "properties/property_basic_info_impl.h"
#include "properties/property_filter_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;

struct PropertyBagTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcPropertyBagImpl> bag = odrxMake<OdTcPropertyBagImpl>();

  static OdString text(const char16_t* s) { return OdString::fromUtf16(s); }
};

TEST_F(PropertyBagTest, FindsTheFirstOfTwoPropertiesOfOneName) {
  const auto first = odrxMake<OdTcLayerPropertyImpl>(), second = odrxMake<OdTcLayerPropertyImpl>();
  bag->add(odrxMake<OdTcColorPropertyImpl>());
  bag->add(first);
  bag->add(second);
  EXPECT_EQ(bag->count(), 3);
  EXPECT_EQ(bag->findByName(text(u"General.Layer")), first.get());
  EXPECT_EQ(bag->findByName(text(u"general.layer")), nullptr) << "names are compared exactly";
  EXPECT_EQ(bag->findByName(text(u"Layer")), nullptr);
}

TEST_F(PropertyBagTest, BecomesTheOwnerOfAPropertyWithoutOne) {
  const auto layer = odrxMake<OdTcLayerPropertyImpl>(), owned = odrxMake<OdTcLayerPropertyImpl>();
  const auto other = odrxMake<OdTcPropertyBagImpl>();
  owned->setOwner(other);
  bag->add(layer);
  bag->add(owned);
  EXPECT_EQ(layer->owner(), bag.get());
  EXPECT_EQ(owned->owner(), other.get());
}

TEST_F(PropertyBagTest, RefusesAChildThatIsNoProperty) {
  const auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
  EXPECT_THROW(bag->readField(text(u"BasicPropInfo"), OdVariant(info)), OdError_NotThatKindOfClass);
  EXPECT_FALSE(bag->readField(text(u"note"), OdVariant(text(u"plain text"))));
  EXPECT_EQ(bag->count(), 0);
}

TEST_F(PropertyBagTest, ClonesEachProperty) {
  bag->setName(text(u"General"));
  const auto scale = odrxMake<OdTcLineTypeScalePropertyImpl>();
  scale->setText(text(u"2"));
  bag->add(scale);
  const OdRxObjectPtr made = bag->clone();
  auto* const copy = dynamic_cast<OdTcPropertyBag*>(made.get());
  ASSERT_TRUE(copy);
  ASSERT_EQ(copy->count(), 1);
  EXPECT_EQ(copy->getName(), text(u"General"));
  OdTcProperty* const twin = copy->enumProperties()->next();
  EXPECT_NE(twin, scale.get());
  EXPECT_EQ(twin->owner(), copy);
  scale->setText(text(u"5"));
  EXPECT_EQ(twin->getBasicInfo()->value().toString(), text(u"2"));
}

TEST_F(PropertyBagTest, KeepsItsPropertiesInTheOrderOfTheFile) {
  const auto read = testhost::readPart<OdTcPropertyBagImpl>(
      "<GeneralProperties><Tablestyle><BasicPropInfo><PropValue unspecified=\"TRUE\"/>"
      "</BasicPropInfo></Tablestyle><Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/>"
      "</BasicPropInfo></Color></GeneralProperties>");
  ASSERT_TRUE(read);
  QStringList names;
  const auto properties = read->enumProperties();
  while (const OdTcProperty* const property = properties->next()) names << property->elementName();
  EXPECT_EQ(names, QStringList({text(u"Tablestyle"), text(u"Color")}));
}

TEST_F(PropertyBagTest, ChangesNothingInADrawingWhileItIsEmpty) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const QByteArray before = drawing->writeDxf();
  const auto properties = bag->enumProperties();
  while (OdTcProperty* const property = properties->next()) property->applyToDatabase(drawing);
  EXPECT_EQ(drawing->writeDxf(), before);
  EXPECT_EQ(properties->next(), nullptr);
}

TEST(PropertyFilter, HoldsTheNamesThatWereAdded) {
  const auto filter = odrxMake<OdTcPropertyFilterImpl>();
  filter->add(QStringLiteral("General.Layer"));
  EXPECT_TRUE(filter->contains(QStringLiteral("General.Layer")));
  EXPECT_FALSE(filter->contains(QStringLiteral("General.layer")));
  const OdRxObjectPtr copy = filter->clone();
  filter->add(QStringLiteral("General.Color"));
  EXPECT_FALSE(
      dynamic_cast<OdTcPropertyFilter*>(copy.get())->contains(QStringLiteral("General.Color")));
}

} // namespace
