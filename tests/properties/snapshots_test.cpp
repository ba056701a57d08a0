// Layers, line types and text styles as snapshots.
#include "drawing/database.h"
#include "properties/general_properties.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_element_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "properties/property_reference_impl.h"
#include "properties/text_style_table_record_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;
using testhost::expectGolden;
using testhost::readPart;
using testhost::written;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct SnapshotsTest : testhost::ModuleFixture {
  static OdSmartPtr<OdTcTextStyleTableRecordImpl> style() {
    auto style = odrxMake<OdTcTextStyleTableRecordImpl>();
    style->setRecordName(text(u"Notes"));
    OdTcTextStyleValues v;
    v.fontOrShapeFile = text(u"romans.shx");
    v.isMirroredInX = true;
    v.widthRatio = 0.8;
    v.fixedHeight = 2.5;
    v.obliqueAngle = 0.25;
    v.priorHeight = 3.5;
    style->setValues(v);
    return style;
  }
  static OdSmartPtr<OdTcPropertyReferenceImpl> reference(std::uint64_t handle) {
    const auto property = odrxMake<OdTcTextStylePropertyImpl>();
    dynamic_cast<OdTcTextStylePropertyCreateInfoImpl*>(property->getCreateInfo())
        ->setRecord(style());
    auto made = odrxMake<OdTcPropertyReferenceImpl>();
    made->setHandle(handle);
    made->setTextStyle(property);
    return made;
  }
  static OdSmartPtr<OdTcLineTypeElementImpl> element(double length) {
    auto made = odrxMake<OdTcLineTypeElementImpl>();
    made->setLength(length);
    return made;
  }
};

TEST_F(SnapshotsTest, LayerWithoutAPlotStyleWritesNone) {
  auto layer = odrxMake<OdTcLayerTableRecordImpl>();
  layer->setRecordName(text(u"Walls"));
  EXPECT_FALSE(written(layer).contains("Plotstylename"));
  layer->setPlotStyleName(text(u"Grey"));
  EXPECT_TRUE(written(layer).contains("<Plotstylename>Grey</Plotstylename>"));
}

TEST_F(SnapshotsTest, LayerKeepsANegativeWeightWithItsSign) {
  auto layer = odrxMake<OdTcLayerTableRecordImpl>();
  layer->setLineWeight(-2);
  const auto back = testhost::readParts(written(layer));
  EXPECT_EQ(dynamic_cast<OdTcLayerTableRecordImpl*>(back->parts.at(0).get())->lineWeight(), -2);
  EXPECT_TRUE(written(layer).contains("lineWeight=\"-2\""));
}

TEST_F(SnapshotsTest, LayerRefusesPartsOfAnotherClass) {
  auto layer = odrxMake<OdTcLayerTableRecordImpl>();
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  EXPECT_THROW(layer->setLineType(color), OdError_NotThatKindOfClass);
  EXPECT_THROW(layer->readField(text(u"Linetype"), OdVariant(color)), OdError_NotThatKindOfClass);
  EXPECT_THROW(layer->readField(text(u"Color"), OdVariant(odrxMake<OdTcLayerPropertyImpl>())),
               OdError_NotThatKindOfClass);
}

TEST_F(SnapshotsTest, LineTypeWithoutDashesWritesAnEmptyList) {
  const QByteArray bytes = written(odrxMake<OdTcLineTypeTableRecordImpl>());
  EXPECT_TRUE(bytes.contains("numberOfPatternElements=\"0\""));
  EXPECT_TRUE(bytes.contains("<LinetypeElements"));
  EXPECT_FALSE(bytes.contains("<LinetypeElement>"));
  EXPECT_FALSE(bytes.contains("TextstyleTableRecordCollection"));
}

TEST_F(SnapshotsTest, GapIsStoredUnderItsNameAndComesBackNegative) {
  const QByteArray bytes = written(element(-0.75));
  EXPECT_TRUE(bytes.contains("<Space>-0.75</Space>"));
  const auto back = testhost::readParts(bytes);
  EXPECT_EQ(dynamic_cast<OdTcLineTypeElement*>(back->parts.at(0).get())->length(), -0.75);
}

TEST_F(SnapshotsTest, LengthIsTakenAsItStandsUnderAnyName) {
  EXPECT_EQ(readPart<OdTcLineTypeElementImpl>("<LinetypeElement><Space>4</Space></LinetypeElement>")
                ->length(),
            4.0);
  EXPECT_TRUE(written(element(0)).contains("<Dot>0</Dot>"));
  EXPECT_TRUE(written(element(2)).contains("<Dash>2</Dash>"));
  const QByteArray none = written(element(OdTcLineTypeElement::kNoLength));
  EXPECT_FALSE(none.contains("<Dash>") || none.contains("<Space>") || none.contains("<Dot>"));
}

