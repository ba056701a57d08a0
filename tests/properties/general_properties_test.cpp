#include "properties/general_properties.h"

#include "persistence/element_table.h"
#include "properties/color_value.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/property_bag_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::host;
using testhost::readPart;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct GeneralPropertiesTest : testhost::ModuleFixture {};

struct KindRow {
  const char16_t* element;
  const char16_t* label;
  const char16_t* createInfo;
};

class GeneralPropertyKindTest : public testhost::ModuleFixture,
                                public testing::WithParamInterface<KindRow> {};

TEST_P(GeneralPropertyKindTest, IsMadeFromItsElementWithItsLabel) {
  const OdTcPersistPtr made = OdTcElementTable::instance().create(text(GetParam().element));
  const auto* const property = dynamic_cast<OdTcDatabaseProperty*>(made.get());
  ASSERT_TRUE(property);
  EXPECT_EQ(property->elementName(), text(GetParam().element));
  EXPECT_EQ(property->getDisplayName(), text(GetParam().label));
  EXPECT_FALSE(property->offersCurrent());
  EXPECT_FALSE(property->isFrozen());
  ASSERT_TRUE(property->getBasicInfo());
  EXPECT_FALSE(property->getBasicInfo()->isUnspecified());
  EXPECT_EQ(property->getBasicInfo()->owner(), property);
  const OdTcPropertyCreateInfo* const info = property->getCreateInfo();
  EXPECT_EQ(info ? info->elementName() : OdString(), text(GetParam().createInfo));
}

TEST_P(GeneralPropertyKindTest, ShowsItsLabelInTheLanguageOfTheUser) {
  const OdString label = text(GetParam().label);
  if (!label.isEmpty()) host().translations[label] = text(u"translated");
  const OdTcPersistPtr made = OdTcElementTable::instance().create(text(GetParam().element));
  EXPECT_EQ(made->displayName(), label.isEmpty() ? OdString() : text(u"translated"));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, GeneralPropertyKindTest,
    testing::Values(KindRow{u"Color", u"General.Color", u"ColorCreateInfo"},
                    KindRow{u"Layer", u"General.Layer", u"LayerCreateInfo"},
                    KindRow{u"Linetype", u"General.Line type", u"LineTypeCreateInfo"},
                    KindRow{u"LinetypeScale", u"General.Linetype scale", u""},
                    KindRow{u"PlotStyle", u"General.Plot style", u""},
                    KindRow{u"LineWeight", u"General.Line weight", u""},
                    KindRow{u"Transparency", u"General.Transparency", u""},
                    KindRow{u"Textstyle", u"General.Text style", u"TextStyleCreateInfo"},
                    KindRow{u"Dimstyle", u"General.Dimension style", u"DimStyleCreateInfo"},
                    KindRow{u"Tablestyle", u"", u""}));

