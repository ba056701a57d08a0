// Dimensions: what they measure, say and draw.
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/text.h"

#include "drawing/contents/support.h"
#include "drawing/entities/python_script.h"

#include <QTemporaryDir>

using namespace oddbtest;

namespace {

struct Dimensions : testing::Test {
  OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  OdDbDimStyleTableRecordPtr style = db->currentDimStyle().safeOpenObject(OdDb::kForWrite);

  template <class T>
  OdSmartPtr<T> added(OdSmartPtr<T> dimension) {
    dimension->setDatabaseDefaults(*db);
    addTo(*db, dimension);
    return dimension;
  }
  OdSmartPtr<OdDbRotatedDimension> linear(double length = 50) {
    return added(odrxMake<OdDbRotatedDimension>(0.0, OdGePoint3d{0, 0, 0},
                                                OdGePoint3d{length, 5, 0}, OdGePoint3d{0, 20, 0}));
  }
  static int count(const OdDbDimension& dimension, const char* dxfName) {
    int found = 0;
    for (const OdDbEntityPtr& e : entitiesOf(dimension.dimBlockId()))
      found += std::string_view(e->dxfName()) == dxfName ? 1 : 0;
    return found;
  }
  static OdDbMTextPtr textOf(const OdDbDimension& dimension) {
    for (const OdDbEntityPtr& e : entitiesOf(dimension.dimBlockId()))
      if (auto* const text = odrxCast<OdDbMText>(e.get())) return OdDbMTextPtr(text);
    return nullptr;
  }
};

} // namespace

TEST_F(Dimensions, DrawLinesArrowsAndText) {
  const auto dimension = linear();
  EXPECT_NEAR(dimension->getMeasurement(), 50, 1e-9);
  ASSERT_TRUE(dimension->dimBlockId().isValid());
  const auto block = dimension->dimBlockId().openAs<OdDbBlockTableRecord>();
  EXPECT_TRUE(block->getName().startsWith(QLatin1String("*D")));
  EXPECT_TRUE(block->isAnonymous());
  // Two extension lines and the dimension line below the text.
  EXPECT_EQ(count(*dimension, "LINE"), 3);
  EXPECT_EQ(count(*dimension, "SOLID"), 2);
  EXPECT_EQ(count(*dimension, "POINT"), 3);
  ASSERT_TRUE(textOf(*dimension));
  EXPECT_EQ(textOf(*dimension)->contents(), QStringLiteral("50"));
  EXPECT_NEAR(textOf(*dimension)->location().x, 25, 1e-9);
  EXPECT_GT(textOf(*dimension)->location().y, 20);
  OdGeExtents3d box;
  ASSERT_TRUE(dimension->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().x, 50, 1);
}

TEST_F(Dimensions, PutOutsideWhatHasNoRoom) {
  const auto narrow = linear(6);
  // Only the text goes out, where the arrows have no room both do.
  EXPECT_TRUE(textOf(*narrow));
  const auto tiny = linear(2);
  EXPECT_GT(textOf(*tiny)->location().x, 2);
  EXPECT_GT(count(*tiny, "LINE"), 3);
}

