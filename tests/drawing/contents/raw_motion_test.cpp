// Entities that are kept as the file had them, moved; and what applications keep with entities.
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/circle.h"
#include "drawing/moved_xdata.h"
#include "drawing/objects/raw_object.h"

#include "drawing/contents/kept_entity.h"
#include "drawing/entities/recorder.h"

using namespace oddbtest;

namespace {

const OdGeMatrix3d kShift = OdGeMatrix3d::translation({5, 6, 0});
const OdGeMatrix3d kQuarter = OdGeMatrix3d::rotation(kOdaPi / 2, OdGeVector3d::zAxis());

} // namespace

TEST(RawMotion, WipeoutsFollowEveryMovementAndHideWhatIsBehind) {
  const OdDbDatabasePtr db = drawingWith(
      head("WIPEOUT") + "100|AcDbWipeout|90|0|10|1.0|20|2.0|30|0.0|11|4.0|21|0.0|31|0.0|12|0.0|22|"
                        "3.0|32|0.0|13|1.0|23|1.0|340|0|70|7|280|1|281|50|282|50|283|0|360|0|71|2|"
                        "91|4|14|-0.5|24|-0.5|14|0.5|24|-0.5|14|0.5|24|0.5|14|-0.5|24|-0.5");
  const OdDbEntityPtr wipeout = first(*db);
  OdGeExtents3d box;
  ASSERT_TRUE(wipeout->getGeomExtents(box));
  EXPECT_EQ(box.minPoint(), (OdGePoint3d{1, 2, 0}));
  EXPECT_EQ(box.maxPoint(), (OdGePoint3d{5, 5, 0}));
  ASSERT_TRUE(wipeout->transformBy(kShift));
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 10), "6");
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 20), "8");
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 11), "4");
  ASSERT_TRUE(wipeout->transformBy(OdGeMatrix3d::scaling(2, 3, 1)));
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 10), "12");
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 11), "8");
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 22), "9");
  EXPECT_EQ(valuesOf(*db, "WIPEOUT", 14), "-0.5 0.5 0.5 -0.5");
}

TEST(RawMotion, MultilinesKeepTheirDirections) {
  const OdDbDatabasePtr db = drawingWith(
      head("MLINE") +
      "100|AcDbMline|2|STANDARD|340|0|40|2.0|70|0|71|1|72|2|73|2|10|0.0|20|0.0|30|0.0|210|0.0|220|"
      "0.0|230|1.0|11|0.0|21|0.0|31|0.0|12|1.0|22|0.0|32|0.0|13|0.0|23|1.0|33|0.0|74|2|41|1.0|41|"
      "0.0|75|0|74|2|41|-1.0|41|0.0|75|0|11|10.0|21|0.0|31|0.0|12|1.0|22|0.0|32|0.0|13|0.0|23|1.0|"
      "33|0.0|74|2|41|1.0|41|0.0|75|0|74|2|41|-1.0|41|0.0|75|0");
  const OdDbEntityPtr mline = first(*db);
  ASSERT_TRUE(mline->transformBy(kQuarter * OdGeMatrix3d::scaling(3)));
  EXPECT_EQ(valuesOf(*db, "MLINE", 21), "0 30");
  EXPECT_EQ(valuesOf(*db, "MLINE", 12), "0 0");
  EXPECT_EQ(valuesOf(*db, "MLINE", 22), "1 1");
  EXPECT_EQ(valuesOf(*db, "MLINE", 13), "-1 -1");
  EXPECT_EQ(valuesOf(*db, "MLINE", 41), "3 0 -3 0 3 0 -3 0");
  EXPECT_EQ(valuesOf(*db, "MLINE", 40), "6");
  EXPECT_EQ(valuesOf(*db, "MLINE", 230), "1");
  const QByteArray before = db->writeDxf();
  EXPECT_FALSE(mline->transformBy(OdGeMatrix3d::scaling(2, 1, 1)));
  EXPECT_EQ(db->writeDxf(), before);
}

