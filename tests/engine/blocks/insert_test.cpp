#include "engine/blocks/block_fixture.h"

namespace {

class InsertTest : public BlockFixture {};

TEST_F(InsertTest, PutsABlockWithScalesAndRotation) {
  addLineBlock(u"Door");
  words("INSERT|Door|3,4|2|3|90");
  ASSERT_EQ(inserts().size(), 1u);
  const auto insert = inserts()[0];
  EXPECT_EQ(insert->blockName(), QStringLiteral("Door"));
  EXPECT_EQ(insert->position(), (OdGePoint3d{3, 4, 0}));
  EXPECT_EQ(insert->scaleFactors(), (OdGeScale3d{2, 3, 2}));
  EXPECT_DOUBLE_EQ(insert->rotation(), kOdaPi / 2);
}

TEST_F(InsertTest, TakesScaleAndRotationBeforeThePoint) {
  addLineBlock(u"Door");
  words("INSERT|Door|s|2|r|45|3,4");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->scaleFactors(), (OdGeScale3d{2, 2, 2}));
  EXPECT_DOUBLE_EQ(inserts()[0]->rotation(), kOdaPi / 4);
  EXPECT_FALSE(isBusy());
}

TEST_F(InsertTest, TakesEachAxisByItself) {
  addLineBlock(u"Door");
  words("INSERT|Door|0,0|xyz|2|3|4|");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->scaleFactors(), (OdGeScale3d{2, 3, 4}));
}

TEST_F(InsertTest, OffersTheLastBlockAgain) {
  addLineBlock(u"Door");
  words("INSERT|Door|0,0|||");
  words("INSERT||5,0|||");
  EXPECT_EQ(inserts().size(), 2u);
  EXPECT_TRUE(console().shows(QStringLiteral("<Door>"))) << output().toStdString();
}

TEST_F(InsertTest, WithAStarPutsThePieces) {
  addLineBlock(u"Door");
  words("INSERT|*Door|3,4|2|90");
  EXPECT_TRUE(inserts().empty());
  const auto lines = all<OdDbLine>();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NEAR(lines[0]->endPoint().y, 24, 1e-9);
}

TEST_F(InsertTest, ListsBlocksButNeitherLayoutsNorAnonymousOnes) {
  addLineBlock(u"Door");
  addLineBlock(u"*U7");
  words("INSERT|?||");
  type(QStringLiteral("^C"));
  EXPECT_TRUE(console().shows(QStringLiteral("\"Door\"")));
  EXPECT_FALSE(console().shows(QStringLiteral("*U7")));
  EXPECT_FALSE(console().shows(QStringLiteral("Model_Space")));
}

TEST_F(InsertTest, MakesABlockOfAFile) {
  writeDrawing("wheel.dxf", 2);
  words("INSERT|" + path("wheel.dxf") + "|1,1|||");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->blockName(), QStringLiteral("wheel"));
  const auto block = inserts()[0]->blockTableRecord().openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(block->entityIds().size(), 1u);
}

TEST_F(InsertTest, DefinitionOfTheDrawingWinsOverAFileUnlessTheFileIsAskedFor) {
  const OdDbObjectId block = addLineBlock(u"wheel");
  writeDrawing("wheel.dxf", 2);
  words("INSERT|" + path("wheel.dxf") + "|1,1|||");
  EXPECT_TRUE(opened(block)->newIterator()->entity()->isKindOf(OdDbLine::desc()));
  words("INSERT|wheel=" + path("wheel.dxf") + "|1,1|||");
  EXPECT_TRUE(opened(block)->newIterator()->entity()->isKindOf(OdDbCircle::desc()));
  EXPECT_EQ(inserts().size(), 2u);
}

TEST_F(InsertTest, ScalesByTheUnitsOfBlockAndDrawing) {
  writeDrawing("wheel.dxf", 2, 5);
  words("INSERT|" + path("wheel.dxf") + "|1,1|||");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->scaleFactors(), (OdGeScale3d{10, 10, 10}));
  EXPECT_TRUE(console().shows(QStringLiteral("Units: Centimeters   Conversion: 10")))
      << output().toStdString();
}

