#include "drafton/engine/value_parser.h"

#include "drafton/engine/keyword_list.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

struct PointRow {
  const char* text;
  bool valid;
  OdGePoint3d point;
};

class PointText : public ::testing::TestWithParam<PointRow> {};

// The last point is (10,20,5), the base (100,0,0).
const PointRow kPoints[] = {
    {"1,2", true, {1, 2, 0}},
    {"1,2,3", true, {1, 2, 3}},
    {"-1.5,+2e1", true, {-1.5, 20, 0}},
    {"@1,2", true, {11, 22, 5}},
    {"@1,2,3", true, {11, 22, 8}},
    {"@5<0", true, {15, 20, 5}},
    {"@5<90", true, {10, 25, 5}},
    {"@", true, {10, 20, 5}},
    {"5<0", true, {105, 0, 0}},
    {"5<180", true, {95, 0, 0}},
    {"", false, {}},
    {"1", false, {}},
    {"1,", false, {}},
    {",1", false, {}},
    {"1,2,3,4", false, {}},
    {"1, 2", false, {}},
    {"a,b", false, {}},
    {"1,2x", false, {}},
    {"5<", false, {}},
    {"<5", false, {}},
    {"5<6<7", false, {}},
    {"nan,1", false, {}},
    {"inf,1", false, {}},
    {"1e400,1", false, {}},
    {"1e308<45e300", true, {}}, // only that it neither crashes nor is infinite
    {"@@1,1", false, {}},
};

TEST_P(PointText, IsRead) {
  const PointRow& row = GetParam();
  const PointOrigins origins{{10, 20, 5}, OdGePoint3d{100, 0, 0}, 0, {}};
  const std::optional<OdGePoint3d> point = parsePoint(OdString::fromLatin1(row.text), origins);
  ASSERT_EQ(point.has_value(), row.valid) << row.text;
  if (!point) return;
  EXPECT_TRUE(odgeIsFinite(*point));
  if (OdString::fromLatin1(row.text).contains(u"e308")) return;
  EXPECT_NEAR(point->distanceTo(row.point), 0, 1e-9) << row.text;
}

INSTANTIATE_TEST_SUITE_P(All, PointText, ::testing::ValuesIn(kPoints));

} // namespace

TEST(PointText, PolarWithoutABaseStartsAtTheOrigin) {
  EXPECT_EQ(parsePoint(u"7<0", {{1, 1, 1}, {}, 0, {}}), (OdGePoint3d{7, 0, 0}));
}

TEST(PointText, AbsolutePointsWithoutZTakeTheElevation) {
  const PointOrigins raised{{1, 1, 5}, {}, 7, {}};
  EXPECT_EQ(parsePoint(u"1,2", raised), (OdGePoint3d{1, 2, 7}));
  EXPECT_EQ(parsePoint(u"1,2,0", raised), (OdGePoint3d{1, 2, 0}));
  EXPECT_EQ(parsePoint(u"3<0", raised), (OdGePoint3d{3, 0, 7}));
  EXPECT_EQ(parsePoint(u"@1,2", raised), (OdGePoint3d{2, 3, 5}));
  EXPECT_EQ(parsePoint(u"@3<0", raised), (OdGePoint3d{4, 1, 5}));
}

TEST(PointText, ANumberGoesSoFarFromTheBaseTowardsTheCursor) {
  const PointOrigins origins{{}, OdGePoint3d{1, 2, 5}, 0, OdGePoint3d{4, 6, 0}};
  EXPECT_EQ(parseDistanceToCursor(u"10", origins), (OdGePoint3d{7, 10, 5}));
  EXPECT_EQ(parseDistanceToCursor(u"-5", origins), (OdGePoint3d{-2, -2, 5})) << "the other way";
  EXPECT_FALSE(parseDistanceToCursor(u"10x", origins));
  EXPECT_FALSE(parseDistanceToCursor(u"10", {{}, OdGePoint3d{1, 2, 5}, 0, {}})) << "no cursor";
  EXPECT_FALSE(parseDistanceToCursor(u"10", {{}, {}, 0, OdGePoint3d{4, 6, 0}})) << "no base";
  EXPECT_FALSE(parseDistanceToCursor(u"10", {{}, OdGePoint3d{1, 2, 5}, 0, OdGePoint3d{1, 2, 0}}))
      << "no direction";
  EXPECT_FALSE(parseDistanceToCursor(u"1e308",
                                     {{}, OdGePoint3d{1e308, 0, 0}, 0, OdGePoint3d{1.5e308, 0, 0}}))
      << "too far";
}

TEST(NumberText, TakesTheWholeTextOrNothing) {
  EXPECT_EQ(parseReal(u"-2.5e2"), -250.0);
  EXPECT_EQ(parseReal(u"+.5"), 0.5);
  EXPECT_FALSE(parseReal(u"2,5"));
  EXPECT_FALSE(parseReal(u"2 "));
  EXPECT_FALSE(parseReal(u"+-2"));
  EXPECT_FALSE(parseReal(u"\u0662"));
  EXPECT_FALSE(parseReal(OdString(100000, u'1')));
  EXPECT_EQ(parseInteger(u"+12"), 12);
  EXPECT_FALSE(parseInteger(u"1.0"));
  EXPECT_FALSE(parseInteger(u"2147483648"));
}

TEST(NumberText, IsShownShort) {
  EXPECT_EQ(shownReal(10), QStringLiteral("10"));
  EXPECT_EQ(shownReal(0.5), QStringLiteral("0.5"));
  EXPECT_EQ(shownReal(1.0 / 3), QStringLiteral("0.3333"));
  EXPECT_EQ(shownReal(-0.00001), QStringLiteral("0"));
  EXPECT_EQ(shownAngle(kOdaPi), QStringLiteral("180"));
}

TEST(Keywords, AreAbbreviatedByTheirCapitals) {
  const KeywordList list(u"Close eXit 2P ALL Last LTscale");
  EXPECT_EQ(list.match(u"c"), QStringLiteral("Close"));
  EXPECT_EQ(list.match(u"clo"), QStringLiteral("Close"));
  EXPECT_EQ(list.match(u"_close"), QStringLiteral("Close"));
  EXPECT_EQ(list.match(u"x"), QStringLiteral("eXit"));
  EXPECT_EQ(list.match(u"ex"), QStringLiteral("eXit"));
  EXPECT_EQ(list.match(u"2p"), QStringLiteral("2P"));
  EXPECT_EQ(list.match(u"all"), QStringLiteral("ALL"));
  EXPECT_FALSE(list.match(u"al"));
  EXPECT_EQ(list.match(u"l"), QStringLiteral("Last"));
  EXPECT_EQ(list.match(u"lt"), QStringLiteral("LTscale"));
  EXPECT_FALSE(list.match(u"closed"));
  EXPECT_FALSE(list.match(u"_"));
  EXPECT_FALSE(list.match(u""));
}