TEST_F(SnapshotsTest, TextStyleWithoutATypeFaceHasNoFontData) {
  EXPECT_FALSE(written(style()).contains("FontXdata"));
  const auto font = readPart<OdTcTextStyleTableRecordImpl>(
      "<TextstyleTableRecord isShapeFilePointer=\"FALSE\" fontOrShapeFile=\"\">"
      "<FontXdata typeFace=\"Arial\" bold=\"TRUE\" italic=\"1\" charSet=\"162\" "
      "pitchAndFamily=\"34\"/></TextstyleTableRecord>");
  ASSERT_TRUE(font);
  EXPECT_EQ(font->values().typeFace, text(u"Arial"));
  EXPECT_TRUE(font->values().isBold);
  EXPECT_TRUE(font->values().isItalic);
  EXPECT_EQ(font->values().charSet, 162);
  EXPECT_EQ(font->values().pitchAndFamily, 34);
}

TEST_F(SnapshotsTest, HandleOfAReferenceIsReadAsASigned32BitNumber) {
  const auto read = [](const char* handle) {
    return readPart<OdTcPropertyReferenceImpl>(
               (QByteArray("<Reference handle=\"") + handle + "\"/>").constData())
        ->handle();
  };
  EXPECT_EQ(read("17"), 17u);
  EXPECT_EQ(read("5000000000"), 2147483647u);
  EXPECT_EQ(read("4294967297"), 2147483647u);
  EXPECT_EQ(read("-5"), 0u);
  auto reference = odrxMake<OdTcPropertyReferenceImpl>();
  reference->setHandle(5000000000u);
  EXPECT_TRUE(written(reference).contains("handle=\"5000000000\""));
  EXPECT_THROW(reference->setTextStyle(odrxMake<OdTcColorPropertyImpl>()),
               OdError_NotThatKindOfClass);
}

TEST_F(SnapshotsTest, HandleOfAReferenceIsTheSameFromTheFirstSaveOn) {
  for (const char* const handle : {"-5", "4294967297", "-99999999999999999999", "none"}) {
    const auto saved = [](const QByteArray& bytes) {
      return written(testhost::readParts(bytes)->parts);
    };
    const QByteArray first =
        saved(QByteArray("<Palette><Reference handle=\"") + handle + "\"/></Palette>");
    EXPECT_TRUE(first.contains("handle="));
    EXPECT_EQ(saved(first).toStdString(), first.toStdString()) << handle;
  }
}

TEST_F(SnapshotsTest, ComplexElementGoesIntoADrawingAndBack) {
  const OdDbDatabasePtr source = OdDbDatabase::createDatabase();
  auto font = odrxMake<OdDbTextStyleTableRecord>();
  font->setName(text(u"Gas"));
  font->setFileName(text(u"gas.shx"));
  const OdDbObjectId fontId =
      source->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(font);
  auto line = odrxMake<OdDbLinetypeTableRecord>();
  line->setName(text(u"Gas line"));
  line->setComments(text(u"--GAS--"));
  line->setPatternLength(1.5);
  line->setNumDashes(2);
  line->setDashLengthAt(0, 1);
  line->setDashLengthAt(1, -0.5);
  for (int i = 0; i < 2; ++i) {
    line->setShapeStyleAt(i, fontId);
    line->setTextAt(i, text(u"GAS"));
    line->setShapeScaleAt(i, 0.1);
    line->setShapeRotationAt(i, 0.5);
    line->setShapeOffsetAt(i, {-0.1, -0.05});
    line->setShapeIsUcsOrientedAt(i, true);
  }
  const auto snapshot = odrxMake<OdTcLineTypeTableRecordImpl>();
  snapshot->takeFrom(
      source->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(line));
  EXPECT_EQ(snapshot->numberOfDashes(), 2);
  ASSERT_EQ(snapshot->elements()->count(), 2);
  ASSERT_TRUE(snapshot->textStyles());
  EXPECT_EQ(snapshot->textStyles()->count(), 1) << "one reference for each style";

  const auto back = testhost::readParts(written(snapshot));
  const auto* const read = dynamic_cast<OdTcLineTypeTableRecordImpl*>(back->parts.at(0).get());
  ASSERT_TRUE(read);
  const OdDbDatabasePtr target = OdDbDatabase::createDatabase();
  const auto made = ensureRecord(target, read).openAs<OdDbLinetypeTableRecord>();
  EXPECT_EQ(made->comments(), text(u"--GAS--"));
  EXPECT_EQ(made->patternLength(), 1.5);
  EXPECT_EQ(made->textAt(1), text(u"GAS"));
  EXPECT_EQ(made->shapeScaleAt(1), 0.1);
  EXPECT_TRUE(made->shapeIsUcsOrientedAt(0));
  EXPECT_EQ(made->shapeOffsetAt(0).x, -0.1);
  const OdDbObjectId styleId = made->shapeStyleAt(0);
  ASSERT_FALSE(styleId.isNull());
  EXPECT_EQ(styleId, made->shapeStyleAt(1)) << "the style is made once";
  EXPECT_EQ(styleId.openAs<OdDbTextStyleTableRecord>()->fileName(), text(u"gas.shx"));
}

