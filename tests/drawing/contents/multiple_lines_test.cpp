// What is shown of multilines and of leaders with several lines.
#include "drawing/contents/unknown_entity.h"

namespace {

/// An MLINE with two lines, from (0, 0) to (10, 0) to (10, 5), in a style of its own.
OdDbDatabasePtr mlineDrawing(int styleFlags, int flags = 1, const QByteArray& firstParams = "") {
  const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  QByteArray dxf = db->writeDxf();
  const auto corner = [](const char* x, const char* y, const char* dx, const char* dy,
                         const char* mx, const char* my, const QByteArray& params) {
    QByteArray tags;
    const char* const values[] = {x, y, dx, dy, mx, my};
    for (int i = 0; i < 6; ++i)
      tags += QByteArray::number(11 + i / 2 + i % 2 * 10) + "\n" + values[i] + "\n" +
              (i % 2 ? QByteArray::number(31 + i / 2) + "\n0\n" : QByteArray());
    return tags + " 74\n" + QByteArray::number(1 + params.count('\n') / 2) + "\n 41\n1\n" + params +
           " 75\n0\n 74\n1\n 41\n-1\n 75\n0\n";
  };
  const QByteArray entities = "  2\nENTITIES\n";
  dxf.insert(
      dxf.indexOf(entities) + entities.size(),
      "  0\nMLINE\n  5\nF001\n100\nAcDbEntity\n  8\n0\n100\nAcDbMline\n  2\nWALL\n340\nF002\n"
      " 40\n1\n 70\n0\n 71\n" +
          QByteArray::number(flags) +
          "\n 72\n3\n 73\n2\n 10\n0\n 20\n0\n 30\n0\n210\n0\n220\n0\n230\n1\n" +
          corner("0", "0", "1", "0", "0", "1", firstParams) +
          corner("10", "0", "0", "1", "-1", "1", "") + corner("10", "5", "0", "1", "-1", "0", ""));
  const QByteArray objects = "  2\nOBJECTS\n";
  const qsizetype end = dxf.indexOf("  0\nENDSEC\n", dxf.indexOf(objects));
  dxf.insert(end, "  0\nMLINESTYLE\n  5\nF002\n330\nC\n100\nAcDbMlineStyle\n  2\nWALL\n 70\n" +
                      QByteArray::number(styleFlags) +
                      "\n  3\n\n 62\n4\n 51\n90\n 52\n90\n 71\n2\n 49\n0.5\n 62\n1\n  6\nByLayer\n"
                      " 49\n-0.5\n 62\n256\n  6\nContinuous\n");
  return OdDbDatabase::readDxf(dxf, QString());
}

} // namespace

TEST(Mlines, RunAlongTheirMiters) {
  const OdDbDatabasePtr db = mlineDrawing(0);
  ASSERT_TRUE(db->unknownContent().isEmpty());
  const Recorder shown = shownBy(*db);
  ASSERT_EQ(shown.lines.size(), 4u);
  expectNear(shown.lines[0].points[0], {0, 1, 0});
  expectNear(shown.lines[0].points[1], {9, 1, 0});
  expectNear(shown.lines[1].points[1], {9, 5, 0});
  expectNear(shown.lines[2].points[1], {11, -1, 0});
  EXPECT_EQ(shown.colors.at(0), OdCmColor::fromColorIndex(1));
  EXPECT_EQ(shown.colors.at(1), std::nullopt);
  EXPECT_EQ(shown.linetypes.at(1), db->getLinetypeContinuousId());
  OdGeExtents3d box;
  ASSERT_TRUE(oddbtest::entitiesOf(db->getModelSpaceId())[0]->getGeomExtents(box));
  expectNear(box.maxPoint(), {11, 5, 0});
}

TEST(Mlines, BreakOffWhereTheyAreCut) {
  const Recorder shown = shownBy(*mlineDrawing(0, 1, " 41\n0\n 41\n2\n 41\n3\n 41\n20\n"));
  ASSERT_EQ(shown.lines.size(), 5u);
  expectNear(shown.lines[0].points[1], {2, 1, 0});
  expectNear(shown.lines[1].points[0], {3, 1, 0});
  expectNear(shown.lines[1].points[1], {9, 1, 0});
}

TEST(Mlines, HaveCapsJointsAndFillings) {
  const Recorder square = shownBy(*mlineDrawing(0x10 | 0x100 | 2));
  ASSERT_EQ(square.lines.size(), 7u);
  expectNear(square.lines[4].points[1], {0, -1, 0});
  expectNear(square.lines[5].points[1], {11, -1, 0});
  expectNear(square.lines[6].points[1], {11, 5, 0});
  const Recorder round = shownBy(*mlineDrawing(0x40 | 0x400 | 1));
  ASSERT_EQ(round.arcs.size(), 2u);
  expectNear(round.arcs[0].pointAt(kOdaPi / 2), {-1, 0, 0});
  expectNear(round.arcs[1].pointAt(kOdaPi / 2), {10, 6, 0});
  ASSERT_EQ(round.areas.size(), 2u);
  EXPECT_EQ(round.colors.at(0), OdCmColor::fromColorIndex(4));
  EXPECT_EQ(shownBy(*mlineDrawing(0x10 | 0x100, 1 | 4 | 8)).lines.size(), 4u);
  // Closed ones run back to where they began, and have no ends.
  EXPECT_EQ(shownBy(*mlineDrawing(0x10 | 0x100, 1 | 2)).lines.size(), 6u);
}

