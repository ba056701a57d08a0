// What general properties do to a drawing.
#include "properties/general_properties.h"

#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "drawing/variable_recording.h"
#include "properties/layer_table_record_impl.h"
#include "properties/line_type_table_record_impl.h"
#include "support/golden.h"
#include "support/module_fixture.h"

namespace {

using namespace tc;

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

struct DrawingValuesTest : testhost::ModuleFixture {
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();

  OdDbObjectId addLayer(const char16_t* name, int colorIndex) {
    auto layers = drawing->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite);
    auto layer = odrxMake<OdDbLayerTableRecord>();
    layer->setName(text(name));
    layer->setColor(OdCmColor::fromColorIndex(colorIndex));
    return layers->add(layer);
  }
  OdString currentLayerName() {
    return drawing->currentLayer().openAs<OdDbLayerTableRecord>()->getName();
  }
};

TEST_F(DrawingValuesTest, ColorIsImposedForTheRunAndPutBack) {
  drawing->setCurrentColor(OdCmColor::fromColorIndex(1));
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  color->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().colorIndex(), 3);
  EXPECT_TRUE(color->hasSavedValue());
  color->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().colorIndex(), 1);
  EXPECT_FALSE(color->hasSavedValue());
}

TEST_F(DrawingValuesTest, ACloneMadeInARunPutsNothingBack) {
  drawing->setCurrentColor(OdCmColor::fromColorIndex(1));
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  color->applyToDatabase(drawing);
  const OdRxObjectPtr made = color->clone();
  auto* const copy = dynamic_cast<OdTcDatabasePropertyImpl*>(made.get());
  ASSERT_TRUE(copy);
  EXPECT_FALSE(copy->hasSavedValue());
  EXPECT_EQ(copy->color().colorIndex(), 3);
  copy->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().colorIndex(), 3) << "the run goes on";
  color->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().colorIndex(), 1);
}

TEST_F(DrawingValuesTest, UnspecifiedColorKeepsTheDrawingsOwn) {
  drawing->setCurrentColor(OdCmColor::fromColorIndex(1));
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  color->getBasicInfo()->setUnspecified(true);
  color->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentColor().colorIndex(), 1);
}

TEST_F(DrawingValuesTest, ARunNeverLeavesAValueBehind) {
  addLayer(u"Walls", 2);
  const auto unspecified = odrxMake<OdTcLayerPropertyImpl>();
  unspecified->getBasicInfo()->setUnspecified(true);
  const auto empty = odrxMake<OdTcLayerPropertyImpl>();
  for (const auto& layer : {unspecified, empty}) {
    layer->applyToDatabase(drawing);
    EXPECT_TRUE(layer->hasSavedValue());
    // As the tool's own command would do.
    drawing->setCurrentLayer(
        drawing->getLayerTableId().openAs<OdDbLayerTable>()->getAt(text(u"Walls")));
    layer->restoreToDatabase(drawing);
    EXPECT_EQ(currentLayerName(), text(u"0"));
    EXPECT_FALSE(layer->hasSavedValue());
  }
}

TEST_F(DrawingValuesTest, PuttingBackAValueThatIsInForceChangesNothing) {
  // A file need not say all its variables, and one that is set comes into the file.
  const QByteArray bare = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n0\nENDSEC\n0\nEOF\n";
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(bare, text(u"bare.dxf"));
  read->setSaved();
  read->startUndoRecord(text(u"run"));
  const OdTcDatabasePropertyPtr all[] = {
      odrxMake<OdTcColorPropertyImpl>(),        odrxMake<OdTcLayerPropertyImpl>(),
      odrxMake<OdTcLineTypePropertyImpl>(),     odrxMake<OdTcLineTypeScalePropertyImpl>(),
      odrxMake<OdTcPlotStylePropertyImpl>(),    odrxMake<OdTcLineWeightPropertyImpl>(),
      odrxMake<OdTcTransparencyPropertyImpl>(), odrxMake<OdTcTextStylePropertyImpl>(),
      odrxMake<OdTcDimStylePropertyImpl>()};
  for (const OdTcDatabasePropertyPtr& property : all) {
    property->applyToDatabase(read);
    property->restoreToDatabase(read);
    EXPECT_FALSE(read->isModified()) << property->elementName().toStdString();
  }
  read->endUndoRecord();
  EXPECT_FALSE(read->hasUndo());
}