TEST_F(GeneralPropertiesTest, ReadsTheFormOfOtherPrograms) {
  const auto bag = readPart<OdTcPropertyBagImpl>(
      "<GeneralProperties>"
      "<Color><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"2\"/></BasicPropInfo>"
      "<CreateInfo><AcCmColor mRGB=\"-1023410175\"/></CreateInfo></Color>"
      "<Layer><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" value=\"Walls\"/>"
      "</BasicPropInfo><CreateInfo><LayerTableRecord isNotPlotted=\"FALSE\" lineWeight=\"-3\">"
      "<SymbolTableNameRecord>Walls</SymbolTableNameRecord>"
      "<Linetype><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" "
      "value=\"Hidden\"/></BasicPropInfo><CreateInfo><LinetypeTableRecord "
      "numberOfPatternElements=\"0\"><SymbolTableNameRecord>Hidden</SymbolTableNameRecord>"
      "</LinetypeTableRecord></CreateInfo></Linetype>"
      "<Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
      "<CreateInfo><AcCmColor mRGB=\"3254779903\"/></CreateInfo></Color>"
      "</LayerTableRecord></CreateInfo></Layer>"
      "<LineWeight><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"2\" value=\"-1\"/>"
      "</BasicPropInfo></LineWeight>"
      "<Transparency><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" "
      "value=\"VonLayer\"/></BasicPropInfo></Transparency>"
      "</GeneralProperties>");
  ASSERT_TRUE(bag);
  ASSERT_EQ(bag->count(), 4);
  const auto* const color =
      dynamic_cast<OdTcColorPropertyImpl*>(bag->findByName(text(u"General.Color")));
  ASSERT_TRUE(color);
  EXPECT_EQ(color->color().color(), 0xC3000001u);
  const auto* const layer =
      dynamic_cast<OdTcLayerPropertyImpl*>(bag->findByName(text(u"General.Layer")));
  ASSERT_TRUE(layer);
  const auto* const record = dynamic_cast<OdTcLayerTableRecordImpl*>(layer->record());
  ASSERT_TRUE(record);
  EXPECT_EQ(record->recordName(), text(u"Walls"));
  EXPECT_EQ(record->lineWeight(), -3);
  ASSERT_TRUE(record->color());
  EXPECT_EQ(dynamic_cast<OdTcColorPropertyImpl*>(record->color())->color().color(), 3254779903u);
  ASSERT_TRUE(record->lineType());
  EXPECT_EQ(dynamic_cast<OdTcLineTypePropertyImpl*>(record->lineType())->record()->recordName(),
            text(u"Hidden"));
  EXPECT_EQ(bag->findByName(text(u"General.Transparency"))->getBasicInfo()->value().toString(),
            text(u"VonLayer"));
  // What was read is written in our own form, and does not change any more.
  const QByteArray once = testhost::written(bag);
  EXPECT_TRUE(once.contains("<LayerCreateInfo>"));
  EXPECT_FALSE(once.contains("<CreateInfo>"));
  EXPECT_EQ(testhost::written(testhost::readParts(once)->parts).toStdString(), once.toStdString());
}

TEST_F(GeneralPropertiesTest, RefusesACreateInfoOfAnotherKind) {
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  EXPECT_THROW(layer->readField(text(u"LayerCreateInfo"),
                                OdVariant(odrxMake<OdTcColorPropertyCreateInfoImpl>())),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(layer->readField(text(u"BasicPropInfo"),
                                OdVariant(odrxMake<OdTcColorPropertyCreateInfoImpl>())),
               OdError_NotThatKindOfClass);
  const auto info = odrxMake<OdTcLayerPropertyCreateInfoImpl>();
  EXPECT_THROW(info->setRecord(odrxMake<OdTcLineTypeTableRecordImpl>()),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(info->readField(text(u"LayerTableRecord"), OdVariant(layer)),
               OdError_NotThatKindOfClass);
}

TEST_F(GeneralPropertiesTest, KeepsATableStyleOnSaving) {
  const auto style = readPart<OdTcTableStylePropertyImpl>(
      "<Tablestyle><BasicPropInfo><PropValue unspecified=\"FALSE\" valueType=\"1\" "
      "value=\"Parts list\"/></BasicPropInfo></Tablestyle>");
  ASSERT_TRUE(style);
  EXPECT_TRUE(testhost::written(style).contains("value=\"Parts list\""));
}

TEST_F(GeneralPropertiesTest, ShowsUseCurrentOnlyIfItIsOffered) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  color->getBasicInfo()->setUnspecified(true);
  EXPECT_EQ(colorFromVariant(color->getValue())->colorIndex(), 3);
  color->setOffersCurrent(true);
  host().translations[text(u"-- use current")] = text(u"-- wie gehabt");
  const OdCmColor shown = *colorFromVariant(color->getValue());
  EXPECT_EQ(shown.color(), 0xC2FFFFFFu);
  EXPECT_EQ(shown.bookName(), text(u"curr_color"));
  EXPECT_EQ(shown.colorName(), text(u"-- wie gehabt"));

  const auto weight = odrxMake<OdTcLineWeightPropertyImpl>();
  weight->setText(text(u"25"));
  weight->getBasicInfo()->setUnspecified(true);
  EXPECT_EQ(weight->getValue().toString(), text(u"25"));
  weight->setOffersCurrent(true);
  EXPECT_EQ(weight->getValue().toString(), text(u"-- wie gehabt"));
}

TEST_F(GeneralPropertiesTest, TakesUseCurrentForUnspecified) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  OdCmColor special = OdCmColor::fromRgb(255, 255, 255);
  special.setNames(text(u"anything"), text(u"CURR_Color"));
  color->setValue(colorToVariant(special));
  EXPECT_TRUE(color->getBasicInfo()->isUnspecified());
  EXPECT_EQ(color->color().colorIndex(), 3) << "the stored colour stays";
  color->setValue(colorToVariant(OdCmColor::fromColorIndex(5)));
  EXPECT_FALSE(color->getBasicInfo()->isUnspecified());
  EXPECT_EQ(color->color().colorIndex(), 5);

  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  layer->setValue(text(u"-- use current"));
  EXPECT_TRUE(layer->getBasicInfo()->isUnspecified());
}

