#include "drafton/engine/commands/text_justification.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

struct Place {
  const char16_t* keyword;
  double x, y; // the left end of the base line against the point
};

/// For a text 12 wide and 3 high.
constexpr Place kPlaces[] = {
    {u"Left", 0, 0},       {u"Center", -6, 0}, {u"Right", -12, 0}, {u"Align", 0, 0},
    {u"Middle", -6, -1.5}, {u"Fit", 0, 0},     {u"TL", 0, -3},     {u"TC", -6, -3},
    {u"TR", -12, -3},      {u"ML", 0, -1.5},   {u"MC", -6, -1.5},  {u"MR", -12, -1.5},
    {u"BL", 0, 1},         {u"BC", -6, 1},     {u"BR", -12, 1},
};

} // namespace

TEST(TextJustification, EveryModeFindsTheStartOfTheBaseLine) {
  ASSERT_EQ(std::size(kPlaces), textJustifications().size());
  for (const Place& place : kPlaces) {
    SCOPED_TRACE(QString::fromUtf16(place.keyword).toStdString());
    const TextJustification& row = textJustification(QStringView(place.keyword));
    EXPECT_EQ(QStringView(row.keyword), QStringView(place.keyword));
    const OdGePoint3d straight = baseLineStart({100, 50, 7}, row, {12, 3}, 0);
    EXPECT_NEAR(straight.x, 100 + place.x, 1e-12);
    EXPECT_NEAR(straight.y, 50 + place.y, 1e-12);
    EXPECT_EQ(straight.z, 7);
    const OdGePoint3d upright = baseLineStart({100, 50, 7}, row, {12, 3}, kOdaPi / 2);
    EXPECT_NEAR(upright.x, 100 - place.y, 1e-12);
    EXPECT_NEAR(upright.y, 50 + place.x, 1e-12);
  }
}

TEST(TextJustification, ModesAreFoundByTheirAlignment) {
  for (const TextJustification& row : textJustifications())
    EXPECT_EQ(&textJustification(row.horizontal, row.vertical), &row);
}

TEST(TextJustification, OnlyAlignAndFitHaveTwoPoints) {
  for (const TextJustification& row : textJustifications()) {
    const QStringView word(row.keyword);
    EXPECT_EQ(row.hasTwoPoints(), word == QStringView(u"Align") || word == QStringView(u"Fit"));
  }
}

TEST(TextJustification, NextLineIsFiveThirdsBelow) {
  const OdGePoint3d straight = nextTextLine({1, 2, 0}, 3, 0);
  EXPECT_NEAR(straight.x, 1, 1e-12);
  EXPECT_NEAR(straight.y, -3, 1e-12);
  const OdGePoint3d upright = nextTextLine({1, 2, 0}, 3, kOdaPi / 2);
  EXPECT_NEAR(upright.x, 6, 1e-12);
  EXPECT_NEAR(upright.y, 2, 1e-12);
}
