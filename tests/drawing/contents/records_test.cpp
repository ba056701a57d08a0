// Every value of records under its accessor, and through a file.
#include "drawing/database.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/block_reference.h"

#include "drawing/contents/support.h"

using namespace oddbtest;

namespace {

OdDbDatabasePtr reread(const OdDbDatabase& db) {
  return OdDbDatabase::readDxf(const_cast<OdDbDatabase&>(db).writeDxf(), QString());
}

} // namespace

TEST(TextStyles, AreSavedWithAllTheirValues) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(QStringLiteral("Every"));
  style->setFileName(QStringLiteral("romans.shx"));
  style->setBigFontFileName(QStringLiteral("big.shx"));
  style->setTextSize(2.75);
  style->setPriorSize(3.25);
  style->setXScale(0.85);
  style->setObliquingAngle(0.2);
  style->setIsVertical(true);
  style->setIsBackwards(true);
  style->setFont(QStringLiteral("Arial"), true, true, 238, 34);
  db->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  const OdDbDatabasePtr back = reread(*db);
  const auto read = back->getTextStyleTableId()
                        .openAs<OdDbTextStyleTable>()
                        ->getAt(QStringLiteral("Every"))
                        .openAs<OdDbTextStyleTableRecord>();
  EXPECT_EQ(read->fileName(), QStringLiteral("romans.shx"));
  EXPECT_EQ(read->bigFontFileName(), QStringLiteral("big.shx"));
  EXPECT_EQ(read->textSize(), 2.75);
  EXPECT_EQ(read->priorSize(), 3.25);
  EXPECT_EQ(read->xScale(), 0.85);
  EXPECT_NEAR(read->obliquingAngle(), 0.2, 1e-12);
  EXPECT_TRUE(read->isVertical());
  EXPECT_TRUE(read->isBackwards());
  EXPECT_FALSE(read->isUpsideDown());
  EXPECT_FALSE(read->isShapeFile());
  OdString face;
  bool bold = false, italic = false;
  int charSet = 0, pitch = 0;
  read->font(face, bold, italic, charSet, pitch);
  EXPECT_EQ(face, QStringLiteral("Arial"));
  EXPECT_TRUE(bold && italic);
  EXPECT_EQ(charSet, 238);
  EXPECT_EQ(pitch, 34);
}

TEST(TextStyles, OfShapeFilesNeedNoName) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setIsShapeFile(true);
  style->setIsUpsideDown(true);
  style->setFileName(QStringLiteral("ltypeshp.shx"));
  const OdDbObjectId id =
      db->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite)->add(style);
  const OdDbDatabasePtr back = reread(*db);
  const auto read = back->getOdDbObjectId(id.getHandle()).openAs<OdDbTextStyleTableRecord>();
  EXPECT_TRUE(read->isShapeFile());
  EXPECT_TRUE(read->isUpsideDown());
  EXPECT_TRUE(read->getName().isEmpty());
  EXPECT_EQ(read->fileName(), QStringLiteral("ltypeshp.shx"));
}

TEST(LineTypes, AreSavedWithShapesAndTexts) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId style =
      db->getTextStyleTableId().openAs<OdDbTextStyleTable>()->getAt(QStringLiteral("Standard"));
  const auto linetype = odrxMake<OdDbLinetypeTableRecord>();
  linetype->setName(QStringLiteral("Gas"));
  linetype->setComments(QStringLiteral("Gas ---GAS---"));
  linetype->setPatternLength(1.5);
  linetype->setNumDashes(3);
  linetype->setDashLengthAt(0, 0.75);
  linetype->setDashLengthAt(1, -0.5);
  linetype->setDashLengthAt(2, 0);
  linetype->setShapeStyleAt(1, style);
  linetype->setShapeScaleAt(1, 0.1);
  linetype->setShapeRotationAt(1, 0.25);
  linetype->setShapeOffsetAt(1, {-0.1, -0.05});
  linetype->setShapeIsUcsOrientedAt(1, true);
  linetype->setTextAt(1, QStringLiteral("GAS"));
  linetype->setShapeStyleAt(2, style);
  linetype->setShapeNumberAt(2, 132);
  db->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite)->add(linetype);
  const OdDbDatabasePtr back = reread(*db);
  const auto read = back->getLinetypeTableId()
                        .openAs<OdDbLinetypeTable>()
                        ->getAt(QStringLiteral("Gas"))
                        .openAs<OdDbLinetypeTableRecord>();
  EXPECT_EQ(read->comments(), QStringLiteral("Gas ---GAS---"));
  EXPECT_EQ(read->patternLength(), 1.5);
  ASSERT_EQ(read->numDashes(), 3);
  EXPECT_EQ(read->dashLengthAt(0), 0.75);
  EXPECT_EQ(read->dashLengthAt(1), -0.5);
  EXPECT_EQ(read->dashLengthAt(2), 0);
  EXPECT_TRUE(read->shapeStyleAt(0).isNull());
  EXPECT_EQ(read->shapeStyleAt(1).getHandle(), style.getHandle());
  EXPECT_EQ(read->shapeScaleAt(1), 0.1);
  EXPECT_NEAR(read->shapeRotationAt(1), 0.25, 1e-12);
  EXPECT_EQ(read->shapeOffsetAt(1), OdGePoint2d(-0.1, -0.05));
  EXPECT_TRUE(read->shapeIsUcsOrientedAt(1));
  EXPECT_EQ(read->textAt(1), QStringLiteral("GAS"));
  EXPECT_EQ(read->shapeNumberAt(2), 132);
}

