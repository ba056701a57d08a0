// Where the letters of a text stand, and what its codes mean.
#include "drawing/entities/text.h"
#include "drawing/mtext/text_codes.h"

#include "drawing/entities/recorder.h"

TEST(TextCodes, SignsAndNumbersBecomeLetters) {
  const auto plain = [](const char16_t* text) { return odtext::plain(OdString::fromUtf16(text)); };
  EXPECT_EQ(plain(u"%%c40 %%D %%p %%%"), OdString::fromUtf16(u"\u00D840 \u00B0 \u00B1 %"));
  EXPECT_EQ(plain(u"%%065%%066"), OdString::fromUtf16(u"AB"));
  EXPECT_EQ(plain(u"100% %% %%x %%12"), OdString::fromUtf16(u"100% %% %%x %%12"));
  EXPECT_EQ(plain(u"\\U+0416\\U+00"), OdString::fromUtf16(u"\u0416\\U+00"));
  EXPECT_EQ(plain(u"a^Ib^ c"), OdString::fromUtf16(u"a b^c"));
  EXPECT_EQ(plain(u"%%u%%o%%k"), OdString());
}

TEST(TextCodes, SwitchesPartTheText) {
  const auto pieces = odtext::pieces(QStringLiteral("a%%ub%%oc%%ud%%ke"));
  const std::vector<OdTextPiece> wanted = {{QStringLiteral("a"), false, false, false},
                                           {QStringLiteral("b"), true, false, false},
                                           {QStringLiteral("c"), true, true, false},
                                           {QStringLiteral("d"), false, true, false},
                                           {QStringLiteral("e"), false, true, true}};
  EXPECT_EQ(pieces, wanted);
}

namespace {

OdDbTextPtr fourLetters() {
  const auto text = odrxMake<OdDbText>();
  text->setTextString(QStringLiteral("abcd"));
  text->setHeight(2);
  text->setPosition({10, 20, 0});
  return text;
}

} // namespace

TEST(Text, StandsWhereItIsFastened) {
  const FixedWidth metrics;
  struct Row {
    OdDb::TextHorzMode horizontal;
    OdDb::TextVertMode vertical;
    OdGePoint3d origin; ///< for a text of width 8 and height 2 that is fastened at 100, 50
  };
  constexpr Row kRows[] = {
      {OdDb::kTextLeft, OdDb::kTextBase, {10, 20, 0}},
      {OdDb::kTextCenter, OdDb::kTextBase, {96, 50, 0}},
      {OdDb::kTextRight, OdDb::kTextBase, {92, 50, 0}},
      {OdDb::kTextMid, OdDb::kTextBase, {96, 49, 0}},
      {OdDb::kTextLeft, OdDb::kTextTop, {100, 48, 0}},
      {OdDb::kTextCenter, OdDb::kTextTop, {96, 48, 0}},
      {OdDb::kTextRight, OdDb::kTextTop, {92, 48, 0}},
      {OdDb::kTextLeft, OdDb::kTextVertMid, {100, 49, 0}},
      {OdDb::kTextCenter, OdDb::kTextVertMid, {96, 49, 0}},
      {OdDb::kTextRight, OdDb::kTextVertMid, {92, 49, 0}},
      {OdDb::kTextLeft, OdDb::kTextBottom, {100, 50.5, 0}},
      {OdDb::kTextCenter, OdDb::kTextBottom, {96, 50.5, 0}},
      {OdDb::kTextRight, OdDb::kTextBottom, {92, 50.5, 0}},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(testing::Message() << int{row.horizontal} << " " << int{row.vertical});
    const OdDbTextPtr text = fourLetters();
    text->setHorizontalMode(row.horizontal);
    text->setVerticalMode(row.vertical);
    text->setAlignmentPoint({100, 50, 0});
    const auto runs = text->runs();
    ASSERT_EQ(runs.size(), 1U);
    expectNear(runs[0].origin, row.origin);
    text->adjustAlignment();
    expectNear(text->position(), row.origin);
  }
}

TEST(Text, AlignedAndFittedOnesFillTheWay) {
  const FixedWidth metrics;
  const OdDbTextPtr text = fourLetters();
  text->setAlignmentPoint({10, 36, 0});
  text->setHorizontalMode(OdDb::kTextAlign);
  EXPECT_NEAR(text->runs()[0].up.length(), 4, 1e-9); // twice as high for twice the way
  EXPECT_NEAR(text->runs()[0].along.length(), 4, 1e-9);
  EXPECT_NEAR(text->runs()[0].along.x, 0, 1e-9);
  text->setHorizontalMode(OdDb::kTextFit);
  EXPECT_NEAR(text->runs()[0].up.length(), 2, 1e-9);
  EXPECT_NEAR(text->runs()[0].along.length(), 4, 1e-9);
  text->adjustAlignment();
  EXPECT_NEAR(text->widthFactor(), 2, 1e-9);
  EXPECT_NEAR(text->rotation(), kOdaPi / 2, 1e-9);
}

TEST(Text, MirrorsSlantAndRunsFollowOneAnother) {
  const FixedWidth metrics;
  const OdDbTextPtr text = fourLetters();
  text->setTextString(QStringLiteral("ab%%ucd"));
  text->setWidthFactor(0.5);
  text->setOblique(0.3);
  auto runs = text->runs();
  ASSERT_EQ(runs.size(), 2U);
  expectNear(runs[1].origin, {12, 20, 0});
  EXPECT_TRUE(runs[1].underlined);
  EXPECT_NEAR(runs[0].up.x, 2 * std::tan(0.3), 1e-9);
  text->mirrorInX(true);
  text->mirrorInY(true);
  runs = text->runs();
  expectNear(runs[1].origin, {8, 20, 0});
  EXPECT_NEAR(runs[0].up.y, -2, 1e-9);
  OdGeExtents3d box;
  ASSERT_TRUE(text->getGeomExtents(box));
  EXPECT_NEAR(box.maxPoint().y, 20.5, 1e-9);
  EXPECT_NEAR(box.minPoint().y, 18, 1e-9);
}

TEST(Text, SquashedCopiesHaveTheSameBox) {
  const FixedWidth metrics;
  const OdDbTextPtr text = fourLetters();
  text->setRotation(0.5);
  const OdGeMatrix3d squash = OdGeMatrix3d::scaling(3, 1, 1);
  EXPECT_FALSE(text->transformBy(squash));
  const OdDbTextPtr copy = text->getTransformedCopy(squash);
  ASSERT_TRUE(copy);
  const OdGiTextRun before = text->runs()[0];
  const OdGiTextRun after = copy->runs()[0];
  expectNear(after.origin, squash * before.origin);
  EXPECT_LE((after.along - squash * before.along).length(), 1e-9);
  EXPECT_LE((after.up - squash * before.up).length(), 1e-9);
}