TEST_F(DrawingValuesTest, AValueThatNoDrawingTakesBackIsTold) {
  const QByteArray odd = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n9\n$CELWEIGHT\n370\n7\n"
                         "0\nENDSEC\n0\nEOF\n";
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(odd, text(u"odd.dxf"));
  ASSERT_EQ(read->currentLineWeight(), 7);
  const auto weight = odrxMake<OdTcLineWeightPropertyImpl>();
  weight->setText(text(u"25"));
  weight->applyToDatabase(read);
  EXPECT_EQ(read->currentLineWeight(), 25);
  EXPECT_NO_THROW(weight->restoreToDatabase(read));
  EXPECT_FALSE(weight->hasSavedValue());
  EXPECT_TRUE(testhost::host().log.join(u'\n').contains(weight->getDisplayName()))
      << testhost::host().log.join(u'\n').toStdString();
}

TEST_F(DrawingValuesTest, ANamedPlotStyleDoesNotStayBehindTheTypeThatIsPutBack) {
  const OdDbDictionaryPtr styles =
      drawing->getPlotStyleNameDictionaryId().openObject(OdDb::kForWrite);
  styles->setAt(text(u"Grey"), odrxMake<OdDbDictionaryVar>());
  const QByteArray before = drawing->writeDxf();
  const auto style = odrxMake<OdTcPlotStylePropertyImpl>();
  style->setText(text(u"Grey"));
  style->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentPlotStyleType(), OdDb::kPlotStyleNameById);
  style->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentPlotStyleType(), OdDb::kPlotStyleNameByLayer);
  EXPECT_EQ(drawing->writeDxf(), before);
}

TEST_F(DrawingValuesTest, FrozenPropertyNeitherSavesNorApplies) {
  const auto scale = odrxMake<OdTcLineTypeScalePropertyImpl>();
  scale->setText(text(u"4"));
  scale->setFrozen(true);
  scale->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLinetypeScale(), 1.0);
  EXPECT_FALSE(scale->hasSavedValue());
}

TEST_F(DrawingValuesTest, NewPropertiesImposeNothing) {
  const QByteArray before = drawing->writeDxf();
  const OdTcDatabasePropertyPtr all[] = {
      odrxMake<OdTcColorPropertyImpl>(),        odrxMake<OdTcLayerPropertyImpl>(),
      odrxMake<OdTcLineTypePropertyImpl>(),     odrxMake<OdTcLineTypeScalePropertyImpl>(),
      odrxMake<OdTcPlotStylePropertyImpl>(),    odrxMake<OdTcLineWeightPropertyImpl>(),
      odrxMake<OdTcTransparencyPropertyImpl>(), odrxMake<OdTcTextStylePropertyImpl>(),
      odrxMake<OdTcDimStylePropertyImpl>(),     odrxMake<OdTcTableStylePropertyImpl>()};
  for (const OdTcDatabasePropertyPtr& property : all) {
    property->applyToDatabase(drawing);
    EXPECT_EQ(drawing->writeDxf(), before) << property->elementName().toStdString();
    property->restoreToDatabase(drawing);
    EXPECT_EQ(drawing->writeDxf(), before) << property->elementName().toStdString();
  }
}

TEST_F(DrawingValuesTest, TableStyleChangesNothingInARun) {
  const QByteArray before = drawing->writeDxf();
  const auto style = odrxMake<OdTcTableStylePropertyImpl>();
  style->setText(text(u"Parts list"));
  style->applyToDatabase(drawing);
  style->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->writeDxf(), before);
}

struct WeightRow {
  const char16_t* value;
  int weight;
};
class LineWeightTest : public DrawingValuesTest, public testing::WithParamInterface<WeightRow> {};

TEST_P(LineWeightTest, IsImposedIfTheDrawingKnowsIt) {
  drawing->setCurrentLineWeight(static_cast<OdDb::LineWeight>(50));
  const auto weight = odrxMake<OdTcLineWeightPropertyImpl>();
  weight->setText(text(GetParam().value));
  weight->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLineWeight(), GetParam().weight);
  weight->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentLineWeight(), 50);
}

INSTANTIATE_TEST_SUITE_P(Values, LineWeightTest,
                         testing::Values(WeightRow{u"ByLayer", -1}, WeightRow{u"ByBlock", -2},
                                         WeightRow{u"ByDefault", -3}, WeightRow{u"-1", -1},
                                         WeightRow{u"25", 25}, WeightRow{u"26", 50},
                                         WeightRow{u"99999999999", 50}, WeightRow{u"", 50},
                                         WeightRow{u"VonLayer", -1}, WeightRow{u"999", 50},
                                         WeightRow{u"2.5", 50}, WeightRow{u"vonnirgends", 50},
                                         WeightRow{u"nan", 50}));