TEST_F(InsertTest, AsksForAttributesInTheOrderOfTheBlock) {
  const OdDbObjectId block = addLineBlock(u"Tag");
  addDefinition(block, u"NO", u"Enter number", u"1");
  addDefinition(block, u"NAME", u"", u"");
  words("INSERT|Tag|0,0||||42|Big door");
  ASSERT_EQ(inserts().size(), 1u);
  const auto attributes = inserts()[0]->attributes();
  ASSERT_EQ(attributes.size(), 2u);
  EXPECT_EQ(attributes[0]->textString(), QStringLiteral("42"));
  EXPECT_EQ(attributes[1]->textString(), QStringLiteral("Big door"));
  EXPECT_TRUE(console().shows(QStringLiteral("Enter number <1>:"))) << output().toStdString();
}

TEST_F(InsertTest, StandsInTheDrawingWhileItsValuesAreAskedForAndACancelTakesItAway) {
  addDefinition(addLineBlock(u"Tag"), u"NO", u"Number", u"1");
  words("INSERT|Tag|3,4|||");
  ASSERT_TRUE(isBusy());
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->attributes().at(0)->textString(), QStringLiteral("1"));
  type(QStringLiteral("^C"));
  EXPECT_TRUE(inserts().empty());
}

TEST_F(InsertTest, AttributesOfOneTagHaveTheirOwnValues) {
  const OdDbObjectId block = addLineBlock(u"Tag");
  addDefinition(block, u"NO", u"First", u"1");
  addDefinition(block, u"NO", u"Second", u"2", true);
  words("INSERT|Tag|0,0||||one|two|three");
  ASSERT_EQ(inserts().size(), 1u);
  const auto attributes = inserts()[0]->attributes();
  ASSERT_EQ(attributes.size(), 2u);
  EXPECT_EQ(attributes[0]->textString(), QStringLiteral("one"));
  EXPECT_EQ(attributes[1]->textString(), QStringLiteral("three"));
}

TEST_F(InsertTest, AsksAgainForAttributesThatAreToBeVerified) {
  addDefinition(addLineBlock(u"Tag"), u"NO", u"Number", u"1", true);
  words("INSERT|Tag|0,0||||42|43");
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->attributes().at(0)->textString(), QStringLiteral("43"));
}

TEST_F(InsertTest, WithoutAttreqTakesTheValuesOfTheBlock) {
  addDefinition(addLineBlock(u"Tag"), u"NO", u"Number", u"1");
  words("ATTREQ|0|INSERT|Tag|0,0|||");
  EXPECT_FALSE(isBusy());
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->attributes().at(0)->textString(), QStringLiteral("1"));
}

TEST_F(InsertTest, AsksOnlyForWhatIsNeitherConstantNorPreset) {
  words("ATTDEF||no|Number?|1|0,0|3|0");
  words("ATTDEF|v|p||material|Material?|wood|0,-5|3|0");
  words("ATTDEF|p|c||kind|a door|0,-10|3|0");
  words("ATTDEF|c||name|Name?||j|r|0,-15|3|0");
  words("BLOCK|Door|0,0|all|");
  EXPECT_EQ(all<OdDbAttributeDefinition>().size(), 0u);
  words("INSERT|Door|100,0|2|2|90|42|Front|Front door");
  ASSERT_EQ(inserts().size(), 1u);
  QStringList texts;
  for (const OdDbAttributePtr& one : inserts()[0]->attributes())
    texts << one->tag() + u'=' + one->textString();
  EXPECT_EQ(texts.join(u' ').toStdString(), "NO=42 MATERIAL=wood NAME=Front door");
  EXPECT_TRUE(console().shows(QStringLiteral("Name? <Front>:"))) << output().toStdString();
  EXPECT_FALSE(isBusy());

  // A text at the right ends where its definition does, however long its value is.
  const OdDbAttributePtr name = inserts()[0]->attributes()[2];
  EXPECT_LT(name->alignmentPoint().distanceTo({130, 0, 0}), 1e-9);
  OdGeExtents3d box;
  ASSERT_TRUE(name->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().y, 0, 1e-9);
  EXPECT_NEAR(box.minPoint().y, name->position().y, 1e-9);
}