TEST_F(Dimensions, SayWhatTheStyleWants) {
  const auto said = [&](double length) { return linear(length)->displayedText(); };
  style->setDimdec(2);
  style->setDimdsep(',');
  style->setDimzin(0);
  EXPECT_EQ(said(12.5), QStringLiteral("12,50"));
  style->setDimzin(8);
  EXPECT_EQ(said(12.5), QStringLiteral("12,5"));
  style->setDimzin(12);
  EXPECT_EQ(said(0.5), QStringLiteral(",5"));
  style->setDimdsep('.');
  style->setDimzin(8);
  style->setDimlfac(2);
  style->setDimrnd(0.5);
  EXPECT_EQ(said(12.2), QStringLiteral("24.5"));
  style->setDimlfac(1);
  style->setDimrnd(0);
  style->setDimpost(QStringLiteral("L=<>mm"));
  EXPECT_EQ(said(7), QStringLiteral("L=7mm"));
  style->setDimpost(QString());
  style->setDimtol(true);
  style->setDimtp(0.1);
  style->setDimtm(0.1);
  EXPECT_EQ(said(7), QStringLiteral("7%%p0.1"));
  style->setDimtm(0.2);
  EXPECT_EQ(said(7), QStringLiteral("7{\\H1x;\\S+0.1^ -0.2;}"));
  style->setDimtol(false);
  style->setDimalt(true);
  style->setDimaltf(1 / 25.4);
  style->setDimaltd(2);
  EXPECT_EQ(said(25.4), QStringLiteral("25.4 [1.00]"));
  style->setDimalt(false);
  style->setDimlunit(4);
  style->setDimdec(4);
  style->setDimzin(0);
  EXPECT_EQ(said(18.5), QStringLiteral("1'-6 1/2\""));
  style->setDimzin(3);
  EXPECT_EQ(said(6.25), QStringLiteral("6 1/4\""));
  style->setDimlunit(5);
  EXPECT_EQ(said(18.125), QStringLiteral("18 1/8"));
  style->setDimlunit(1);
  style->setDimdec(2);
  EXPECT_EQ(said(1234), QStringLiteral("1.23E+03"));
}

TEST_F(Dimensions, OldStylesGetTheArrowsThatTheyName) {
  const QByteArray old = "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nDIMSTYLE\n 70\n2\n"
                         "  0\nDIMSTYLE\n  2\nTicks\n 70\n0\n  5\nARCHTICK\n  6\nMINE\n"
                         "  0\nDIMSTYLE\n  2\nMore\n 70\n0\n  5\nARCHTICK\n  6\n_DOT\n"
                         "  0\nENDTAB\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"
                         "  0\nENDSEC\n  0\nEOF\n";
  const OdDbDatabasePtr read = OdDbDatabase::readDxf(old, QStringLiteral("old"));
  const auto styles = read->getDimStyleTableId().openAs<OdDbDimStyleTable>();
  const auto blocks = read->getBlockTableId().openAs<OdDbBlockTable>();
  const OdDbObjectId tick = blocks->getAt(QStringLiteral("_ArchTick"));
  ASSERT_FALSE(tick.isNull());
  EXPECT_FALSE(tick.openAs<OdDbBlockTableRecord>()->newIterator()->done());
  EXPECT_FALSE(blocks->has(QStringLiteral("ARCHTICK")));
  EXPECT_TRUE(blocks->has(QStringLiteral("MINE")));
  for (const char* const name : {"Ticks", "More"}) {
    const OdDbDimStyleTableRecordPtr one = styles->getAt(QLatin1String(name)).openObject();
    EXPECT_EQ(one->dimblk(), tick) << name;
  }
  const OdDbObjectId dot = blocks->getAt(QStringLiteral("_DOT"));
  EXPECT_FALSE(dot.openAs<OdDbBlockTableRecord>()->newIterator()->done());
}

TEST_F(Dimensions, TakeTheirOwnTextAndOverrides) {
  const auto dimension = linear();
  dimension->setDimensionText(QStringLiteral("about <>!"));
  EXPECT_EQ(dimension->displayedText(), QStringLiteral("about 50!"));
  dimension->setDimensionText(QStringLiteral(" "));
  EXPECT_EQ(dimension->displayedText(), QString());
  dimension->setDimensionText(QStringLiteral("none"));
  EXPECT_EQ(dimension->displayedText(), QStringLiteral("none"));
  dimension->setDimVarOverride(QStringLiteral("DIMSCALE"), 3.5);
  dimension->setDimVarOverride(QStringLiteral("dimclrd"), std::int64_t{1});
  dimension->setDimVarOverride(QStringLiteral("DIMSCALE"), 4.5);
  EXPECT_EQ(dimension->dimVars().dimscale, 4.5);
  EXPECT_EQ(dimension->dimVars().dimclrd, OdCmColor::fromColorIndex(1));
  EXPECT_EQ(style->dimscale(), 1);
  EXPECT_THROW(dimension->setDimVarOverride(QStringLiteral("LTSCALE"), 1.0), OdError);
  const OdDbDatabasePtr again = OdDbDatabase::readDxf(db->writeDxf(), QStringLiteral("again"));
  const OdSmartPtr<OdDbDimension> read(
      odrxCast<OdDbDimension>(entitiesOf(again->getModelSpaceId())[0].get()));
  EXPECT_EQ(read->dimVars().dimscale, 4.5);
}