TEST(Mlines, WithoutAStyleAreShownPlain) {
  const OdDbDatabasePtr db = mlineDrawing(0);
  db->getOdDbObjectId(OdDbHandle(0xF002)).openObject(OdDb::kForWrite)->erase();
  EXPECT_EQ(shownBy(*db).lines.size(), 4u);
}

namespace {

/// A leader from (0, 0) over `corners` to (10, 5) with a landing to (12, 5), and what it tells.
QByteArray mleader(const QByteArray& content, const QByteArray& behind = "170\n1\n",
                   const QByteArray& corners = "") {
  return "100\nAcDbMLeader\n270\n2\n300\nCONTEXT_DATA{\n 40\n1\n 10\n3\n 20\n1\n 30\n0\n 41\n2.5\n"
         "140\n1.5\n145\n2\n" +
         content +
         "110\n0\n120\n0\n130\n0\n297\n0\n302\nLEADER{\n290\n1\n291\n1\n 10\n10\n 20\n5\n 30\n0\n"
         " 11\n1\n 21\n0\n 31\n0\n 90\n0\n 40\n2\n304\nLEADER_LINE{\n 10\n0\n 20\n0\n 30\n0\n" +
         corners +
         " 91\n0\n 92\n-1056964608\n305\n}\n271\n0\n303\n}\n272\n9\n301\n}\n340\n0\n 91\n"
         "-1023410171\n290\n1\n 41\n8\n" +
         behind;
}

const QByteArray kMleaderText =
    "290\n1\n304\nTwo\\Plines\n 11\n0\n 21\n0\n 31\n1\n340\n0\n 12\n13\n 22\n6\n 32\n0\n 13\n1\n"
    " 23\n0\n 33\n0\n 43\n0\n171\n1\n 90\n-1023410173\n296\n0\n";

Recorder mleaderShown(const QByteArray& tags) {
  return shownBy(*drawingWith("", tags, "MULTILEADER"));
}

} // namespace

TEST(Mleaders, HaveLinesArrowsLandingsAndTexts) {
  const FixedWidth metrics;
  const Recorder shown = mleaderShown(mleader(kMleaderText));
  ASSERT_EQ(shown.lines.size(), 2u);
  // The arrow takes the first part of the line.
  const OdGeVector3d along = OdGeVector3d(10, 5, 0).normal();
  expectNear(shown.lines[0].points[0], OdGePoint3d() + along * 1.5);
  expectNear(shown.lines[0].points[1], {10, 5, 0});
  expectNear(shown.lines[1].points[1], {12, 5, 0});
  ASSERT_EQ(shown.areas.size(), 1u);
  expectNear(shown.areas[0][0][0], {0, 0, 0});
  ASSERT_EQ(shown.texts.size(), 2u);
  EXPECT_EQ(shown.texts[0].text, QStringLiteral("Two"));
  EXPECT_NEAR(shown.texts[0].up.length(), 2.5, 1e-12);
  expectNear(shown.texts[0].origin, {13, 3.5, 0});
  // Colour 5 for lines, 3 for the text.
  EXPECT_EQ(shown.colors.at(0), OdCmColor::fromColorIndex(5));
  EXPECT_EQ(shown.colors.at(2), OdCmColor::fromColorIndex(3));
}

TEST(Mleaders, MayBeCurvedOrWithoutLines) {
  const QByteArray corners = " 10\n4\n 20\n6\n 30\n0\n";
  EXPECT_GT(mleaderShown(mleader("290\n0\n", "170\n2\n", corners)).lines.at(0).points.size(), 8u);
  EXPECT_EQ(mleaderShown(mleader("290\n0\n", "170\n1\n", corners)).lines.at(0).points.size(), 3u);
  EXPECT_TRUE(mleaderShown(mleader("290\n0\n", "170\n0\n", corners)).lines.empty());
}

TEST(Mleaders, ShowBlocksAndArrowsOfBlocks) {
  const OdDbDatabasePtr plain = drawingWith("", "");
  const OdDbObjectId block =
      plain->getBlockTableId().openAs<OdDbBlockTable>()->getAt(QStringLiteral("*T1"));
  const QByteArray handle = block.getHandle().ascii().toLatin1();
  const Recorder shown = mleaderShown(
      mleader("290\n0\n296\n1\n341\n" + handle +
                  "\n 14\n0\n 24\n0\n 34\n1\n 15\n20\n 25\n30\n 35\n0\n 16\n2\n 26\n2\n 36\n2\n"
                  " 46\n1.5707963267948966\n",
              "170\n1\n342\n" + handle + "\n"));
  ASSERT_EQ(shown.blocks.size(), 2u);
  expectNear(shown.blocks[0].second * OdGePoint3d(), {0, 0, 0});
  expectNear(shown.blocks[0].second * OdGePoint3d(-1, 0, 0),
             OdGePoint3d() + OdGeVector3d(10, 5, 0).normal() * 1.5);
  expectNear(shown.blocks[1].second * OdGePoint3d(1, 0, 0), {20, 32, 0});
}

TEST(Mleaders, CutAnywhereShowWhatIsWhole) {
  const QByteArray whole = mleader(kMleaderText);
  for (qsizetype at = whole.indexOf('\n'); at >= 0; at = whole.indexOf('\n', at + 1)) {
    const QByteArray part = whole.left(at + 1);
    if (part.count('\n') % 2 != 0) continue;
    EXPECT_LE(mleaderShown(part).lines.size(), 2u);
  }
}
