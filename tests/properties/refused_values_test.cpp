// What files can hold and drawings do not take: a message, and the run goes on without it.
#include "drawing/database.h"
#include "properties/general_properties.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_element_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/property_reference_impl.h"
#include "properties/text_style_table_record_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

#include <cmath>

namespace {

using namespace tc;
using namespace Qt::StringLiterals;
using testhost::readPart;

struct RefusedValuesTest : testhost::ModuleFixture {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();

  OdDbLayerTableRecordPtr addLayer(const OdString& name) const {
    auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(name);
    drawing->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(layer);
    return layer;
  }
  OdString currentLayer() const {
    return drawing->currentLayer().openAs<OdDbLayerTableRecord>()->getName();
  }
  static QString told() { return testhost::host().log.join(u'\n'); }
  static QByteArray layerElement(const OdString& name, const QByteArray& rest = {},
                                 const QByteArray& attributes = {}) {
    return "<Layer><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
           "<LayerCreateInfo><LayerTableRecord " +
           attributes + "><SymbolTableNameRecord>" + name.toHtmlEscaped().toUtf8() +
           "</SymbolTableNameRecord>" + rest + "</LayerTableRecord></LayerCreateInfo></Layer>";
  }
  static QByteArray colorElement(std::uint32_t value) {
    return "<Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
           "<ColorCreateInfo><AcCmColor mRGB=\"" +
           QByteArray::number(value) + "\"/></ColorCreateInfo></Color>";
  }
  static QByteArray lineTypeElement(const QByteArray& record) {
    return "<Linetype><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
           "<LineTypeCreateInfo><LinetypeTableRecord " +
           record + "</LinetypeTableRecord></LineTypeCreateInfo></Linetype>";
  }
  OdDbLinetypeTableRecordPtr lineTypeOf(const QByteArray& record) const {
    const auto property = readPart<OdTcLineTypePropertyImpl>(lineTypeElement(record).constData());
    return property->recordIn(drawing).openObject();
  }
};

struct NameRow {
  const char16_t* name;
  const char16_t* reason;
};
class RefusedNameTest : public RefusedValuesTest, public testing::WithParamInterface<NameRow> {};

TEST_P(RefusedNameTest, IsToldAndTheDrawingsLayerStays) {
  const OdString name = OdString::fromUtf16(GetParam().name);
  auto snapshot = odrxMake<OdTcLayerTableRecordImpl>();
  snapshot->setRecordName(name);
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  dynamic_cast<OdTcLayerPropertyCreateInfoImpl*>(layer->getCreateInfo())->setRecord(snapshot);
  const QByteArray before = drawing->writeDxf();
  EXPECT_NO_THROW(layer->applyToDatabase(drawing));
  EXPECT_EQ(currentLayer(), u"0"_s);
  EXPECT_TRUE(told().contains(OdString::fromUtf16(GetParam().reason))) << told().toStdString();
  EXPECT_TRUE(told().contains(u"Cannot make the layer"_s));
  layer->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->writeDxf(), before);
}

const OdString kLongName(300, u'x');

INSTANTIATE_TEST_SUITE_P(
    Names, RefusedNameTest,
    testing::Values(NameRow{u"a/b", u"the character /"}, NameRow{u"a\\b", u"the character \\"},
                    NameRow{u"a:b", u"the character :"}, NameRow{u"a;b", u"the character ;"},
                    NameRow{u"a<b", u"the character <"}, NameRow{u"a>b", u"the character >"},
                    NameRow{u"a?b", u"the character ?"}, NameRow{u"a*b", u"the character *"},
                    NameRow{u"a=b", u"the character ="}, NameRow{u"a,b", u"the character ,"},
                    NameRow{u"a`b", u"the character `"}, NameRow{u"a\"b", u"the character \""},
                    NameRow{u"plan|Walls", u"the character |"},
                    NameRow{u"a\tb", u"control characters"},
                    NameRow{u" a", u"begin or end with a blank"},
                    NameRow{reinterpret_cast<const char16_t*>(kLongName.utf16()),
                            u"the name is too long"}));

TEST_F(RefusedValuesTest, NamesThatDifferInCaseOnlyAreTheSame) {
  addLayer(u"WALLS"_s);
  const auto layer = readPart<OdTcLayerPropertyImpl>(layerElement(u"walls"_s).constData());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayer(), u"WALLS"_s);
  EXPECT_FALSE(drawing->getLayerTableId().openAs<OdDbLayerTable>()->recordIds().size() > 2);
  layer->restoreToDatabase(drawing);
}