TEST_F(Dimensions, DrawRadiiAndDiameters) {
  const auto radius =
      added(odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0}, OdGePoint3d{45, 5, 0}, 0.0));
  EXPECT_EQ(textOf(*radius)->contents(), QStringLiteral("R40"));
  EXPECT_EQ(count(*radius, "SOLID"), 1);
  const auto small =
      added(odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0}, OdGePoint3d{6, 5, 0}, 0.0));
  EXPECT_GT(textOf(*small)->location().x, 6);
  const auto diameter =
      added(odrxMake<OdDbDiametricDimension>(OdGePoint3d{45, 5, 0}, OdGePoint3d{5, 5, 0}, 0.0));
  EXPECT_EQ(textOf(*diameter)->contents(), QStringLiteral("%%c40"));
  EXPECT_EQ(count(*diameter, "SOLID"), 2);
}

TEST_F(Dimensions, LeadersPutTheTextOfACircleOutside) {
  const auto radius =
      added(odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0}, OdGePoint3d{45, 5, 0}, 12.0));
  EXPECT_GT(textOf(*radius)->location().x, 57);
  const auto diameter =
      added(odrxMake<OdDbDiametricDimension>(OdGePoint3d{45, 5, 0}, OdGePoint3d{5, 5, 0}, 12.0));
  EXPECT_GT(textOf(*diameter)->location().x, 57);
}

TEST_F(Dimensions, TextAboveTheLineNeverBreaksIt) {
  style->setDimtxt(2.5);
  style->setDimgap(0.8);
  style->setDimtad(1);
  for (int i = 0; i < 40; ++i) {
    const double x = 11 + i * 0.7, y = 130.1 + i * 37.3;
    for (const double turn : {0.0, kOdaPi / 2}) {
      const OdGeVector3d way{std::cos(turn) * 52, std::sin(turn) * 52, 0};
      const auto dimension = added(odrxMake<OdDbRotatedDimension>(
          turn, OdGePoint3d{x, y, 0}, OdGePoint3d{x, y, 0} + way, OdGePoint3d{x - 14, y - 14, 0}));
      EXPECT_EQ(count(*dimension, "LINE"), 3) << x << ' ' << y << ' ' << turn;
    }
  }
}

TEST_F(Dimensions, MeasureAngles) {
  const auto lines = odrxMake<OdDb2LineAngularDimension>();
  lines->setLines({0, 0, 0}, {10, 0, 0}, {0, 0, 0}, {0, 10, 0});
  lines->setArcPoint({5, 5, 0});
  EXPECT_NEAR(lines->getMeasurement(), kOdaPi / 2, 1e-12);
  lines->setLines({0, 0, 0}, {10, 0, 0}, {0, 0, 0}, {10, 10, 0});
  lines->setArcPoint({-5, 5, 0});
  EXPECT_NEAR(lines->getMeasurement(), 3 * kOdaPi / 4, 1e-12);
  const auto points = odrxMake<OdDb3PointAngularDimension>();
  points->set({0, 0, 0}, {5, 0, 0}, {0, 5, 0}, {3, 3, 0});
  EXPECT_NEAR(points->getMeasurement(), kOdaPi / 2, 1e-12);
  points->set({0, 0, 0}, {5, 0, 0}, {0, 5, 0}, {-3, -3, 0});
  EXPECT_NEAR(points->getMeasurement(), 3 * kOdaPi / 2, 1e-12);
  EXPECT_EQ(points->displayedText(), QStringLiteral("270%%d"));
  const auto arc = odrxMake<OdDbArcDimension>();
  arc->set({0, 0, 0}, {5, 0, 0}, {0, 5, 0}, {3, 3, 0});
  EXPECT_NEAR(arc->getMeasurement(), 5 * kOdaPi / 2, 1e-12);
  const auto ordinate = odrxMake<OdDbOrdinateDimension>();
  ordinate->set({1, 1, 0}, {4, 6, 0}, {4, 9, 0}, true);
  EXPECT_NEAR(ordinate->getMeasurement(), 3, 1e-12);
}