TEST(RawMotion, MultileadersMoveInAllTheirPartsAndAreShown) {
  const OdDbDatabasePtr db = drawingWith(leaderWithText());
  const OdDbEntityPtr leader = first(*db);
  OdGeExtents3d box;
  ASSERT_TRUE(leader->getGeomExtents(box));
  EXPECT_LE(box.minPoint().x, 0);
  EXPECT_GT(box.maxPoint().x, 21);
  EXPECT_NEAR(box.maxPoint().y, 11, 0.5);
  ASSERT_TRUE(leader->transformBy(kShift));
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 10), "25 20 5");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 20), "16 16 6");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 12), "26");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 11), "0 1");
  ASSERT_TRUE(leader->transformBy(kQuarter));
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 10), "-16 -16 -6");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 20), "25 20 5");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 13), "0");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 42), "1.571 3");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 41), "2.5 5");
}

TEST(RawMotion, SpiralsAndTablesMoveAndUnknownClassesStay) {
  const OdDbDatabasePtr db =
      drawingWith(head("HELIX") +
                  "100|AcDbSpline|70|0|71|3|72|0|73|0|74|0|210|0.0|220|0.0|230|1.0|10|1.0|20|"
                  "0.0|30|0.0|100|AcDbHelix|90|29|91|63|10|0.0|20|0.0|30|0.0|11|1.0|21|0.0|31|"
                  "0.0|12|0.0|22|0.0|32|1.0|40|1.0|41|3.0|42|2.0|290|1|280|1|" +
                  head("ACAD_TABLE", "F1") +
                  "100|AcDbBlockReference|2|*T1|10|3.0|20|4.0|30|0.0|100|AcDbTable|"
                  "11|1.0|21|0.0|31|0.0|91|1|92|1|" +
                  head("STRANGE", "F2") + "100|AcDbStrange|10|1.0|20|1.0|30|1.0");
  const auto all = entitiesOf(db->getModelSpaceId());
  ASSERT_EQ(all.size(), 3u);
  const auto moved = [&](std::size_t i, const OdGeMatrix3d& by) {
    const OdDbEntityPtr entity = all[i]->objectId().openObject(OdDb::kForWrite);
    return entity->transformBy(by);
  };
  EXPECT_TRUE(moved(0, kShift * OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(valuesOf(*db, "HELIX", 10), "7 5");
  EXPECT_EQ(valuesOf(*db, "HELIX", 11), "7");
  EXPECT_EQ(valuesOf(*db, "HELIX", 40), "2");
  EXPECT_EQ(valuesOf(*db, "HELIX", 41), "3");
  EXPECT_EQ(valuesOf(*db, "HELIX", 32), "1");
  EXPECT_TRUE(moved(1, kShift * kQuarter));
  EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 10), "1");
  EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 20), "9");
  EXPECT_EQ(valuesOf(*db, "ACAD_TABLE", 21), "1");
  EXPECT_FALSE(moved(1, OdGeMatrix3d::scaling(2)));
  EXPECT_FALSE(moved(2, kShift));
}

TEST(RawMotion, IsUndone) {
  const OdDbDatabasePtr db =
      drawingWith(head("MESH") + "100|AcDbSubDMesh|71|2|72|0|91|0|92|1|10|1.0|20|2.0|30|3.0|93|0");
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("MOVE"));
  {
    const OdDbEntityPtr mesh = first(*db);
    ASSERT_TRUE(mesh->transformBy(kShift));
  }
  db->endUndoRecord();
  EXPECT_EQ(valuesOf(*db, "MESH", 10), "6");
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
}

TEST(MovedXData, PlacesDirectionsAndLengthsFollowTheirEntity) {
  const OdDbDatabasePtr db =
      drawingWith(head("CIRCLE") +
                  "100|AcDbCircle|10|0.0|20|0.0|30|0.0|40|1.0|1001|ACAD|1010|1.0|1020|2.0|1030|"
                  "3.0|1011|1.0|1021|2.0|1031|3.0|1012|1.0|1022|0.0|1032|0.0|1013|1.0|1023|"
                  "0.0|1033|0.0|1040|4.0|1041|4.0|1042|5.0|1070|7");
  const OdDbEntityPtr circle = first(*db);
  ASSERT_TRUE(oddb::transformWithXData(*circle, kShift * kQuarter * OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1010), "1");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1011), "1");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1021), "8");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1031), "6");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1012), "0");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1022), "2");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1023), "1");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1040), "4");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1041), "8");
  EXPECT_EQ(valuesOf(*db, "CIRCLE", 1042), "10");
  // What its shape does not allow changes nothing of it either.
  const QByteArray before = db->writeDxf();
  EXPECT_FALSE(oddb::transformWithXData(*circle, OdGeMatrix3d::scaling(2, 1, 1)));
  EXPECT_EQ(db->writeDxf(), before);
}