TEST_F(DrawingValuesTest, TransparencyTakesPercentAndTheSpecialWords) {
  const auto value = odrxMake<OdTcTransparencyPropertyImpl>();
  const auto applied = [&](const char16_t* stored) {
    drawing->setCurrentTransparency(OdCmTransparency::fromPercent(10));
    value->setText(text(stored));
    value->applyToDatabase(drawing);
    const OdCmTransparency result = drawing->currentTransparency();
    value->restoreToDatabase(drawing);
    EXPECT_EQ(drawing->currentTransparency(), OdCmTransparency::fromPercent(10));
    return result;
  };
  EXPECT_EQ(applied(u"50").percent(), 50);
  EXPECT_TRUE(applied(u"ByLayer").isByLayer());
  EXPECT_TRUE(applied(u"ByBlock").isByBlock());
  EXPECT_TRUE(applied(u"VonLayer").isByLayer()) << "as programs in German write it";
  EXPECT_TRUE(applied(u"ПоБлоку").isByBlock());
  EXPECT_EQ(applied(u"vonnirgends").percent(), 10);
  EXPECT_EQ(applied(u"-5").percent(), 10);
  EXPECT_EQ(applied(u"150").percent(), 10);
  EXPECT_EQ(applied(u"nan").percent(), 10);
}

TEST_F(DrawingValuesTest, ACancelledCommandDoesNotBringLentValuesAgain) {
  // Another tool takes the place of one whose command is under way: its values go back first, and
  // then the command's changes are taken back.
  const oddb::VariableRecording lent(drawing, false);
  drawing->setCurrentColor(OdCmColor::fromRgb(1, 2, 3));
  const auto transparency = odrxMake<OdTcTransparencyPropertyImpl>();
  transparency->setText(text(u"40"));
  const auto color = odrxMake<OdTcColorPropertyImpl>();
  color->setColor(OdCmColor::fromColorIndex(3));
  drawing->startUndoRecord(text(u"EXECUTETOOL"));
  transparency->applyToDatabase(drawing);
  color->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentTransparency().percent(), 40);
  drawing->endUndoRecord();
  drawing->startUndoRecord(text(u"LINE"));
  drawing->getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));
  transparency->restoreToDatabase(drawing);
  color->restoreToDatabase(drawing);
  drawing->abandonUndoRecord();
  EXPECT_TRUE(drawing->currentTransparency().isByLayer());
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(drawing->writeDxf(), text(u"after.dxf"));
  EXPECT_EQ(read->currentColor(), OdCmColor::fromRgb(1, 2, 3));
  EXPECT_TRUE(read->currentTransparency().isByLayer());
  EXPECT_FALSE(drawing->hasUndo()) << "what was lent is no change";
}

TEST_F(DrawingValuesTest, ScaleIsImposedOnlyAboveZero) {
  const auto scale = odrxMake<OdTcLineTypeScalePropertyImpl>();
  scale->setText(text(u"2.5"));
  scale->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLinetypeScale(), 2.5);
  scale->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentLinetypeScale(), 1.0);
  for (const char16_t* const bad : {u"0", u"-1", u"inf", u"wide"}) {
    scale->setText(text(bad));
    scale->applyToDatabase(drawing);
    EXPECT_EQ(drawing->currentLinetypeScale(), 1.0) << text(bad).toStdString();
  }
}

TEST_F(DrawingValuesTest, LayerOfTheDrawingWinsOverTheSnapshot) {
  const OdDbObjectId existing = addLayer(u"Walls", 2);
  auto snapshot = odrxMake<OdTcLayerTableRecordImpl>();
  snapshot->setRecordName(text(u"Walls"));
  snapshot->setColor(OdCmColor::fromColorIndex(6));
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  dynamic_cast<OdTcLayerPropertyCreateInfoImpl*>(layer->getCreateInfo())->setRecord(snapshot);
  layer->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLayer(), existing);
  EXPECT_EQ(existing.openAs<OdDbLayerTableRecord>()->color().colorIndex(), 2);
  layer->restoreToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"0"));
}