TEST_F(Dimensions, DrawAngles) {
  const auto lines = odrxMake<OdDb2LineAngularDimension>();
  lines->setLines({10, 0, 0}, {60, 0, 0}, {0, 10, 0}, {0, 20, 0});
  lines->setArcPoint({30, 40, 0});
  added(lines);
  // The arc meets the first line itself; the second one ends below it.
  EXPECT_EQ(count(*lines, "LINE"), 1);
  EXPECT_EQ(count(*lines, "SOLID"), 2);
  EXPECT_EQ(count(*lines, "ARC"), 1);
  EXPECT_EQ(count(*lines, "POINT"), 5);
  EXPECT_EQ(textOf(*lines)->contents(), QStringLiteral("90%%d"));
  const OdGeVector3d toText = textOf(*lines)->location().asVector();
  EXPECT_NEAR(toText.x, toText.y, 1e-9);
  EXPECT_GT(toText.length(), 50);
  // In the angle beside it, also of lines that are told the other way round.
  lines->setArcPoint({-30, 40, 0});
  lines->setLines({60, 0, 0}, {10, 0, 0}, {0, 20, 0}, {0, 10, 0});
  ASSERT_TRUE(lines->recomputeDimBlock());
  EXPECT_LT(textOf(*lines)->location().x, -30);
  EXPECT_GT(textOf(*lines)->location().y, 30);

  const auto points = odrxMake<OdDb3PointAngularDimension>();
  points->set({0, 0, 0}, {5, 0, 0}, {0, 5, 0}, {-30, -30, 0});
  added(points);
  EXPECT_EQ(textOf(*points)->contents(), QStringLiteral("270%%d"));
  EXPECT_NEAR(textOf(*points)->location().x, textOf(*points)->location().y, 1e-9);
  EXPECT_LT(textOf(*points)->location().x, -25);
  EXPECT_EQ(count(*points, "LINE"), 2);

  // Parallel lines have no angle: what is shown stays.
  const auto parallel = odrxMake<OdDb2LineAngularDimension>();
  parallel->setLines({0, 0, 0}, {60, 0, 0}, {0, 10, 0}, {60, 10, 0});
  parallel->setArcPoint({30, 5, 0});
  added(parallel);
  EXPECT_FALSE(parallel->recomputeDimBlock());
}

TEST_F(Dimensions, LeaveRoomInTheArcForATextThatStandsOnIt) {
  style->setDimtad(0);
  const auto points = odrxMake<OdDb3PointAngularDimension>();
  points->set({0, 0, 0}, {5, 0, 0}, {0, 5, 0}, {30, 30, 0});
  added(points);
  EXPECT_EQ(count(*points, "ARC"), 2);
  EXPECT_NEAR(textOf(*points)->location().x, 30, 1e-9);
}

