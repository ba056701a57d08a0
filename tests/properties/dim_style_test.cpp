#include "properties/dim_style_table_record_impl.h"

#include "properties/general_properties.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct DimStyleTest : testhost::ModuleFixture {
  OdSmartPtr<OdTcDimStyleTableRecordImpl> style = odrxMake<OdTcDimStyleTableRecordImpl>();

  OdTcDimStyleTableRecordImpl* reread(OdSmartPtr<testhost::PartsRoot>& root) const {
    root = testhost::readParts(written(style));
    return dynamic_cast<OdTcDimStyleTableRecordImpl*>(root->parts.at(0).get());
  }
};

class DimVariableTest : public DimStyleTest,
                        public testing::WithParamInterface<dim_style::Field> {};

TEST_P(DimVariableTest, ComesBackFromAFileWithAValueOfItsOwn) {
  const dim_style::Field& field = GetParam();
  auto& variables = style->variables();
  std::visit(
      [&](auto member) {
        auto& value = variables.*member;
        using Value = std::remove_reference_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, OdString>)
          value = text(u"_Dot <\"1\">");
        else if constexpr (std::is_same_v<Value, bool>)
          value = !value;
        else
          value = static_cast<Value>(value + 3);
      },
      field.member);
  OdSmartPtr<testhost::PartsRoot> root;
  auto* const back = reread(root);
  ASSERT_TRUE(back);
  // Real numbers go to a file with six digits, so what is written is compared and not the numbers.
  EXPECT_EQ(written(back).toStdString(), written(style).toStdString());
  EXPECT_NE(storedValue(back->variables(), field).toString(),
            storedValue(OdTcDimStyleVariables(), field).toString());
}

INSTANTIATE_TEST_SUITE_P(Variables, DimVariableTest, testing::ValuesIn(dim_style::kFields),
                         [](const auto& row) { return row.param.name.toString().toStdString(); });

TEST_F(DimStyleTest, HasEveryVariableOnce) {
  EXPECT_EQ(dim_style::kFields.size(), 67u);
  QStringList names;
  for (const auto& field : dim_style::kFields) names << field.name.toString();
  EXPECT_EQ(names.removeDuplicates(), 0);
  EXPECT_TRUE(names.contains(text(u"dimtofL")));
  EXPECT_TRUE(names.contains(text(u"dimtoL")));
}

TEST_F(DimStyleTest, WritesOneFlagAloneAsANativeBoolean) {
  style->variables().dimfxlon = true;
  style->variables().dimsah = true;
  const QByteArray bytes = written(style);
  EXPECT_TRUE(bytes.contains("dimfxlon=\"-1\""));
  EXPECT_TRUE(bytes.contains("dimsah=\"TRUE\""));
  EXPECT_TRUE(bytes.contains("dimalt=\"FALSE\""));
}

TEST_F(DimStyleTest, WritesEmptyBlockNames) {
  const QByteArray bytes = written(style);
  EXPECT_TRUE(bytes.contains("dimblk1=\"\""));
  EXPECT_TRUE(bytes.contains("dimblk2=\"\""));
}

TEST_F(DimStyleTest, WritesItsVariablesInTheOrderOfTheirNames) {
  const QByteArray bytes = written(style);
  EXPECT_LT(bytes.indexOf("dimadec="), bytes.indexOf("dimalt="));
  EXPECT_LT(bytes.indexOf("dimtoL="), bytes.indexOf("dimtofL="));
  EXPECT_LT(bytes.indexOf("dimtxt="), bytes.indexOf("dimzin="));
}

TEST_F(DimStyleTest, RefusesAPartInAnothersPlace) {
  EXPECT_THROW(style->readField(text(u"Dimclrd"), OdVariant(odrxMake<OdTcDimclreImpl>())),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(odrxMake<OdTcDimclrdImpl>()->setProperty(odrxMake<OdTcLayerPropertyImpl>()),
               OdError_NotThatKindOfClass);
  EXPECT_FALSE(style->readField(text(u"Dimclrx"), OdVariant(odrxMake<OdTcDimclreImpl>())));
}

TEST_F(DimStyleTest, CloneOwnsItsParts) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(1));
  const auto part = odrxMake<OdTcDimclrtImpl>();
  part->setProperty(color);
  style->setPart(part);
  style->setRecordName(text(u"ISO-25"));
  style->variables().dimtxt = 2.5;
  const OdRxObjectPtr made = style->clone();
  const auto* const copy = dynamic_cast<OdTcDimStyleTableRecordImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->recordName(), text(u"ISO-25"));
  EXPECT_TRUE(copy->variables() == style->variables());
  ASSERT_TRUE(copy->part(DimStylePart::kTextColor));
  EXPECT_NE(copy->part(DimStylePart::kTextColor), part.get());
  EXPECT_EQ(copy->part(DimStylePart::kTextColor)->owner(), copy);
  EXPECT_EQ(copy->part(DimStylePart::kLineColor), nullptr);
}

TEST_F(DimStyleTest, StandsInAFileAsTheGoldenOne) {
  style->setRecordName(text(u"ISO-25"));
  style->variables().dimblk = text(u"_Oblique");
  const auto fill = [&](const OdTcDimStylePartPtr& part, const OdTcDatabasePropertyPtr& property) {
    part->setProperty(property);
    style->setPart(part);
  };
  for (const OdTcDimStylePartPtr& part : {OdTcDimStylePartPtr(odrxMake<OdTcDimtfillclrImpl>()),
                                          OdTcDimStylePartPtr(odrxMake<OdTcDimclrtImpl>()),
                                          OdTcDimStylePartPtr(odrxMake<OdTcDimclreImpl>()),
                                          OdTcDimStylePartPtr(odrxMake<OdTcDimclrdImpl>())}) {
    const auto color = odrxMake<OdTcColorPropertyImpl>();
    color->setColor(OdCmColor(OdCmColor::kByBlock));
    fill(part, color);
  }
  fill(odrxMake<OdTcDimStyleTextImpl>(), odrxMake<OdTcTextStylePropertyImpl>());
  fill(odrxMake<OdTcDimLineTypeImpl>(), odrxMake<OdTcLineTypePropertyImpl>());
  fill(odrxMake<OdTcExtLine1LineTypeImpl>(), odrxMake<OdTcLineTypePropertyImpl>());
  fill(odrxMake<OdTcExtLine2LineTypeImpl>(), odrxMake<OdTcLineTypePropertyImpl>());
  testhost::expectGolden("DimstyleTableRecord", style);
}

} // namespace