TEST_F(RefusedValuesTest, AFrozenLayerIsToldAndNotMadeCurrent) {
  addLayer(u"Walls"_s)->setIsFrozen(true);
  const auto layer = readPart<OdTcLayerPropertyImpl>(layerElement(u"Walls"_s).constData());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayer(), u"0"_s);
  EXPECT_TRUE(told().contains(u"Layer \"Walls\" is frozen"_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, LockedLayersAndThoseThatAreOffAreMadeCurrentAsTheyAre) {
  addLayer(u"Locked"_s)->setIsLocked(true);
  addLayer(u"Off"_s)->setIsOff(true);
  for (const OdString& name : {u"Locked"_s, u"Off"_s}) {
    const auto layer = readPart<OdTcLayerPropertyImpl>(layerElement(name).constData());
    layer->applyToDatabase(drawing);
    EXPECT_EQ(currentLayer(), name);
    layer->restoreToDatabase(drawing);
  }
  const auto layers = drawing->getLayerTableId().openAs<OdDbLayerTable>();
  EXPECT_TRUE(layers->getAt(u"Locked"_s).openAs<OdDbLayerTableRecord>()->isLocked());
  EXPECT_TRUE(layers->getAt(u"Off"_s).openAs<OdDbLayerTableRecord>()->isOff());
  EXPECT_EQ(told(), QString());
}

TEST_F(RefusedValuesTest, ALayerOfAnExternalReferenceIsToldAndNotMadeCurrent) {
  addLayer(u"plan|Walls"_s)->setIsDependent(true);
  const auto layer = readPart<OdTcLayerPropertyImpl>(layerElement(u"plan|Walls"_s).constData());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayer(), u"0"_s);
  EXPECT_TRUE(told().contains(u"\"plan|Walls\" belongs to an external reference"_s))
      << told().toStdString();
}