TEST_F(Dimensions, DrawTheLengthOfAnArc) {
  const auto arc = odrxMake<OdDbArcDimension>();
  arc->set({0, 0, 0}, {40, 0, 0}, {0, 40, 0}, {35, 35, 0});
  added(arc);
  EXPECT_EQ(textOf(*arc)->contents(), QStringLiteral("\u231262,83"));
  EXPECT_EQ(count(*arc, "SOLID"), 2);
  // Its text follows the drawing's scale and keeps its own size.
  const double height = textOf(*arc)->textHeight();
  ASSERT_TRUE(arc->transformBy(OdGeMatrix3d::scaling(2)));
  EXPECT_EQ(textOf(*arc)->contents(), QStringLiteral("\u2312125,66"));
  EXPECT_EQ(textOf(*arc)->textHeight(), height);
}

TEST_F(Dimensions, PutTheArrowsOfSmallAnglesOutside) {
  const auto points = odrxMake<OdDb3PointAngularDimension>();
  points->set({0, 0, 0}, {20, 0, 0}, {20, 1, 0}, {20, 0.5, 0});
  added(points);
  EXPECT_EQ(count(*points, "SOLID"), 2);
  EXPECT_GE(count(*points, "ARC"), 2);
  // Its text stands outside of the arc.
  EXPECT_GT(textOf(*points)->location().x, 21);
}

TEST_F(Dimensions, DrawCoordinates) {
  const auto straight = odrxMake<OdDbOrdinateDimension>();
  straight->set({1, 1, 0}, {40, 6, 0}, {40, 30, 0}, true);
  added(straight);
  EXPECT_EQ(textOf(*straight)->contents(), QStringLiteral("39"));
  EXPECT_EQ(count(*straight, "LINE"), 1);
  EXPECT_NEAR(textOf(*straight)->rotation(), kOdaPi / 2, 1e-9);
  EXPECT_NEAR(textOf(*straight)->location().x, 40, 1e-9);
  EXPECT_GT(textOf(*straight)->location().y, 30);

  const auto stepped = odrxMake<OdDbOrdinateDimension>();
  stepped->set({1, 1, 0}, {40, 6, 0}, {70, 16, 0}, false);
  added(stepped);
  EXPECT_EQ(textOf(*stepped)->contents(), QStringLiteral("5"));
  EXPECT_EQ(count(*stepped, "LINE"), 3);
  EXPECT_NEAR(textOf(*stepped)->location().y, 16, 1e-9);
  EXPECT_GT(textOf(*stepped)->location().x, 70);

  // Turned as a whole it tells the same, scaled it does not.
  ASSERT_TRUE(stepped->transformBy(OdGeMatrix3d::rotation(0.5, OdGeVector3d::zAxis())));
  EXPECT_EQ(textOf(*stepped)->contents(), QStringLiteral("5"));
  EXPECT_NEAR(textOf(*stepped)->rotation(), 0.5, 1e-9);
  ASSERT_TRUE(stepped->transformBy(OdGeMatrix3d::scaling(3)));
  EXPECT_EQ(textOf(*stepped)->contents(), QStringLiteral("15"));
  ASSERT_TRUE(stepped->transformBy(OdGeMatrix3d::mirroring(OdGePoint3d(), OdGeVector3d::xAxis())));
  EXPECT_EQ(textOf(*stepped)->contents(), QStringLiteral("15"));
}

TEST_F(Dimensions, FollowWhatIsDoneToThem) {
  const auto dimension = linear();
  ASSERT_TRUE(dimension->transformBy(OdGeMatrix3d::scaling(2)));
  EXPECT_NEAR(dimension->getMeasurement(), 100, 1e-9);
  EXPECT_EQ(textOf(*dimension)->contents(), QStringLiteral("100"));
  ASSERT_TRUE(dimension->transformBy(OdGeMatrix3d::rotation(kOdaPi / 2, OdGeVector3d::zAxis())));
  EXPECT_NEAR(dimension->getMeasurement(), 100, 1e-9);
  EXPECT_NEAR(textOf(*dimension)->rotation(), kOdaPi / 2, 1e-9);
  ASSERT_TRUE(
      dimension->transformBy(OdGeMatrix3d::mirroring(OdGePoint3d(), OdGeVector3d::xAxis())));
  EXPECT_NEAR(dimension->getMeasurement(), 100, 1e-9);
  EXPECT_FALSE(dimension->transformBy(OdGeMatrix3d::scaling(2, 1, 1)));
}

