#include "properties/property_basic_info_impl.h"

#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::expectGolden;
using testhost::readPart;

struct BasicInfoTest : testhost::ModuleFixture {
  static OdSmartPtr<OdTcPropertyBasicInfoImpl> read(const char* attributes) {
    const QByteArray text =
        QByteArray("<BasicPropInfo><PropValue ") + attributes + "/></BasicPropInfo>";
    return readPart<OdTcPropertyBasicInfoImpl>(text);
  }
};

TEST_F(BasicInfoTest, LeavesTheFlagFalseWithoutTheAttribute) {
  const auto info = read("valueType=\"1\" value=\"Walls\"");
  ASSERT_TRUE(info);
  EXPECT_FALSE(info->isUnspecified());
  EXPECT_EQ(info->value().toString(), QStringLiteral("Walls"));
  EXPECT_EQ(info->valueType(), 1);
}

TEST_F(BasicInfoTest, ReadsTheDigitOneAsTrueAndWritesCapitals) {
  const auto info = read("unspecified=\"1\"");
  ASSERT_TRUE(info);
  EXPECT_TRUE(info->isUnspecified());
  EXPECT_TRUE(testhost::written(info).contains("unspecified=\"TRUE\""));
}

TEST_F(BasicInfoTest, ReadsAnyOtherTextAsFalse) {
  EXPECT_FALSE(read("unspecified=\"yes\"")->isUnspecified());
  EXPECT_FALSE(read("unspecified=\"-1\"")->isUnspecified());
  EXPECT_TRUE(read("unspecified=\"true\"")->isUnspecified());
}

TEST_F(BasicInfoTest, WritesNoValueWhileUnspecified) {
  auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
  info->setValue(OdString(QStringLiteral("25")));
  info->setUnspecified(true);
  EXPECT_FALSE(testhost::written(info).contains(" value="));
  info->setUnspecified(false);
  EXPECT_TRUE(testhost::written(info).contains(" value=\"25\""));
}

TEST_F(BasicInfoTest, WritesTheValueTypeOnlyIfItWasSet) {
  auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
  EXPECT_FALSE(info->hasValueType());
  EXPECT_FALSE(testhost::written(info).contains("valueType"));
  info->setValueType(-7);
  EXPECT_TRUE(testhost::written(info).contains("valueType=\"-7\""));
}

TEST_F(BasicInfoTest, CopiesItsValuesIntoAClone) {
  auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
  info->setValue(OdString(QStringLiteral("ByLayer")));
  info->setValueType(1);
  info->setUnspecified(true);
  const OdRxObjectPtr made = info->clone();
  const auto* const copy = dynamic_cast<OdTcPropertyBasicInfoImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->isUnspecified());
  EXPECT_TRUE(copy->hasValueType());
  EXPECT_EQ(copy->valueType(), 1);
  EXPECT_EQ(copy->value().toString(), QStringLiteral("ByLayer"));
}

TEST_F(BasicInfoTest, StandsInAFileAsTheGoldenOne) {
  auto set = odrxMake<OdTcPropertyBasicInfoImpl>();
  set->setValueType(3);
  set->setValue(OdString(QStringLiteral("0.5")));
  auto unset = odrxMake<OdTcPropertyBasicInfoImpl>();
  unset->setUnspecified(true);
  expectGolden("BasicPropInfo", {OdTcPersistPtr(set), OdTcPersistPtr(unset),
                                 OdTcPersistPtr(odrxMake<OdTcPropertyBasicInfoImpl>())});
}

TEST_F(BasicInfoTest, WritesNoValueThatHasNoTextInAFile) {
  for (const std::uint8_t flag : {OdVariant::kArray, OdVariant::kByRef}) {
    OdVariant value(OdString(QStringLiteral("25")));
    value.setFlags(flag);
    auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
    info->setValue(value);
    EXPECT_FALSE(testhost::written(info).contains(" value=")) << flag;
  }
  auto info = odrxMake<OdTcPropertyBasicInfoImpl>();
  info->setValue(true);
  EXPECT_TRUE(testhost::written(info).contains(" value=\"-1\""));
}

} // namespace