TEST_F(InsertTest, NamesWhatIsNotThere) {
  words("INSERT|nowhere");
  EXPECT_TRUE(console().shows(QStringLiteral("There is neither a block nor a file \"nowhere\".")))
      << output().toStdString();
  words("INSERT|a=" + path("missing.dxf"));
  EXPECT_TRUE(console().shows(QStringLiteral("There is no file \"")));
  EXPECT_TRUE(inserts().empty());
}

TEST_F(InsertTest, NamesAFileThatCannotBeRead) {
  QFile file(path("broken.dxf"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("%PDF-1.7\n");
  file.close();
  words("INSERT|" + path("broken.dxf"));
  EXPECT_TRUE(console().shows(QStringLiteral("broken.dxf"))) << output().toStdString();
  EXPECT_FALSE(isBusy());
  EXPECT_FALSE(hasBlock(u"broken"));
}

TEST_F(InsertTest, CancelAtEachPromptLeavesTheDrawingAsItWas) {
  addDefinition(addLineBlock(u"Tag"), u"NO", u"Number", u"1");
  const QByteArray before = database().writeDxf();
  const QStringList steps = {"INSERT", "Tag", "0,0", "1", "1", "0"};
  for (qsizetype n = 1; n <= steps.size(); ++n) {
    words(steps.mid(0, n).join('|'));
    ASSERT_TRUE(isBusy()) << n;
    type(QStringLiteral("^C"));
    EXPECT_EQ(database().writeDxf(), before) << n;
  }
}

// --- as modules insert

TEST_F(InsertTest, ByAModuleAsksForThePointOnly) {
  addLineBlock(u"Door");
  EXPECT_TRUE(runWith(u"InsertBlock",
                      {{u"BC_RUN_BY_NAME_SCALE_ROT_EXPLODE", QStringLiteral("Run")},
                       {u"name", QStringLiteral("Door")},
                       {u"BC_SCALE", 2.5},
                       {u"BC_ROTATE_ANGLE", kOdaPi / 6},
                       {u"BC_ASK_ROTATION", std::int32_t{0}},
                       {u"BC_IS_EXPLODE", std::int32_t{0}}},
                      {"7,8"}));
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_EQ(inserts()[0]->position(), (OdGePoint3d{7, 8, 0}));
  EXPECT_EQ(inserts()[0]->scaleFactors(), (OdGeScale3d{2.5, 2.5, 2.5}));
  EXPECT_DOUBLE_EQ(inserts()[0]->rotation(), kOdaPi / 6);
}

TEST_F(InsertTest, ByAModuleAsksForTheRotationIfTold) {
  addLineBlock(u"Door");
  EXPECT_TRUE(runWith(u"InsertBlock",
                      {{u"name", QStringLiteral("Door")}, {u"BC_ASK_ROTATION", std::int32_t{1}}},
                      {"7,8", "90"}));
  ASSERT_EQ(inserts().size(), 1u);
  EXPECT_DOUBLE_EQ(inserts()[0]->rotation(), kOdaPi / 2);
}

TEST_F(InsertTest, ByAModulePutsThePiecesIfTold) {
  addLineBlock(u"Door");
  EXPECT_TRUE(runWith(
      u"InsertBlock",
      {{u"name", QStringLiteral("Door")}, {u"BC_SCALE", 3.0}, {u"BC_IS_EXPLODE", std::int32_t{1}}},
      {"0,0"}));
  EXPECT_TRUE(inserts().empty());
  ASSERT_EQ(all<OdDbLine>().size(), 1u);
  EXPECT_DOUBLE_EQ(all<OdDbLine>()[0]->endPoint().x, 30);
}

TEST_F(InsertTest, ByAModuleRefusesAScaleOfNothing) {
  addLineBlock(u"Door");
  EXPECT_FALSE(
      runWith(u"InsertBlock", {{u"name", QStringLiteral("Door")}, {u"BC_SCALE", 0.0}}, {}));
  EXPECT_TRUE(console().shows(QStringLiteral("at the scale 0")));
  EXPECT_FALSE(runWith(u"InsertBlock", {{u"name", QStringLiteral("None")}}, {}));
}

} // namespace
