// The formatting codes of texts of several lines, and where their letters come to stand.
#include "drawing/database.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"
#include "drawing/mtext/parser.h"

#include "drawing/entities/recorder.h"

namespace {

using Piece = OdMTextPiece;

OdString text(const char16_t* units) { return OdString::fromUtf16(units); }

std::vector<Piece> parse(const char16_t* contents, double height = 2) {
  OdMTextFormat start;
  start.height = height;
  return odmtext::parse(text(contents), start);
}

OdMTextLayout layOut(const char16_t* contents, OdMTextFrame frame = {}) {
  const FixedWidth metrics;
  return odmtext::layOut(parse(contents, frame.height), frame, metrics);
}

/// The runs as words with their places.
std::string shown(const OdMTextLayout& layout) {
  std::string all;
  for (const OdMTextRun& run : layout.runs) {
    char place[80];
    std::snprintf(place, sizeof place, "@%g,%g ", run.x, run.y);
    all += run.text.toStdString() + place;
  }
  return all;
}

} // namespace

TEST(MTextCodes, PlainTextIsWhatIsLeft) {
  struct Row {
    const char16_t* contents;
    const char16_t* plain;
  };
  const Row rows[] = {
      {u"one\\Ptwo^Jthree", u"one\ntwo\nthree"},
      {u"a\\~b\\\\c\\{d\\}", u"a b\\c{d}"},
      {u"{\\fArial|b1|i0;A}{\\Ftxt,big;B}\\H3;C\\H2x;D\\W.5;E\\Q15;F\\T2;G\\A1;H", u"ABCDEFGH"},
      {u"\\C1;a\\c255;b\\Lc\\l\\Od\\o\\Ke\\k", u"abcde"},
      {u"\\S1/2; \\S+0,1^-0,2; \\S3#4;", u"1/2 +0,1/-0,2 3/4"},
      {u"\\S\\/^\\;;", u"//;"},
      {u"\\pi1,l2,qc,t3,c4,r5;x^Iy", u"x\ty"},
      {u"\\U+0416 %%c %%d %%p %%065", u"\u0416 \u00D8 \u00B0 \u00B1 A"},
      {u"\\Mx \\z \\Hx; } \\f", u"\\Mx \\z \\Hx; } \\f"},
      {u"a^ b^Mc", u"a^bc"},
      {u"{{{unclosed", u"unclosed"},
      {u"ends in \\", u"ends in \\"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(odmtext::plainText(text(row.contents)).toStdString(), text(row.plain).toStdString());
}

TEST(MTextCodes, BracesHoldWhatStandsInThem) {
  const auto pieces = parse(u"a{\\H2x;\\C1;\\Lb{\\H1.5x;c}d}e");
  ASSERT_EQ(pieces.size(), 5U);
  EXPECT_EQ(pieces[0].format.height, 2);
  EXPECT_EQ(pieces[1].format.height, 4);
  EXPECT_EQ(pieces[2].format.height, 6);
  EXPECT_TRUE(pieces[2].format.underlined);
  EXPECT_EQ(pieces[3].format.height, 4);
  EXPECT_EQ(pieces[3].format.color->colorIndex(), 1);
  EXPECT_EQ(pieces[4].format.height, 2);
  EXPECT_FALSE(pieces[4].format.color);
}

TEST(MTextCodes, FontsColoursAndParagraphsAreRead) {
  const auto pieces =
      parse(u"{\\fArial|b1|i1|c0|p34;a}{\\Fromans,bigfont;b}{\\from.shx;c}\\c16711680;d"
            u"\\pi-1.5,l2,r0.5,b1,a2,qj,t4,c8,r10,sm1.5;e\\pi*,q*,s*;f");
  ASSERT_EQ(pieces.size(), 6U);
  EXPECT_EQ(pieces[0].format.font.typeface, QStringLiteral("Arial"));
  EXPECT_TRUE(pieces[0].format.font.bold && pieces[0].format.font.italic);
  EXPECT_EQ(pieces[1].format.font.file, QStringLiteral("romans"));
  EXPECT_EQ(pieces[1].format.font.bigFile, QStringLiteral("bigfont"));
  EXPECT_EQ(pieces[2].format.font.file, QStringLiteral("rom.shx"));
  EXPECT_EQ(pieces[3].format.color->blue(), 255);
  EXPECT_EQ(pieces[3].format.color->red(), 0);
  const OdMTextParagraph& p = pieces[4].paragraph;
  EXPECT_EQ(p.firstIndent, -3);
  EXPECT_EQ(p.leftIndent, 4);
  EXPECT_EQ(p.rightIndent, 1);
  EXPECT_EQ(p.before, 2);
  EXPECT_EQ(p.after, 4);
  EXPECT_EQ(p.align, OdMTextParagraph::kJustified);
  EXPECT_EQ(p.spacingKind, OdMTextParagraph::kMultiple);
  ASSERT_EQ(p.tabs.size(), 3U);
  EXPECT_EQ(p.tabs[1].kind, OdMTextParagraph::Tab::kCenter);
  EXPECT_EQ(p.tabs[2].position, 20);
  EXPECT_EQ(pieces[5].paragraph.firstIndent, 0);
  EXPECT_EQ(pieces[5].paragraph.align, OdMTextParagraph::kByAttachment);
}

TEST(MTextCodes, EscapedTextComesBack) {
  const OdString hard = text(u"a\\b{c}\nd\te^f");
  EXPECT_EQ(odmtext::plainText(odmtext::escaped(hard)), hard);
}

TEST(MTextCodes, DistancesOfLinesAreTimesTheUsualOrInHeightsOfTheText) {
  struct Row {
    const char16_t* contents;
    OdMTextParagraph::SpacingKind kind;
    double spacing; ///< of a text that is two units high
  };
  for (const Row& row : {Row{u"\\psm1.5;a", OdMTextParagraph::kMultiple, 1.5},
                         Row{u"\\pse1.5;a", OdMTextParagraph::kExact, 3},
                         Row{u"\\psa1.5;a", OdMTextParagraph::kAtLeast, 3}}) {
    const OdMTextParagraph p = parse(row.contents).back().paragraph;
    EXPECT_EQ(p.spacingKind, row.kind);
    EXPECT_EQ(p.spacing, row.spacing);
  }
}

TEST(MTextCodes, TabsEndWhereSomethingElseIsTold) {
  const auto tabsOf = [](const char16_t* contents) {
    return parse(contents).back().paragraph.tabs.size();
  };
  EXPECT_EQ(tabsOf(u"\\pt4,c8,5;a"), 3U);
  EXPECT_EQ(tabsOf(u"\\pt4,l2,5;a"), 1U);
  EXPECT_EQ(tabsOf(u"\\pl2,5;a"), 0U);
}

TEST(MTextLayout, LinesStandApartByFiveThirds) {
  const OdMTextLayout two = layOut(u"ab\\Pcd");
  EXPECT_EQ(shown(two), "ab@0,-1 cd@0,-2.66667 ");
  EXPECT_EQ(two.lines, 2);
  EXPECT_NEAR(two.bottom, -1 - 5.0 / 3, 1e-9);
  EXPECT_EQ(two.right, 2);
  OdMTextFrame frame;
  frame.spacing = 1.5;
  EXPECT_EQ(shown(layOut(u"ab\\Pcd", frame)), "ab@0,-1 cd@0,-3.5 ");
  // Higher letters need more room, unless the distance is exact.
  frame.spacing = 1;
  EXPECT_EQ(shown(layOut(u"a\\P{\\H2x;b}", frame)), "a@0,-1 b@0,-4.33333 ");
  frame.exactly = true;
  EXPECT_EQ(shown(layOut(u"a\\P{\\H2x;b}", frame)), "a@0,-1 b@0,-2.66667 ");
}

TEST(MTextLayout, WrapsAtItsWidth) {
  OdMTextFrame frame;
  frame.width = 7;
  EXPECT_EQ(shown(layOut(u"one two three", frame)), "one two @0,-1 three@0,-2.66667 ");
  // A word that is too long stays whole, blanks at the end count for nothing.
  EXPECT_EQ(layOut(u"incredible   x", frame).lines, 2);
  frame.width = 3;
  EXPECT_EQ(shown(layOut(u"abc def", frame)), "abc @0,-1 def@0,-2.66667 ");
  EXPECT_EQ(layOut(u"a\\~b\\~c", frame).lines, 1);
  EXPECT_EQ(layOut(u"\u4E00\u4E01\u4E02\u4E03", frame).lines, 2);
}

TEST(MTextLayout, FastenedAtEachOfNinePlaces) {
  for (int attachment = 1; attachment <= 9; ++attachment) {
    OdMTextFrame frame;
    frame.attachment = attachment;
    const OdMTextLayout l = layOut(u"abcd\\Pef", frame);
    const double height = 1 + 5.0 / 3;
    const int column = (attachment - 1) % 3;
    const int row = (attachment - 1) / 3;
    EXPECT_NEAR(l.left, -2.0 * column, 1e-9);
    EXPECT_NEAR(l.right, 4 - 2.0 * column, 1e-9);
    EXPECT_NEAR(l.top, height * row / 2, 1e-9);
    EXPECT_NEAR(l.bottom, -height + height * row / 2, 1e-9);
    // The shorter line is left, centred or right with the rest.
    EXPECT_NEAR(l.runs[1].x, -2.0 * column + 1.0 * column, 1e-9);
  }
}

TEST(MTextLayout, ParagraphsIndentAlignAndSpread) {
  OdMTextFrame frame;
  frame.width = 12;
  EXPECT_EQ(shown(layOut(u"\\pi1,l2;ab cd ef gh", frame)), "ab cd ef @3,-1 gh@2,-2.66667 ");
  EXPECT_EQ(shown(layOut(u"\\pqr;ab", frame)), "ab@10,-1 ");
  EXPECT_EQ(shown(layOut(u"\\pqc;ab", frame)), "ab@5,-1 ");
  EXPECT_EQ(shown(layOut(u"\\pqj;ab cd efghijk", frame)),
            "ab@0,-1  @2,-1 cd@10,-1  @12,-1 efghijk@0,-2.66667 ");
  EXPECT_EQ(shown(layOut(u"\\pa1;a\\Pb", frame)), "a@0,-1 b@0,-3.66667 ");
  EXPECT_EQ(shown(layOut(u"\\pse3;a\\Pb", frame)), "a@0,-1 b@0,-4 ");
}

TEST(MTextLayout, TabsGoToTheirStops) {
  OdMTextFrame frame;
  frame.width = 40;
  EXPECT_EQ(shown(layOut(u"a^Ib", frame)), "a@0,-1 b@4,-1 ");
  EXPECT_EQ(shown(layOut(u"\\pt6;a^Ib", frame)), "a@0,-1 b@6,-1 ");
  EXPECT_EQ(shown(layOut(u"\\pr10;a", frame)), "a@0,-1 ");
  EXPECT_EQ(shown(layOut(u"\\ptr10;a^Ibcd", frame)), "a@0,-1 bcd@7,-1 ");
  EXPECT_EQ(shown(layOut(u"\\ptc10;a^Ibcd", frame)), "a@0,-1 bcd@8.5,-1 ");
  EXPECT_EQ(shown(layOut(u"\\pi-3,l3;1.^Iword", frame)), "1.@0,-1 word@3,-1 ");
}

TEST(MTextLayout, StacksStandOverAndBesideTheirLine) {
  const OdMTextLayout over = layOut(u"a\\S1/23;b");
  ASSERT_EQ(over.runs.size(), 4U);
  EXPECT_EQ(over.strokes.size(), 2U);
  EXPECT_NEAR(over.runs[1].format.height, 0.7, 1e-9);
  EXPECT_NEAR(over.runs[1].x, 1.35, 1e-9); // over the middle of the wider part
  EXPECT_NEAR(over.runs[2].x, 1, 1e-9);
  EXPECT_GT(over.runs[1].y, over.runs[2].y);
  EXPECT_NEAR(over.runs[3].x, 2.4, 1e-9);
  EXPECT_TRUE(layOut(u"\\S1^2;").strokes.empty());
  const OdMTextLayout slash = layOut(u"\\S1#2;");
  EXPECT_EQ(slash.strokes.size(), 2U);
  EXPECT_GT(slash.runs[1].x, slash.runs[0].x);
}

TEST(MTextLayout, ColumnsStandBesideEachOther) {
  OdMTextFrame frame;
  frame.columns.kind = OdMTextColumns::kStatic;
  frame.columns.count = 3;
  frame.columns.width = 10;
  frame.columns.gutter = 2;
  frame.columns.height = 3;
  EXPECT_EQ(shown(layOut(u"a\\Pb\\Pc\\Pd", frame)), "a@0,-1 b@0,-2.66667 c@12,-1 d@12,-2.66667 ");
  EXPECT_EQ(shown(layOut(u"a\\Nb", frame)), "a@0,-1 b@12,-1 ");
  frame.columns.reversed = true;
  EXPECT_EQ(shown(layOut(u"a\\Nb", frame)), "a@24,-1 b@12,-1 ");
}

TEST(MText, ShowsRunsInItsPlaneWithItsMask) {
  const FixedWidth metrics;
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setContents(QStringLiteral("ab\\P{\\C1;\\T2;cd}"));
  mtext->setLocation({10, 20, 0});
  mtext->setTextHeight(2);
  mtext->setRotation(kOdaPi / 2);
  mtext->setBackgroundFill(true);
  mtext->setBackgroundScaleFactor(1.5);
  mtext->setBackgroundFillColor(OdCmColor::fromColorIndex(4));
  Recorder draw;
  mtext->worldDraw(draw);
  ASSERT_EQ(draw.texts.size(), 2U);
  expectNear(draw.texts[0].origin, {12, 20, 0});
  EXPECT_NEAR(draw.texts[0].along.y, 2, 1e-9);
  EXPECT_EQ(draw.texts[1].color->colorIndex(), 1);
  EXPECT_NEAR(draw.texts[1].tracking, 1, 1e-9);
  ASSERT_EQ(draw.areas.size(), 1U);
  EXPECT_EQ(draw.colors.front()->colorIndex(), 4);
  OdGeExtents3d box;
  ASSERT_TRUE(mtext->getGeomExtents(box));
  // The mask reaches half a letter beyond the text.
  EXPECT_NEAR(box.minPoint().y, 19, 1e-9);
  EXPECT_NEAR(box.maxPoint().y, 20 + 8 + 1, 1e-9);
}

TEST(MText, ExplodesIntoTextsInTheSamePlaces) {
  const FixedWidth metrics;
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setContents(QStringLiteral("ab\\P\\L{\\C1;cd}\\S1/2;"));
  mtext->setTextHeight(2);
  std::vector<OdDbEntityPtr> pieces;
  ASSERT_TRUE(mtext->explode(pieces));
  ASSERT_EQ(pieces.size(), 5U);
  const OdDbTextPtr second = pieces[1];
  EXPECT_EQ(second->textString(), QStringLiteral("%%ucd"));
  EXPECT_EQ(second->color().colorIndex(), 1);
  Recorder draw;
  mtext->worldDraw(draw);
  for (std::size_t i = 0; i < draw.texts.size(); ++i)
    expectNear(OdDbTextPtr(pieces[i])->position(), draw.texts[i].origin);
}

TEST(MText, MovesTurnsAndStaysReadableInAMirror) {
  const FixedWidth metrics;
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setContents(QStringLiteral("abcd"));
  mtext->setLocation({10, 0, 0});
  ASSERT_TRUE(mtext->transformBy(OdGeMatrix3d::rotation(0.5, OdGeVector3d::zAxis()) *
                                 OdGeMatrix3d::scaling(2)));
  EXPECT_NEAR(mtext->rotation(), 0.5, 1e-9);
  EXPECT_NEAR(mtext->textHeight(), 2, 1e-9);
  mtext->setRotation(0);
  mtext->setLocation({10, 0, 0});
  OdGeExtents3d before, after;
  mtext->getGeomExtents(before);
  ASSERT_TRUE(mtext->transformBy(OdGeMatrix3d::mirroring({}, OdGeVector3d::xAxis())));
  mtext->getGeomExtents(after);
  EXPECT_NEAR(after.minPoint().x, -before.maxPoint().x, 1e-9);
  EXPECT_NEAR(after.maxPoint().x, -before.minPoint().x, 1e-9);
  EXPECT_NEAR(mtext->direction().x, 1, 1e-9);
}

TEST(MText, AWidthThatIsNotGivenStaysSo) {
  const auto mtext = odrxMake<OdDbMText>();
  mtext->setContents(QStringLiteral("abcd"));
  ASSERT_TRUE(mtext->transformBy(OdGeMatrix3d::scaling(2.5)));
  ASSERT_TRUE(mtext->transformBy(OdGeMatrix3d::rotation(0.3, OdGeVector3d::zAxis())));
  const auto database = OdDbDatabase::createDatabase();
  database->getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(mtext);
  const QByteArray file = database->writeDxf().replace("\r\n", "\n");
  const qsizetype start = file.indexOf("AcDbMText");
  ASSERT_GE(start, 0);
  EXPECT_FALSE(file.mid(start, file.indexOf("\n  0\n", start) - start).contains("\n 41\n"));
  mtext->setWidth(4);
  ASSERT_TRUE(mtext->transformBy(OdGeMatrix3d::scaling(2.5)));
  EXPECT_NEAR(mtext->width(), 10, 1e-9);
}
