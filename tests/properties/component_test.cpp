// Properties as components of the host.
#include "properties/general_properties.h"

#include "properties/gradient_names.h"
#include "properties/property_basic_info_impl.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;

struct ComponentTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcLayerPropertyImpl> property = odrxMake<OdTcLayerPropertyImpl>();
};

TEST_F(ComponentTest, SharesTheCountOfTheProperty) {
  IKVUnknown* const component = property->component();
  EXPECT_EQ(property->numRefs(), 1) << "looking takes no reference";
  EXPECT_EQ(component->addRef(), 2u);
  EXPECT_EQ(property->numRefs(), 2);
  EXPECT_EQ(component->release(), 1u);
  EXPECT_EQ(property->component(), component) << "one identity";
}

TEST_F(ComponentTest, KeepsThePropertyAliveUntilTheHostLetsGo) {
  KVPtr<IKVUnknown> held(property->component());
  OdTcDatabasePropertyImpl* const raw = property;
  property = nullptr;
  EXPECT_EQ(raw->numRefs(), 1);
  EXPECT_EQ(OdTcDatabasePropertyImpl::fromComponent(held.get()), raw);
  held.reset();
}

TEST_F(ComponentTest, AnswersForItselfAlone) {
  IKVUnknown* const component = property->component();
  EXPECT_EQ(kvQuery<IKVUnknown>(component).get(), component);
  void* found = this;
  EXPECT_FALSE(component->queryInterface("IProfile", &found));
  EXPECT_EQ(found, nullptr);
  EXPECT_EQ(property->numRefs(), 1);
}

TEST_F(ComponentTest, IsNotConfusedWithOtherComponents) {
  struct Other : CKVUnknownImpl<IKVUnknown> {};
  const KVPtr<Other> other = kvMake<Other>();
  EXPECT_EQ(OdTcDatabasePropertyImpl::fromComponent(other.get()), nullptr);
  EXPECT_EQ(OdTcDatabasePropertyImpl::fromComponent(nullptr), nullptr);
  EXPECT_EQ(OdTcDatabasePropertyImpl::fromComponent(property->component()), property.get());
  EXPECT_EQ(property->numRefs(), 1);
}

TEST(PropertySizes, StaySmall) {
  EXPECT_LE(sizeof(OdTcLayerPropertyImpl), 72u);
  EXPECT_LE(sizeof(OdTcPropertyBasicInfoImpl), 88u);
}

class GradientNameTest : public testhost::ModuleFixture,
                         public testing::WithParamInterface<GradientRow> {};

TEST_P(GradientNameTest, IsMappedBothWays) {
  const OdString key = GetParam().key.toString(), display = GetParam().display.toString();
  EXPECT_EQ(gradientDisplayName(key), display);
  EXPECT_EQ(gradientKey(display), key);
  testhost::host().translations[display] = QStringLiteral("translated");
  EXPECT_EQ(gradientDisplayName(key), QStringLiteral("translated"));
  EXPECT_EQ(gradientKey(QStringLiteral("translated")), key);
}

INSTANTIATE_TEST_SUITE_P(Gradients, GradientNameTest, testing::ValuesIn(kGradients));

TEST_F(ComponentTest, UnknownGradientIsLinear) {
  EXPECT_EQ(gradientKey(QStringLiteral("Plaid")), QStringLiteral("LINEAR"));
  EXPECT_EQ(gradientNumber(QStringLiteral("INVCURVED")), 9);
  EXPECT_EQ(gradientNumber(QStringLiteral("plaid")), 1);
}

} // namespace
