#include "drawing/patterns/pattern_file.h"

#include "drawing/patterns/pattern_strokes.h"
#include "frame/error.h"
#include "frame/file_path.h"

#include <gtest/gtest.h>

namespace {

OdString ownFile() {
  return odpath::fromPlatform(QStringLiteral(SOURCE_DIR "/drafton/engine/data/draftoniso.pat"));
}

TEST(HatchPatternFile, TheProgramsOwnHasManyPatternsAndNoErrors) {
  const OdHatchPatternFile file = OdHatchPatternFile::read(ownFile());
  EXPECT_EQ(file.errors(), QStringList());
  EXPECT_GE(file.patterns().size(), 40u);
  EXPECT_NE(file.find(QStringLiteral("ansi31")), nullptr);
}

TEST(HatchPatternFile, NamesInTheProgramsOwnAreUniqueAndDescribed) {
  const OdHatchPatternFile file = OdHatchPatternFile::read(ownFile());
  QStringList names;
  for (const OdHatchPattern& pattern : file.patterns()) {
    EXPECT_FALSE(names.contains(pattern.name, Qt::CaseInsensitive)) << pattern.name.toStdString();
    names << pattern.name;
    EXPECT_FALSE(pattern.description.isEmpty()) << pattern.name.toStdString();
  }
}

TEST(HatchPatternFile, ReadsLinesWithTheirOffsetsTurned) {
  const auto file = OdHatchPatternFile::parse(";; comment\r\n"
                                              "*TWO, a description, with a comma\r\n"
                                              "90, 1, 2, 3, 4, 5, -6 ; behind\r\n"
                                              "0,0,0,0,1\r\n");
  EXPECT_EQ(file.errors(), QStringList());
  ASSERT_EQ(file.patterns().size(), 1u);
  const OdHatchPattern& pattern = file.patterns()[0];
  EXPECT_EQ(pattern.name, QStringLiteral("TWO"));
  EXPECT_EQ(pattern.description, QStringLiteral("a description, with a comma"));
  ASSERT_EQ(pattern.lines.size(), 2u);
  EXPECT_NEAR(pattern.lines[0].angle, kOdaPi / 2, 1e-12);
  EXPECT_EQ(pattern.lines[0].base, (OdGePoint2d{1, 2}));
  // 3 along the line is up, 4 across it to the left.
  EXPECT_NEAR(pattern.lines[0].offset.x, -4, 1e-12);
  EXPECT_NEAR(pattern.lines[0].offset.y, 3, 1e-12);
  EXPECT_EQ(pattern.lines[0].dashes, (std::vector<double>{5, -6}));
}

TEST(HatchPatternFile, TellsWhatItLeavesOut) {
  const auto file = OdHatchPatternFile::parse("0,0,0,0,1\n"
                                              "*,no name\n"
                                              "0,0,0,0,1\n"
                                              "*A\n"
                                              "0,0,0\n"
                                              "0,0,0,0,nan\n"
                                              "0,0,0,1,0\n"
                                              "*B\n"
                                              "45,0,0,0,1\n");
  ASSERT_EQ(file.patterns().size(), 1u);
  EXPECT_EQ(file.patterns()[0].name, QStringLiteral("B"));
  EXPECT_EQ(file.errors().size(), 7);
  EXPECT_TRUE(file.errors()[0].startsWith(QStringLiteral("line 1:")));
}

TEST(HatchPatternFile, ReadsLatinNamesAndByteOrderMarks) {
  const OdString name = QStringLiteral(u"K\u00FC");
  EXPECT_EQ(OdHatchPatternFile::parse("*K\xFC\n0,0,0,0,1\n").patterns().at(0).name, name);
  EXPECT_EQ(OdHatchPatternFile::parse("\xEF\xBB\xBF*K\xC3\xBC\n0,0,0,0,1\n").patterns().at(0).name,
            name);
}

TEST(HatchPatternFile, AMissingFileOrAFolderIsAnError) {
  EXPECT_THROW(OdHatchPatternFile::read(QStringLiteral("nowhere.pat")), OdFileError);
  EXPECT_THROW(OdHatchPatternFile::read(odpath::fromPlatform(QStringLiteral(SOURCE_DIR))),
               OdFileError);
}

TEST(HatchPattern, IsPlacedByScaleAngleAndOrigin) {
  OdHatchPattern pattern{QStringLiteral("P"), {}, {{0, {1, 0}, {0, 2}, {3, -1}}}};
  const auto placed = pattern.placed(2, kOdaPi / 2, {10, 20});
  ASSERT_EQ(placed.size(), 1u);
  EXPECT_NEAR(placed[0].angle, kOdaPi / 2, 1e-12);
  EXPECT_NEAR(placed[0].base.x, 10, 1e-12);
  EXPECT_NEAR(placed[0].base.y, 22, 1e-12);
  EXPECT_NEAR(placed[0].offset.x, -4, 1e-12);
  EXPECT_NEAR(placed[0].offset.y, 0, 1e-12);
  EXPECT_EQ(placed[0].dashes, (std::vector<double>{6, -2}));
}

using odpattern::appendStrokes;

odpattern::Rings square(double size) { return {{{0, 0}, {size, 0}, {size, size}, {0, size}}}; }

double lengthOf(const std::vector<OdGePoint2d>& ends) {
  double sum = 0;
  for (std::size_t i = 0; i + 1 < ends.size(); i += 2) sum += ends[i].distanceTo(ends[i + 1]);
  return sum;
}

TEST(PatternStrokes, LinesFillAnAreaFromEdgeToEdge) {
  std::vector<OdGePoint2d> ends;
  // Lines at 0.5, 1.5, ... 9.5.
  EXPECT_TRUE(appendStrokes(square(10), {{0, {0, 0.5}, {0, 1}, {}}}, 100, ends));
  EXPECT_EQ(ends.size(), 20u);
  EXPECT_NEAR(lengthOf(ends), 100, 1e-9);
}

TEST(PatternStrokes, HolesStayEmpty) {
  odpattern::Rings rings = square(10);
  rings.push_back({{2, 2}, {8, 2}, {8, 8}, {2, 8}});
  std::vector<OdGePoint2d> ends;
  EXPECT_TRUE(appendStrokes(rings, {{0, {0, 0.5}, {0, 1}, {}}}, 100, ends));
  EXPECT_NEAR(lengthOf(ends), 100 - 36, 1e-9);
}

TEST(PatternStrokes, DashesKeepTheirPlaceWhereverTheAreaStarts) {
  std::vector<OdGePoint2d> ends;
  const odpattern::Rings rings{{{-7.5, -0.5}, {4, -0.5}, {4, 0.5}, {-7.5, 0.5}}};
  EXPECT_TRUE(appendStrokes(rings, {{0, {0, 0}, {0, 1}, {2, -3}}}, 100, ends));
  // Dashes begin at -10, -5 and 0; the first of them ends before the area.
  ASSERT_EQ(ends.size(), 4u);
  EXPECT_NEAR(ends[0].x, -5, 1e-9);
  EXPECT_NEAR(ends[1].x, -3, 1e-9);
  EXPECT_NEAR(ends[2].x, 0, 1e-9);
  EXPECT_NEAR(ends[3].x, 2, 1e-9);
}

TEST(PatternStrokes, EachLineIsShiftedAlongItself) {
  std::vector<OdGePoint2d> ends;
  const odpattern::Rings rings{{{0, -0.5}, {10, -0.5}, {10, 1.5}, {0, 1.5}}};
  EXPECT_TRUE(appendStrokes(rings, {{0, {0, 0}, {2.5, 1}, {1, -4}}}, 100, ends));
  std::vector<double> starts;
  for (std::size_t i = 0; i < ends.size(); i += 2)
    if (ends[i].y > 0.5) starts.push_back(ends[i].x);
  ASSERT_EQ(starts.size(), 2u);
  EXPECT_NEAR(starts[0], 2.5, 1e-9);
}

TEST(PatternStrokes, DotsArePairsOfEqualEnds) {
  std::vector<OdGePoint2d> ends;
  EXPECT_TRUE(appendStrokes(square(10), {{0, {0.5, 0.5}, {0, 1}, {0, -1}}}, 1000, ends));
  EXPECT_EQ(ends.size(), 200u);
  EXPECT_EQ(ends[0], ends[1]);
}

TEST(PatternStrokes, TooManyAreNoneAndCostNothing) {
  std::vector<OdGePoint2d> ends{{1, 1}, {2, 2}};
  EXPECT_FALSE(appendStrokes(square(1e9), {{0, {}, {0, 1e-3}, {}}}, 1000, ends));
  EXPECT_FALSE(appendStrokes(square(1e9), {{0, {}, {0, 1e8}, {1e-6, -1e-6}}}, 1000, ends));
  EXPECT_EQ(ends.size(), 2u);
}

TEST(PatternStrokes, LinesThatCannotBeWalkedAreLeftOut) {
  std::vector<OdGePoint2d> ends;
  const double nan = std::nan("");
  EXPECT_FALSE(appendStrokes(square(10), {{0, {}, {1, 0}, {}}}, 100, ends));
  EXPECT_FALSE(appendStrokes(square(10), {{0, {}, {0, 1}, {-1, -2}}}, 100, ends));
  EXPECT_FALSE(appendStrokes(square(10), {{0, {}, {0, 1}, {0, 0}}}, 100, ends));
  EXPECT_FALSE(appendStrokes(square(10), {{nan, {}, {0, 1}, {}}}, 100, ends));
  EXPECT_TRUE(ends.empty());
}

} // namespace