TEST_F(DrawingValuesTest, MissingLayerIsMadeFromTheSnapshotWithItsLineType) {
  // The tool is made in one drawing and run in another.
  const OdDbDatabasePtr source = OdDbDatabase::createDatabase();
  auto dashed = odrxMake<OdDbLinetypeTableRecord>();
  dashed->setName(text(u"Dashed"));
  dashed->setPatternLength(3);
  dashed->setNumDashes(2);
  dashed->setDashLengthAt(0, 2);
  dashed->setDashLengthAt(1, -1);
  const OdDbObjectId dashedId =
      source->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(dashed);
  auto walls = odrxMake<OdDbLayerTableRecord>();
  walls->setName(text(u"Walls"));
  walls->setColor(OdCmColor::fromColorIndex(6));
  walls->setLineWeight(static_cast<OdDb::LineWeight>(35));
  walls->setIsPlottable(false);
  walls->setLinetypeObjectId(dashedId);
  const OdDbObjectId wallsId =
      source->getLayerTableId().openAs<OdDbLayerTable>(OdDb::kForWrite)->add(walls);

  const auto taken = odrxMake<OdTcLayerPropertyImpl>();
  taken->takeRecord(wallsId);
  EXPECT_EQ(taken->text(), text(u"Walls"));
  // Through a file, as a tool would go.
  const auto back = testhost::readParts(testhost::written(taken));
  ASSERT_EQ(back->parts.size(), 1u);
  auto* const layer = dynamic_cast<OdTcLayerPropertyImpl*>(back->parts[0].get());
  ASSERT_TRUE(layer);

  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"Walls"));
  const auto made = drawing->currentLayer().openAs<OdDbLayerTableRecord>();
  EXPECT_EQ(made->color().colorIndex(), 6);
  EXPECT_EQ(made->lineWeight(), 35);
  EXPECT_FALSE(made->isPlottable());
  const auto lineType = made->linetypeObjectId().openAs<OdDbLinetypeTableRecord>();
  EXPECT_EQ(lineType->getName(), text(u"Dashed"));
  ASSERT_EQ(lineType->numDashes(), 2);
  EXPECT_EQ(lineType->dashLengthAt(1), -1);
  layer->restoreToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"0"));
  // A second run finds the layer.
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"Walls"));
}

TEST_F(DrawingValuesTest, NameWithoutASnapshotLeadsToARecordOfTheDrawing) {
  addLayer(u"Doors", 4);
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  layer->setText(text(u"doors"));
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"Doors"));
  layer->restoreToDatabase(drawing);
  layer->setText(text(u"Windows"));
  layer->applyToDatabase(drawing);
  EXPECT_EQ(currentLayerName(), text(u"0")) << "nothing is known of that layer";
  const auto lineType = odrxMake<OdTcLineTypePropertyImpl>();
  lineType->setText(text(u"Continuous"));
  lineType->applyToDatabase(drawing);
  EXPECT_EQ(drawing->currentLinetype(), drawing->getLinetypeContinuousId());
}

TEST_F(DrawingValuesTest, EditedNameTakesASnapshotOfTheCurrentDrawingsRecord) {
  addLayer(u"Doors", 4);
  testhost::host().documents.open(text(u"A.dxf")).databaseOfDocument = drawing;
  const auto layer = odrxMake<OdTcLayerPropertyImpl>();
  layer->setValue(OdVariant(text(u"Doors")));
  ASSERT_TRUE(layer->record());
  EXPECT_EQ(layer->record()->recordName(), text(u"Doors"));
  testhost::host().documents.closeAll();
  layer->setValue(OdVariant(text(u"Doors")));
  EXPECT_TRUE(layer->record()) << "a name that no drawing knows keeps its snapshot";
  layer->setValue(OdVariant(text(u"Windows")));
  EXPECT_FALSE(layer->record()) << "the snapshot was of another layer";
  EXPECT_EQ(layer->getValue().toString(), text(u"Windows"));
  const auto lineType = odrxMake<OdTcLineTypePropertyImpl>();
  testhost::host().documents.open(text(u"B.dxf")).databaseOfDocument = drawing;
  lineType->setValue(OdVariant(text(u"ByLayer")));
  EXPECT_FALSE(lineType->record()) << "a special word is no record";
  EXPECT_EQ(lineType->text(), text(u"ByLayer"));
  testhost::host().documents.closeAll();
}

TEST_F(DrawingValuesTest, TextStyleIsFoundOrMade) {
  const OdDbDatabasePtr source = OdDbDatabase::createDatabase();
  auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(text(u"Notes"));
  style->setFileName(text(u"romans.shx"));
  style->setXScale(0.8);
  const auto property = odrxMake<OdTcTextStylePropertyImpl>();
  property->takeRecord(
      source->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style));
  const OdDbObjectId before = drawing->currentTextStyle();
  property->applyToDatabase(drawing);
  const auto made = drawing->currentTextStyle().openAs<OdDbTextStyleTableRecord>();
  EXPECT_EQ(made->getName(), text(u"Notes"));
  EXPECT_EQ(made->xScale(), 0.8);
  EXPECT_EQ(made->fileName(), text(u"romans.shx"));
  property->restoreToDatabase(drawing);
  EXPECT_EQ(drawing->currentTextStyle(), before);
}

} // namespace