TEST_F(GeneralPropertiesTest, StoresSpecialWordsUntranslatedInAnyLanguage) {
  host().translations[text(u"ByDefault")] = text(u"Vorgabe");
  const auto weight = odrxMake<OdTcLineWeightPropertyImpl>();
  weight->setValue(text(u"Vorgabe"));
  EXPECT_EQ(weight->text(), text(u"ByDefault"));
  EXPECT_EQ(weight->getValue().toString(), text(u"Vorgabe"));
  weight->setValue(weight->getValue());
  host().translations.clear();
  EXPECT_EQ(weight->getValue().toString(), text(u"ByDefault"));
  weight->setValue(text(u"30"));
  EXPECT_EQ(weight->text(), text(u"30"));
}

TEST_F(GeneralPropertiesTest, LeavesTheStoredCreateInfoAloneWhenItIsEdited) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  const OdTcPropertyCreateInfoPtr stored(color->getCreateInfo());
  color->setValue(colorToVariant(OdCmColor::fromColorIndex(5)));
  EXPECT_NE(color->getCreateInfo(), stored.get());
  EXPECT_EQ(dynamic_cast<OdTcColorPropertyCreateInfoImpl*>(stored.get())->color().colorIndex(), 3);
}

TEST_F(GeneralPropertiesTest, CloneDoesNotShareItsRecords) {
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  color->getBasicInfo()->setValueType(2);
  const OdRxObjectPtr made = color->clone();
  auto* const copy = dynamic_cast<OdTcColorPropertyImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_NE(copy->getBasicInfo(), color->getBasicInfo());
  EXPECT_NE(copy->getCreateInfo(), color->getCreateInfo());
  EXPECT_EQ(copy->getCreateInfo()->owner(), copy);
  EXPECT_EQ(copy->getBasicInfo()->valueType(), 2);
  copy->setColor(OdCmColor::fromColorIndex(5));
  EXPECT_EQ(color->color().colorIndex(), 3);
}

TEST_F(GeneralPropertiesTest, StandInAFileAsTheGoldenOnes) {
  const auto bag = odrxMake<OdTcPropertyBagImpl>();
  const OdTcElementTable& table = OdTcElementTable::instance();
  for (const char16_t* const element :
       {u"Color", u"Layer", u"Linetype", u"LinetypeScale", u"PlotStyle", u"LineWeight",
        u"Transparency", u"Textstyle", u"Dimstyle", u"Tablestyle"})
    bag->add(dynamic_cast<OdTcProperty*>(table.create(text(element)).get()));
  testhost::expectGolden("GeneralProperties_new", bag);
  const auto set = [&](const char16_t* name, const char16_t* value) {
    OdTcPropertyBasicInfo* const info = bag->findByName(text(name))->getBasicInfo();
    info->setValueType(1);
    info->setValue(text(value));
  };
  dynamic_cast<OdTcColorPropertyImpl*>(bag->findByName(text(u"General.Color")))
      ->setColor(OdCmColor::fromRgb(255, 128, 0));
  set(u"General.Linetype scale", u"0.5");
  set(u"General.Plot style", u"ByBlock");
  set(u"General.Line weight", u"ByDefault");
  set(u"General.Transparency", u"50");
  set(u"General.Line type", u"Continuous");
  bag->findByName(text(u"General.Text style"))->getBasicInfo()->setUnspecified(true);
  testhost::expectGolden("GeneralProperties", bag);
}

} // namespace