TEST(RawMotion, MultileadersGrowWithAllTheirSizes) {
  const OdDbDatabasePtr db = drawingWith(leaderWithBlock(0x1F, 0));
  const OdDbEntityPtr leader = first(*db);
  ASSERT_TRUE(leader->transformBy(kShift * OdGeMatrix3d::scaling(2)));
  // Places in the order of the file; the last one is the scale of the block.
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 10), "45 35 7 2");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 15), "45");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 40), "2 10") << "of all, and the landing";
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 41), "5 10") << "letters, and the landing";
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 42), "6");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 140), "6");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 145), "2");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 16), "2");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 36), "2");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 45), "2");
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 11), "1") << "directions keep their length";
  EXPECT_EQ(valuesOf(*db, "MULTILEADER", 47), "2 0 0 45 0 2 0 26 0 0 2 0 0 0 0 1");
  EXPECT_FALSE(leader->transformBy(OdGeMatrix3d::scaling(2, 1, 1)));
}

TEST(RawMotion, LightsGrowAndAreMirrored) {
  const OdDbDatabasePtr db =
      drawingWith(head("LIGHT") + "100|AcDbLight|90|0|1|Lamp|70|3|290|1|291|0|40|1.5|10|1.0|20|2.0|"
                                  "30|3.0|11|4.0|21|5.0|31|0.0|72|0|292|1|41|1.0|42|10.0|50|45.0");
  const OdDbEntityPtr light = first(*db);
  ASSERT_TRUE(light->transformBy(OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis()) *
                                 OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(valuesOf(*db, "LIGHT", 10), "-2");
  EXPECT_EQ(valuesOf(*db, "LIGHT", 21), "10");
  EXPECT_EQ(valuesOf(*db, "LIGHT", 42), "20");
  EXPECT_EQ(valuesOf(*db, "LIGHT", 40), "1.5") << "as bright as before";
  EXPECT_FALSE(light->transformBy(OdGeMatrix3d::scaling(2, 1, 1)));
}

TEST(RawMotion, TolerancesMoveWithTheirPlaceAndKeepTheSizeOfTheirStyle) {
  const OdDbDatabasePtr db = drawingWith(
      head("TOLERANCE") + "100|AcDbFcf|3|Standard|10|1.0|20|2.0|30|0.0|1|{\\Fgdt;j}|210|"
                          "0.0|220|0.0|230|1.0|11|1.0|21|0.0|31|0.0");
  const OdDbEntityPtr tolerance = first(*db);
  ASSERT_TRUE(tolerance->transformBy(kQuarter * OdGeMatrix3d::scaling(3)));
  EXPECT_EQ(valuesOf(*db, "TOLERANCE", 10), "-6");
  EXPECT_EQ(valuesOf(*db, "TOLERANCE", 20), "3");
  EXPECT_EQ(valuesOf(*db, "TOLERANCE", 21), "1");
}

TEST(RawMotion, BlocksOfMultileadersShowTheTextsThatTheyAreGiven) {
  const OdDbDatabasePtr made = OdDbDatabase::createDatabase();
  const OdDbObjectId block = addBlock(*made, QStringLiteral("BALLOON"));
  const auto definition = odrxMake<OdDbAttributeDefinition>();
  definition->setTag(QStringLiteral("NUMBER"));
  definition->setPosition({0, 5, 0});
  definition->setHeight(2);
  const OdDbObjectId id =
      block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(definition);
  QByteArray file = made->writeDxf();
  QByteArray lines = leaderWithBlock(block.getHandle(), id.getHandle());
  lines.replace('|', '\n').replace("5\nF0\n", "5\nFF0\n");
  file.insert(file.indexOf("  0\nENDSEC\n", file.indexOf("\nENTITIES\n")), lines + '\n');
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(file, QStringLiteral("x"));
  Recorder recorder;
  first(*db)->worldDraw(recorder);
  ASSERT_EQ(recorder.texts.size(), 1u);
  EXPECT_EQ(recorder.texts[0].text, QStringLiteral("B7"));
}