TEST(BlockRecords, HaveUnitsAndComments) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId id = addBlock(*db, QStringLiteral("DOOR"));
  const auto block = id.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  block->setBlockInsertUnits(4);
  block->setComments(QStringLiteral("Eine Tür"));
  const OdDbDatabasePtr back = reread(*db);
  const auto read = back->getOdDbObjectId(id.getHandle()).openAs<OdDbBlockTableRecord>();
  EXPECT_EQ(read->blockInsertUnits(), 4);
  EXPECT_EQ(read->comments(), QStringLiteral("Eine Tür"));
  EXPECT_FALSE(read->isLayout());
  EXPECT_FALSE(read->isFromExternalReference());
  EXPECT_FALSE(read->isFromOverlayReference());
  EXPECT_TRUE(back->getModelSpaceId().openAs<OdDbBlockTableRecord>()->isLayout());
}

TEST(DynamicBlocks, AreFoundBehindTheStateThatIsShown) {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  const OdDbObjectId door = addBlock(*db, QStringLiteral("DOOR"));
  const OdDbObjectId state = addBlock(*db, QStringLiteral("*U1"));
  state.openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->editResidue().xdata =
      "1001\nAcDbBlockRepETag\n1070\n1\n1001\nAcDbBlockRepBTag\n1070\n1\n1005\n" +
      door.getHandle().ascii().toLatin1() + "\n";
  const OdDbObjectId plain = addTo(*db, odrxMake<OdDbBlockReference>(door, OdGePoint3d()));
  const OdDbObjectId changed = addTo(*db, odrxMake<OdDbBlockReference>(state, OdGePoint3d()));
  const OdDbDynBlockReference one(changed);
  EXPECT_TRUE(one.isDynamicBlock());
  EXPECT_EQ(one.dynamicBlockTableRecord(), door);
  EXPECT_EQ(one.anonymousBlockTableRecord(), state);
  const OdDbDynBlockReference other(plain);
  EXPECT_FALSE(other.isDynamicBlock());
  EXPECT_EQ(other.dynamicBlockTableRecord(), door);
  EXPECT_TRUE(other.anonymousBlockTableRecord().isNull());
  EXPECT_TRUE(OdDbDynBlockReference(OdDbObjectId()).dynamicBlockTableRecord().isNull());
}

TEST(Tables, OwnDictionariesThatAreNoRecordsOfTheirs) {
  const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  const QByteArray plain = drawing->writeDxf();
  const OdDbObjectId layers = drawing->getLayerTableId();
  const QByteArray handle = layers.getHandle().ascii().toLatin1();
  QByteArray file = plain;
  // What programs that filter layers write.
  const qsizetype at = file.indexOf("  2\nLAYER\n");
  file.insert(file.indexOf("330\n0\n", at), "102\n{ACAD_XDICTIONARY\n360\n1A0\n102\n}\n");
  const qsizetype objects = file.indexOf("  0\nENDSEC\n", file.indexOf("\nOBJECTS\n"));
  file.insert(objects,
              "  0\nDICTIONARY\n  5\n1A0\n330\n" + handle +
                  "\n100\nAcDbDictionary\n280\n1\n281\n1\n  3\nACAD_LAYERFILTERS\n360\n1A1\n"
                  "  0\nDICTIONARY\n  5\n1A1\n330\n1A0\n100\nAcDbDictionary\n281\n1\n");
  const OdDbDatabasePtr db = OdDbDatabase::readDxf(file, QStringLiteral("x.dxf"));
  EXPECT_EQ(db->unknownContent(), QStringList());
  const QByteArray saved = db->writeDxf();
  EXPECT_EQ(saved.count("ACAD_LAYERFILTERS"), 1);
  EXPECT_EQ(saved.count("ACAD_XDICTIONARY"), file.count("ACAD_XDICTIONARY"));
  EXPECT_TRUE(reread(*db)->writeDxf() == saved);
  addLayer(*db, QStringLiteral("Walls"));
  EXPECT_TRUE(db->writeDxf().contains("Walls"));
}
