// What is shown of frames of tolerances.
#include "drawing/contents/unknown_entity.h"

namespace {

/// In a style whose letters are one unit high.
Recorder shownOf(const QByteArray& text, const QByteArray& direction = " 11\n1\n 21\n0\n 31\n0\n") {
  const OdDbDatabasePtr db = drawingWith(
      "", "100\nAcDbFcf\n  3\nStandard\n 10\n5\n 20\n6\n 30\n0\n  1\n" + text + "\n" + direction,
      "TOLERANCE");
  const auto style = db->getDimStyleTableId()
                         .openAs<OdDbDimStyleTable>()
                         ->getAt(QStringLiteral("Standard"))
                         .openAs<OdDbDimStyleTableRecord>(OdDb::kForWrite);
  style->setDimtxt(0.5);
  style->setDimscale(2.0);
  style->setDimclrd(OdCmColor::fromColorIndex(1));
  style->setDimclrt(OdCmColor::fromColorIndex(3));
  return shownBy(*db);
}

} // namespace

TEST(Tolerances, HaveRowsOfFramedCells) {
  const FixedWidth metrics;
  const Recorder shown = shownOf("{\\Fgdt;j}%%v{\\Fgdt;n}0.1{\\Fgdt;m}%%vA%%v%%v^JB");
  ASSERT_EQ(shown.lines.size(), 4u);
  EXPECT_TRUE(shown.lines[0].closed);
  expectNear(shown.lines[0].points[0], {5, 7, 0});
  expectNear(shown.lines[0].points[2], {7, 5, 0});
  // Five letters and room for one.
  expectNear(shown.lines[1].points[0], {7, 7, 0});
  expectNear(shown.lines[1].points[2], {13, 5, 0});
  expectNear(shown.lines[2].points[2], {15, 5, 0});
  // The next row is below.
  expectNear(shown.lines[3].points[0], {5, 5, 0});
  expectNear(shown.lines[3].points[2], {7, 3, 0});
  ASSERT_EQ(shown.texts.size(), 4u);
  EXPECT_EQ(shown.texts[0].text, QStringLiteral("⌖"));
  EXPECT_EQ(shown.texts[1].text, QStringLiteral("⌀0.1Ⓜ"));
  EXPECT_EQ(shown.texts[3].text, QStringLiteral("B"));
  EXPECT_NEAR(shown.texts[0].up.length(), 1, 1e-12);
  EXPECT_EQ(shown.colors.at(0), OdCmColor::fromColorIndex(3));
  EXPECT_EQ(shown.colors.at(1), OdCmColor::fromColorIndex(1));
  EXPECT_EQ(shown.colors.back(), std::nullopt);
}

TEST(Tolerances, FollowTheirDirection) {
  const FixedWidth metrics;
  const Recorder shown = shownOf("A", " 11\n0\n 21\n1\n 31\n0\n");
  ASSERT_EQ(shown.lines.size(), 1u);
  expectNear(shown.lines[0].points[0], {4, 6, 0});
  expectNear(shown.lines[0].points[2], {6, 8, 0});
}

TEST(Tolerances, WithoutADirectionOrTextShowNothing) {
  EXPECT_TRUE(shownOf("A", " 11\n0\n 21\n0\n 31\n0\n").lines.empty());
  EXPECT_TRUE(shownOf("").lines.empty());
}