TEST_F(Dimensions, HaveABlockOfTheirOwnWhenCopied) {
  const auto dimension = linear();
  const OdSmartPtr<OdDbDimension> copy = dimension->clone();
  ASSERT_TRUE(copy->transformBy(OdGeMatrix3d::translation({100, 0, 0})));
  addTo(*db, copy);
  EXPECT_NE(copy->dimBlockId(), dimension->dimBlockId());
  EXPECT_NEAR(textOf(*copy)->location().x, 125, 1e-9);
  EXPECT_NEAR(textOf(*dimension)->location().x, 25, 1e-9);
  OdDbIdMapping mapping;
  db->deepCloneObjects({dimension->objectId()}, db->getModelSpaceId(), mapping);
  const OdSmartPtr<OdDbDimension> deep = mapping.find(dimension->objectId()).safeOpenObject();
  EXPECT_NE(deep->dimBlockId(), dimension->dimBlockId());
  EXPECT_EQ(entitiesOf(deep->dimBlockId()).size(), entitiesOf(dimension->dimBlockId()).size());
}

TEST_F(Dimensions, FallIntoWhatTheyShow) {
  const auto dimension = linear();
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(dimension->explode(pieces));
  EXPECT_EQ(pieces.size(), 6u);
}

TEST_F(Dimensions, OfEveryKindMoveWithTheirBlocks) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("theirs.dxf"));
  runScript("contents.py", {QStringLiteral("make"), QStringLiteral("R2018"), path});
  const OdDbDatabasePtr theirs = OdDbDatabase::readFile(path);
  int seen = 0;
  for (const OdDbEntityPtr& e : entitiesOf(theirs->getModelSpaceId())) {
    const OdSmartPtr<OdDbDimension> dimension(odrxCast<OdDbDimension>(e.get()));
    if (!dimension) continue;
    ++seen;
    OdGeExtents3d before;
    OdGeExtents3d after;
    ASSERT_TRUE(dimension->getGeomExtents(before)) << dimension->kind();
    dimension->upgradeOpen();
    ASSERT_TRUE(dimension->transformBy(OdGeMatrix3d::translation({1000, 0, 0})));
    ASSERT_TRUE(dimension->getGeomExtents(after));
    EXPECT_GT(after.minPoint().x, 900) << dimension->kind();
    const OdSmartPtr<OdDbDimension> copy = dimension->clone();
    ASSERT_TRUE(copy->transformBy(OdGeMatrix3d::translation({1000, 0, 0})));
    addTo(*theirs, copy);
    ASSERT_TRUE(copy->getGeomExtents(before));
    EXPECT_GT(before.minPoint().x, 1900) << dimension->kind();
    EXPECT_NE(copy->dimBlockId(), dimension->dimBlockId());
  }
  EXPECT_EQ(seen, 9);
}

TEST_F(Dimensions, KeepTheirPictureWhenMovedOrTurned) {
  const auto dimension = linear();
  // As another program may have laid it out.
  textOf(*dimension)->objectId().openAs<OdDbMText>(OdDb::kForWrite)->setLocation({10, 30, 0});
  dimension->transformBy(OdGeMatrix3d::translation({100, 0, 0}));
  EXPECT_NEAR(textOf(*dimension)->location().x, 110, 1e-9);
  EXPECT_NEAR(textOf(*dimension)->location().y, 30, 1e-9);
  dimension->transformBy(OdGeMatrix3d::rotation(kOdaPi / 2, OdGeVector3d::zAxis()));
  EXPECT_NEAR(textOf(*dimension)->location().x, -30, 1e-9);
  const OdSmartPtr<OdDbDimension> copy = dimension->clone();
  copy->transformBy(OdGeMatrix3d::translation({1, 2, 0}));
  addTo(*db, copy);
  EXPECT_NE(copy->dimBlockId(), dimension->dimBlockId());
  EXPECT_NEAR(textOf(*copy)->location().x, -29, 1e-9);
  EXPECT_NEAR(textOf(*copy)->location().y, 112, 1e-9);
  // What was changed besides is drawn anew.
  const OdSmartPtr<OdDbDimension> other = dimension->clone();
  other->setDimensionText(QStringLiteral("other"));
  addTo(*db, other);
  EXPECT_EQ(textOf(*other)->contents(), QStringLiteral("other"));
}