TEST_F(SnapshotsTest, ComplexElementWithoutItsReferenceKeepsTheShapeAndNoStyle) {
  const auto snapshot = readPart<OdTcLineTypeTableRecordImpl>(
      "<LinetypeTableRecord numberOfPatternElements=\"1\">"
      "<SymbolTableNameRecord>Fence</SymbolTableNameRecord>"
      "<TotalPatternLength>1</TotalPatternLength><LinetypeElements><LinetypeElement>"
      "<Dash>1</Dash><ComplexLinetypeElement handle=\"77\" scaleFactor=\"2\">"
      "<Dash>1</Dash><ShapeNumber>132</ShapeNumber></ComplexLinetypeElement>"
      "</LinetypeElement></LinetypeElements></LinetypeTableRecord>");
  ASSERT_TRUE(snapshot);
  const OdDbDatabasePtr target = OdDbDatabase::createDatabase();
  const auto made = ensureRecord(target, snapshot).openAs<OdDbLinetypeTableRecord>();
  EXPECT_EQ(made->shapeNumberAt(0), 132);
  EXPECT_EQ(made->shapeScaleAt(0), 2.0);
  EXPECT_TRUE(made->shapeStyleAt(0).isNull());
}

TEST_F(SnapshotsTest, TakingFromAnotherKindOfRecordIsRefused) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  EXPECT_THROW(odrxMake<OdTcLayerTableRecordImpl>()->takeFrom(drawing->currentTextStyle()),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(odrxMake<OdTcTextStyleTableRecordImpl>()->takeFrom(drawing->getLayerZeroId()),
               OdError_NotThatKindOfClass);
  EXPECT_THROW(odrxMake<OdTcLineTypeTableRecordImpl>()->takeFrom(OdDbObjectId()), OdError);
}

TEST_F(SnapshotsTest, ClonesOwnTheirParts) {
  const auto lineType = odrxMake<OdTcLineTypeTableRecordImpl>();
  lineType->elements()->add(element(1));
  const OdRxObjectPtr made = lineType->clone();
  const auto* const copy = dynamic_cast<OdTcLineTypeTableRecordImpl*>(made.get());
  ASSERT_TRUE(copy);
  copy->elements()->at(0)->setLength(9);
  EXPECT_EQ(lineType->elements()->at(0)->length(), 1.0);
  EXPECT_EQ(copy->elements()->owner(), copy);
  EXPECT_THROW(copy->elements()->at(1), OdError_InvalidIndex);

  auto layer = odrxMake<OdTcLayerTableRecordImpl>();
  layer->setColor(OdCmColor::fromColorIndex(2));
  layer->setLineType(odrxMake<OdTcLineTypePropertyImpl>());
  const OdRxObjectPtr twin = layer->clone();
  const auto* const layerCopy = dynamic_cast<OdTcLayerTableRecordImpl*>(twin.get());
  ASSERT_TRUE(layerCopy);
  EXPECT_NE(layerCopy->color(), layer->color());
  EXPECT_NE(layerCopy->lineType(), layer->lineType());
  EXPECT_EQ(layerCopy->color()->owner(), layerCopy);
}

TEST_F(SnapshotsTest, StandInAFileAsTheGoldenOnes) {
  const auto lineType = odrxMake<OdTcLineTypeTableRecordImpl>();
  lineType->setRecordName(text(u"Gas line"));
  for (const char* const attribute : {"numberOfPatternElements"})
    lineType->readField(OdString::fromLatin1(attribute), OdVariant(text(u"3")));
  lineType->readField(text(u"Description"), OdVariant(text(u"--GAS--")));
  lineType->readField(text(u"TotalPatternLength"), OdVariant(text(u"1.75")));
  for (const double length : {1.0, 0.0, -0.75}) lineType->elements()->add(element(length));
  auto complex = odrxMake<OdTcComplexLineTypeElementImpl>();
  complex->setLength(-0.75);
  complex->setValues({42, 0.1, 0.5, -0.1, -0.05, text(u"GAS"), 7, true});
  lineType->elements()->at(2)->setComplexElement(complex);
  const auto styles = odrxMake<OdTcTextStyleTableRecordCollectionImpl>();
  styles->add(reference(42));
  lineType->readField(text(u"TextstyleTableRecordCollection"), OdVariant(styles));
  expectGolden("LinetypeTableRecord", lineType);

  auto layer = odrxMake<OdTcLayerTableRecordImpl>();
  layer->setRecordName(text(u"Walls"));
  layer->setLineWeight(35);
  layer->setNotPlotted(true);
  layer->setPlotStyleName(text(u"Grey"));
  layer->setColor(OdCmColor::fromColorIndex(6));
  const auto lineTypeProperty = odrxMake<OdTcLineTypePropertyImpl>();
  lineTypeProperty->setText(text(u"Continuous"));
  layer->setLineType(lineTypeProperty);
  expectGolden("LayerTableRecord", layer);

  auto font = style();
  OdTcTextStyleValues v = font->values();
  v.typeFace = text(u"Arial");
  v.isBold = true;
  v.pitchAndFamily = 34;
  font->setValues(v);
  expectGolden("TextstyleTableRecord", {OdTcPersistPtr(style()), OdTcPersistPtr(font)});
}

} // namespace
