#include "drawing/patterns/linetype_file.h"

#include "drawing/database.h"
#include "drawing/patterns/line_shapes.h"
#include "frame/error.h"
#include "frame/file_path.h"

#include <gtest/gtest.h>

namespace {

OdLinetypeFile ownFile() {
  return OdLinetypeFile::read(
      odpath::fromPlatform(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.lin")));
}

OdSmartPtr<OdDbLinetypeTableRecord> recordOf(OdDbObjectId id) {
  return id.openAs<OdDbLinetypeTableRecord>(OdDb::kForRead);
}

TEST(LinetypeFile, TheProgramsOwnHasManyLineTypesAndNoErrors) {
  const OdLinetypeFile file = ownFile();
  EXPECT_EQ(file.errors(), QStringList());
  EXPECT_GE(file.linetypes().size(), 20u);
  const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  for (const OdLinetypeDefinition& linetype : file.linetypes()) {
    const auto record = recordOf(linetype.addTo(*database));
    EXPECT_EQ(record->numDashes(), static_cast<int>(linetype.dashes.size()));
    EXPECT_GT(record->patternLength(), 0) << linetype.name.toStdString();
    // Every shape that is named is one that can be drawn.
    for (std::size_t i = 0; i < linetype.dashes.size(); ++i) {
      if (linetype.dashes[i].shape.isEmpty()) continue;
      EXPECT_NE(record->shapeNumberAt(static_cast<int>(i)), 0) << linetype.name.toStdString();
    }
  }
}

TEST(LinetypeFile, ReadsDashesTextsAndShapes) {
  const auto file = OdLinetypeFile::parse(
      "; comment\n"
      "*T,description, more\n"
      "A,12.5,-5,[\"a,b]c\",STANDARD,S=2.5,r=90,x=-2,Y=-1],-5,[BOX,other.shx,a=45],0\n");
  EXPECT_EQ(file.errors(), QStringList());
  ASSERT_EQ(file.linetypes().size(), 1u);
  const OdLinetypeDefinition& t = file.linetypes()[0];
  EXPECT_EQ(t.name, QStringLiteral("T"));
  EXPECT_EQ(t.description, QStringLiteral("description, more"));
  ASSERT_EQ(t.dashes.size(), 4u);
  EXPECT_EQ(t.patternLength(), 22.5);
  EXPECT_EQ(t.dashes[1].text, QStringLiteral("a,b]c"));
  EXPECT_EQ(t.dashes[1].source, QStringLiteral("STANDARD"));
  EXPECT_EQ(t.dashes[1].scale, 2.5);
  EXPECT_NEAR(t.dashes[1].angle, kOdaPi / 2, 1e-12);
  EXPECT_EQ(t.dashes[1].offset, (OdGePoint2d{-2, -1}));
  EXPECT_EQ(t.dashes[2].shape, QStringLiteral("BOX"));
  EXPECT_EQ(t.dashes[2].rotation, OdLinetypeDash::Rotation::kAbsolute);
  EXPECT_EQ(t.dashes[3].length, 0);
}

TEST(LinetypeFile, TextsThatStayUprightAreKeptInFiles) {
  const auto file =
      OdLinetypeFile::parse("*T,\nA,5,-5,[\"HW\",STANDARD,s=2,u=30],-5,[\"N\",STANDARD]\n");
  const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  file.find(QStringLiteral("t"))->addTo(*database);
  const OdDbDatabasePtr again =
      OdDbDatabase::readDxf(database->writeDxf(), QStringLiteral("t.dxf"));
  const auto types = again->getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForRead);
  const auto record = recordOf(types->getAt(QStringLiteral("T")));
  EXPECT_TRUE(record->shapeIsUprightAt(1));
  EXPECT_FALSE(record->shapeIsUcsOrientedAt(1));
  EXPECT_NEAR(record->shapeRotationAt(1), kOdaPi / 6, 1e-9);
  EXPECT_FALSE(record->shapeIsUprightAt(2));
}

TEST(LinetypeFile, GivesTextsAndShapesToTheDrawing) {
  const auto file = OdLinetypeFile::parse("*T,\nA,5,-5,[\"HW\",Narrow,s=2,a=30],-5,[ZIG,z.shx]\n");
  const OdDbDatabasePtr database = OdDbDatabase::createDatabase();
  const OdDbObjectId id = file.find(QStringLiteral("t"))->addTo(*database);
  const auto record = recordOf(id);
  EXPECT_EQ(record->textAt(1), QStringLiteral("HW"));
  EXPECT_TRUE(record->shapeIsUcsOrientedAt(1));
  const auto styles = database->getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForRead);
  EXPECT_EQ(record->shapeStyleAt(1), styles->getAt(QStringLiteral("Narrow")));
  EXPECT_EQ(record->shapeNumberAt(2), odpattern::findShape(QStringLiteral("zig"))->number);
  const auto shapes = record->shapeStyleAt(2).openAs<OdDbTextStyleTableRecord>(OdDb::kForRead);
  EXPECT_TRUE(shapes->isShapeFile());
  EXPECT_EQ(shapes->fileName(), QStringLiteral("z.shx"));
  // A second time nothing is added.
  EXPECT_EQ(file.find(QStringLiteral("T"))->addTo(*database), id);
}

TEST(LinetypeFile, TellsWhatItLeavesOut) {
  const char* const wrong[] = {
      "A,5,-5\n",                       // no name before
      "*A,x\n*B,y\nA,5,-5\n",           // A without dashes
      "*A,x\nB,5,-5\n",                 // another alignment
      "*A,x\nA,5,x\n",                  // no number
      "*A,x\nA,0,0\n",                  // no length
      "*A,x\nA,[BOX,f.shx],5\n",        // an ornament before the first dash
      "*A,x\nA,5,-5,[BOX]\n",           // no file
      "*A,x\nA,5,-5,[BOX,f.shx,q=1]\n", // an unknown letter
      "*A,x\nA,5,-5,[\"HW,STANDARD]\n", // an open quote
      "*A,x\n",                         // the file ends
      "*,x\nA,5,-5\n",                  // an empty name
  };
  for (const char* text : wrong)
    EXPECT_FALSE(OdLinetypeFile::parse(text).errors().isEmpty()) << text;
}

TEST(LineShapes, EveryShapeHasLinesAndIsFoundByNameAndNumber) {
  for (const char16_t* name : {u"TRACK1", u"ZIG", u"BOX", u"CIRC1", u"BAT", u"ARROW", u"CROSS",
                               u"DIAMOND", u"TRIANGLE", u"WAVE", u"HALF", u"SLASH", u"TREE"}) {
    const OdLineShape* const shape = odpattern::findShape(OdString::fromUtf16(name));
    ASSERT_NE(shape, nullptr);
    EXPECT_EQ(odpattern::findShape(shape->number), shape);
    const auto lines = odpattern::shapeLines(*shape);
    EXPECT_FALSE(lines.empty());
    for (const auto& line : lines) EXPECT_GT(line.size(), 1u);
  }
  EXPECT_EQ(odpattern::findShape(QStringLiteral("none")), nullptr);
}

} // namespace