TEST_F(RefusedValuesTest, ANameThatLeadsNowhereIsTold) {
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  layer->setText(u"Windows"_s);
  layer->applyToDatabase(drawing);
  EXPECT_TRUE(told().contains(u"General.Layer: \"Windows\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, ALayerIsMadeWithoutTheLineTypeThatCannotBe) {
  const auto layer = readPart<OdTcLayerPropertyImpl>(
      layerElement(u"Walls"_s,
                   lineTypeElement("numberOfPatternElements=\"0\"><SymbolTableNameRecord>a/b"
                                   "</SymbolTableNameRecord><LinetypeElements/>"))
          .constData());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayer(), u"Walls"_s);
  EXPECT_TRUE(told().contains(u"Cannot make the line type \"a/b\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, ALayerIsMadeWithTheUsualWeightAndColorForThoseThatNoLayerHas) {
  const auto layer = readPart<OdTcLayerPropertyImpl>(
      layerElement(u"Walls"_s, colorElement(0x12000003), "lineWeight=\"999\"").constData());
  layer->applyToDatabase(drawing);
  const auto made = drawing->currentLayer().openAs<OdDbLayerTableRecord>();
  EXPECT_EQ(made->getName(), u"Walls"_s);
  EXPECT_EQ(made->lineWeight(), OdDb::kLnWtByLwDefault);
  EXPECT_EQ(made->color().colorIndex(), 7);
  EXPECT_TRUE(told().contains(u"General.Line weight: \"999\""_s)) << told().toStdString();
  EXPECT_TRUE(told().contains(u"General.Color: \"301989891\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, ValuesOutOfRangeAreToldByNameAndValue) {
  const auto apply = [&](const OdTcDatabasePropertyPtr& property, const OdString& value) {
    testhost::host().log.clear();
    dynamic_cast<OdTcDatabasePropertyImpl*>(property.get())->setText(value);
    property->applyToDatabase(drawing);
    EXPECT_TRUE(told().contains(property->getDisplayName() + u": \""_s + value + u"\" cannot"_s))
        << told().toStdString();
  };
  const QByteArray before = drawing->writeDxf();
  apply(odrxMake<OdTcLineWeightPropertyImpl>(), u"999"_s);
  apply(odrxMake<OdTcLineWeightPropertyImpl>(), u"-4"_s);
  apply(odrxMake<OdTcTransparencyPropertyImpl>(), u"150"_s);
  apply(odrxMake<OdTcLineTypeScalePropertyImpl>(), u"nan"_s);
  apply(odrxMake<OdTcLineTypeScalePropertyImpl>(), u"-1"_s);
  apply(odrxMake<OdTcPlotStylePropertyImpl>(), u"Nowhere"_s);
  EXPECT_EQ(drawing->writeDxf(), before);
}

TEST_F(RefusedValuesTest, ALongValueIsToldInPart) {
  const auto weight = odrxMake<OdTcLineWeightPropertyImpl>();
  weight->setText(OdString(100000, u'x'));
  weight->applyToDatabase(drawing);
  EXPECT_LT(told().size(), 300);
}

struct ColorRow {
  std::uint32_t value;
  std::uint32_t imposed; ///< 0: the drawing's own stays
  bool isTold;
};
class ColorMethodTest : public RefusedValuesTest, public testing::WithParamInterface<ColorRow> {};

TEST_P(ColorMethodTest, IsImposedIfEntitiesCanHaveTheColor) {
  const auto own = OdCmColor::fromColorIndex(5);
  drawing->setCurrentColor(own);
  const auto color = readPart<OdTcColorPropertyImpl>(colorElement(GetParam().value).constData());
  color->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().color(), GetParam().imposed ? GetParam().imposed : own.color());
  EXPECT_EQ(told().contains(u"General.Color: \""_s), GetParam().isTold) << told().toStdString();
  color->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().color(), own.color());
  EXPECT_TRUE(
      testhost::written(color).contains(
          "mRGB=\"" + QByteArray::number(static_cast<int>(GetParam().value)) + "\"") ||
      testhost::written(color).contains("mRGB=\"" + QByteArray::number(GetParam().value) + "\""))
      << "kept as it came";
}

INSTANTIATE_TEST_SUITE_P(
    Methods, ColorMethodTest,
    testing::Values(ColorRow{0xC0000000, 0xC0000000, false},
                    ColorRow{0xC1000000, 0xC1000000, false},
                    ColorRow{0xC2102030, 0xC2102030, false},
                    ColorRow{0xC3000003, 0xC3000003, false},
                    ColorRow{0xC3000000, 0xC1000000, false},
                    ColorRow{0xC5000000, 0xC5000000, false}, ColorRow{0xC8000000, 0, false},
                    ColorRow{0xC4000001, 0, true}, ColorRow{0xC6000000, 0, true},
                    ColorRow{0x12345678, 0, true}, ColorRow{0xFF000000, 0, true}));

TEST_F(RefusedValuesTest, ALineTypeHasTheDashesThatAreThereWhateverTheCountSays) {
  const QByteArray dash = "<LinetypeElement><Dash>2</Dash></LinetypeElement>"
                          "<LinetypeElement><Space>-1</Space></LinetypeElement>";
  for (const char* const count : {"0", "1", "1000000", "-7", "99999999999999999999", "many"}) {
    const QByteArray name = QByteArray("Dash") + count;
    const auto made = lineTypeOf(
        "numberOfPatternElements=\"" + QByteArray(count) + "\"><SymbolTableNameRecord>" + name +
        "</SymbolTableNameRecord><LinetypeElements>" + dash + "</LinetypeElements>");
    ASSERT_TRUE(made) << count;
    ASSERT_EQ(made->numDashes(), 2) << count;
    EXPECT_EQ(made->dashLengthAt(0), 2);
    EXPECT_EQ(made->dashLengthAt(1), -1);
  }
}

TEST_F(RefusedValuesTest, AMillionDashesWithTextsArriveAndShareOneStyle) {
  // Were the style looked up for each of them among so many, this would take hours.
  constexpr int kMany = 1'000'000;
  for (int i = 0; i < 2000; ++i) {
    auto style = odrxMake<OdDbTextStyleTableRecord>();
    style->setName(u"Style %1"_s.arg(i));
    style->setFileName(u"font%1.shx"_s.arg(i));
    drawing->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  }
  auto font = odrxMake<OdTcTextStyleTableRecordImpl>();
  font->setRecordName(u"Mine"_s);
  OdTcTextStyleValues fontValues;
  fontValues.fontOrShapeFile = u"mine.shx"_s;
  font->setValues(fontValues);
  const auto fontProperty = odrxMake<OdTcTextStylePropertyImpl>();
  dynamic_cast<OdTcTextStylePropertyCreateInfoImpl*>(fontProperty->getCreateInfo())
      ->setRecord(font);
  const auto reference = odrxMake<OdTcPropertyReferenceImpl>();
  reference->setHandle(7);
  reference->setTextStyle(fontProperty);
  const auto styles = odrxMake<OdTcTextStyleTableRecordCollectionImpl>();
  styles->add(reference);

  const auto elements = odrxMake<OdTcLineTypeElementsListImpl>();
  OdTcComplexElementValues values;
  values.styleHandle = 7;
  values.text = u"x"_s;
  for (int i = 0; i < kMany; ++i) {
    const auto element = odrxMake<OdTcLineTypeElementImpl>();
    element->setLength(i % 2 ? -1 : 1);
    const auto complex = odrxMake<OdTcComplexLineTypeElementImpl>();
    complex->setValues(values);
    element->setComplexElement(complex);
    elements->add(element);
  }
  const auto lineType = odrxMake<OdTcLineTypeTableRecordImpl>();
  lineType->setRecordName(u"Many"_s);
  lineType->readField(u"LinetypeElements"_s, OdVariant(elements));
  lineType->readField(u"TextstyleTableRecordCollection"_s, OdVariant(styles));
  const OdDbLinetypeTableRecordPtr made = ensureRecord(drawing, lineType).openObject();
  ASSERT_TRUE(made);
  ASSERT_EQ(made->numDashes(), kMany);
  EXPECT_EQ(made->textAt(kMany - 1), u"x"_s);
  EXPECT_EQ(made->shapeStyleAt(kMany - 1).openAs<OdDbTextStyleTableRecord>()->getName(), u"Mine"_s);
}

TEST_F(RefusedValuesTest, LengthsThatAreNoNumbersAreNone) {
  const auto made =
      lineTypeOf("numberOfPatternElements=\"3\"><SymbolTableNameRecord>Odd</SymbolTableNameRecord>"
                 "<TotalPatternLength>NaN</TotalPatternLength><LinetypeElements>"
                 "<LinetypeElement><Dash>nan</Dash></LinetypeElement>"
                 "<LinetypeElement><Space>-inf</Space></LinetypeElement>"
                 "<LinetypeElement><Dash>1e999</Dash></LinetypeElement></LinetypeElements>");
  ASSERT_TRUE(made) << told().toStdString();
  EXPECT_EQ(made->patternLength(), 0);
  EXPECT_EQ(made->dashLengthAt(0), 0);
  EXPECT_EQ(made->dashLengthAt(1), 0);
  EXPECT_TRUE(std::isfinite(made->dashLengthAt(2)));
}

TEST_F(RefusedValuesTest, ALengthThatIsNoNumberIsTold) {
  lineTypeOf("numberOfPatternElements=\"1\"><SymbolTableNameRecord>Odd</SymbolTableNameRecord>"
             "<TotalPatternLength>NaN</TotalPatternLength><LinetypeElements>"
             "<LinetypeElement><Dash>nan</Dash></LinetypeElement></LinetypeElements>");
  EXPECT_TRUE(told().contains(u"TotalPatternLength: \"NaN\""_s)) << told().toStdString();
  EXPECT_TRUE(told().contains(u"Dash: \"nan\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, AColorOfMoreThanItsBitsIsToldAndNotTaken) {
  const auto color = readPart<OdTcColorPropertyImpl>(
      "<Color><BasicPropInfo><PropValue unspecified=\"FALSE\"/></BasicPropInfo>"
      "<ColorCreateInfo><AcCmColor mRGB=\"7566524417\"/></ColorCreateInfo></Color>");
  EXPECT_FALSE(color->hasColor()) << "its last 32 bits are colour 1";
  EXPECT_TRUE(told().contains(u"mRGB: \"7566524417\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, ALayersLineTypeThatIsNowhereIsTold) {
  const auto layer = readPart<OdTcLayerPropertyImpl>(
      layerElement(u"Walls"_s, "<Linetype><BasicPropInfo><PropValue unspecified=\"FALSE\" "
                               "valueType=\"1\" value=\"Nowhere\"/></BasicPropInfo></Linetype>")
          .constData());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayer(), u"Walls"_s);
  EXPECT_TRUE(told().contains(u"General.Line type: \"Nowhere\""_s)) << told().toStdString();
}

TEST_F(RefusedValuesTest, ATransparencyThatDrawingsCannotHaveIsTold) {
  const auto apply = [&](const char16_t* percent) {
    testhost::host().log.clear();
    const auto property = odrxMake<OdTcTransparencyPropertyImpl>();
    property->setText(OdString::fromUtf16(percent));
    drawing->setCurrentTransparency(OdCmTransparency());
    property->applyToDatabase(drawing);
    return drawing->currentTransparency();
  };
  EXPECT_EQ(apply(u"90").percent(), 90);
  EXPECT_EQ(told(), QString());
  EXPECT_EQ(apply(u"33.7"), OdCmTransparency::fromAlpha(169)) << "not that of 33";
  EXPECT_EQ(told(), QString());
  for (const char16_t* percent : {u"90.5", u"95", u"100"}) {
    EXPECT_TRUE(apply(percent).isByLayer());
    EXPECT_TRUE(told().contains(u"General.Transparency: \""_s + OdString::fromUtf16(percent)));
  }
}

TEST_F(RefusedValuesTest, AFontOfALineTypeIsFoundInAnyCase) {
  auto shapes = odrxMake<OdDbTextStyleTableRecord>();
  shapes->setName(u"Notes"_s);
  shapes->setFileName(u"ROMANS.SHX"_s);
  const OdDbObjectId own =
      drawing->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(shapes);
  const auto made = lineTypeOf(
      "numberOfPatternElements=\"1\"><SymbolTableNameRecord>Gas</SymbolTableNameRecord>"
      "<LinetypeElements><LinetypeElement><Dash>2</Dash><ComplexLinetypeElement handle=\"7\">"
      "<TextString>GAS</TextString></ComplexLinetypeElement></LinetypeElement></LinetypeElements>"
      "<TextstyleTableRecordCollection><Reference handle=\"7\"><Textstyle><TextStyleCreateInfo>"
      "<TextstyleTableRecord fontOrShapeFile=\"romans.shx\" widthRatio=\"1\">"
      "<SymbolTableNameRecord>Mine</SymbolTableNameRecord></TextstyleTableRecord>"
      "</TextStyleCreateInfo></Textstyle></Reference></TextstyleTableRecordCollection>");
  ASSERT_TRUE(made);
  EXPECT_EQ(made->shapeStyleAt(0), own);
}

TEST_F(RefusedValuesTest, ANameInAnotherCaseKeepsItsSnapshot) {
  const auto layer = readPart<OdTcLayerPropertyImpl>(
      layerElement(u"Walls"_s, {}, "lineWeight=\"35\"").constData());
  layer->setRecordName(u"WALLS"_s);
  ASSERT_TRUE(layer->record());
  layer->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLayer().openAs<OdDbLayerTableRecord>()->lineWeight(), 35);
  layer->setRecordName(u"Windows"_s);
  EXPECT_FALSE(layer->record()) << "another name is another record";
}

TEST_F(RefusedValuesTest, ATextStyleKeepsAFontThatThisMachineLacks) {
  const auto style = readPart<OdTcTextStylePropertyImpl>(
      "<Textstyle><TextStyleCreateInfo><TextstyleTableRecord isShapeFilePointer=\"FALSE\" "
      "fontOrShapeFile=\"nowhere.shx\" widthRatio=\"0.5\"><SymbolTableNameRecord>Lost"
      "</SymbolTableNameRecord></TextstyleTableRecord></TextStyleCreateInfo></Textstyle>");
  const OdDbTextStyleTableRecordPtr made = style->recordIn(drawing).openObject();
  ASSERT_TRUE(made);
  EXPECT_EQ(made->fileName(), u"nowhere.shx"_s);
  EXPECT_EQ(told(), QString());
}

TEST_F(RefusedValuesTest, ATextStyleThatNoDrawingTakesIsToldAndTheDrawingsOwnStays) {
  const auto style = readPart<OdTcTextStylePropertyImpl>(
      "<Textstyle><TextStyleCreateInfo><TextstyleTableRecord widthRatio=\"0\">"
      "<SymbolTableNameRecord>Flat</SymbolTableNameRecord></TextstyleTableRecord>"
      "</TextStyleCreateInfo></Textstyle>");
  const OdDbObjectId own = drawing->currentTextStyle();
  EXPECT_NO_THROW(style->applyToDatabase(drawing));
  EXPECT_EQ(drawing->currentTextStyle(), own);
  EXPECT_TRUE(told().contains(u"Cannot make the text style \"Flat\""_s)) << told().toStdString();
}

} // namespace