TEST_F(Dimensions, AreShownWithoutABlock) {
  const auto vee = odrxMake<OdDb2LineAngularDimension>();
  vee->setLines({10, 0, 0}, {40, 0, 0}, {0, 10, 0}, {0, 40, 0});
  vee->setArcPoint({50, 50, 0});
  const auto around = odrxMake<OdDb3PointAngularDimension>();
  around->set({0, 0, 0}, {30, 0, 0}, {0, 30, 0}, {-40, -40, 0});
  const auto x = odrxMake<OdDbOrdinateDimension>();
  x->set({0, 0, 0}, {20, 10, 0}, {30, 60, 0}, true);
  const auto radius =
      odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0}, OdGePoint3d{45, 5, 0}, 0.0);
  for (const OdSmartPtr<OdDbDimension>& dimension :
       {OdSmartPtr<OdDbDimension>(linear()), OdSmartPtr<OdDbDimension>(vee.get()),
        OdSmartPtr<OdDbDimension>(around.get()), OdSmartPtr<OdDbDimension>(x.get()),
        OdSmartPtr<OdDbDimension>(radius.get())}) {
    if (!dimension->database()) added(dimension);
    ASSERT_TRUE(dimension->dimBlockId().isValid()) << dimension->kind();
    OdGeExtents3d before, after;
    ASSERT_TRUE(dimension->getGeomExtents(before));
    dimension->setDimBlockId({});
    const QByteArray file = db->writeDxf();
    ASSERT_TRUE(dimension->getGeomExtents(after)) << dimension->kind();
    EXPECT_EQ(db->writeDxf(), file);
    // The points that only say where it is fastened are not shown; all lie within what is.
    EXPECT_NEAR(after.maxPoint().x, before.maxPoint().x, 1e-9) << dimension->kind();
    EXPECT_NEAR(after.maxPoint().y, before.maxPoint().y, 1e-9) << dimension->kind();
    std::vector<OdDbEntityPtr> pieces;
    EXPECT_TRUE(dimension->explode(pieces));
    EXPECT_TRUE(dimension->transformBy(OdGeMatrix3d::translation({1, 0, 0})));
    EXPECT_TRUE(dimension->dimBlockId().isValid());
  }
}

TEST_F(Dimensions, AreUndoneWithTheirBlock) {
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("DIMLINEAR"));
  const auto dimension = linear();
  dimension->transformBy(OdGeMatrix3d::translation({5, 0, 0}));
  db->endUndoRecord();
  const QByteArray after = db->writeDxf();
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  db->redo();
  EXPECT_EQ(db->writeDxf(), after);
}

TEST_F(Dimensions, AreReadByAnotherProgram) {
  linear();
  added(odrxMake<OdDbAlignedDimension>(OdGePoint3d{0, 0, 0}, OdGePoint3d{30, 40, 0},
                                       OdGePoint3d{0, 20, 0}));
  added(odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0}, OdGePoint3d{45, 5, 0}, 0.0));
  QTemporaryDir folder;
  for (const auto version :
       {OdDb::kR2000, OdDb::kR2004, OdDb::kR2007, OdDb::kR2010, OdDb::kR2013, OdDb::kR2018}) {
    const QString path = folder.filePath(QStringLiteral("ours.dxf"));
    db->writeFile(path, version);
    EXPECT_EQ(runScript("contents.py", {QStringLiteral("audit"), path}).toStdString(), "");
  }
}
