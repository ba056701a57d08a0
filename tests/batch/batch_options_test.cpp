#include "drafton/batch/batch_options.h"

#include <gtest/gtest.h>

using namespace drafton;

namespace {

using Wish = BatchArguments::Wish;

struct ArgumentRow {
  const char* arguments; ///< separated by '|'
  Wish wish;
  const char* told; ///< part of the error
};

class Arguments : public ::testing::TestWithParam<ArgumentRow> {};

constexpr ArgumentRow kRows[] = {
    {"", Wish::kHelp, ""},
    {"--help", Wish::kHelp, ""},
    {"batch|--help", Wish::kHelp, ""},
    {"--version", Wish::kVersion, ""},
    {"batch", Wish::kRun, ""},
    {"batch|a.dxf", Wish::kRun, ""},
    {"batch|--|--odd.dxf", Wish::kRun, ""},
    {"batch|-", Wish::kRun, ""},
    {"batch|--keep-going|--script|a.scr", Wish::kRun, ""},
    {"batch|--keep-going=yes", Wish::kWrong, "unknown option --keep-going"},
    {"open", Wish::kWrong, "'open' is not known"},
    {"batch|--unknown", Wish::kWrong, "unknown option --unknown"},
    {"batch|--unknown=3", Wish::kWrong, "unknown option --unknown"},
    {"batch|-x", Wish::kWrong, "unknown option -x"},
    {"batch|--script", Wish::kWrong, "--script needs a value"},
    {"batch|--script=", Wish::kWrong, "--script needs the name of a file"},
    {"batch|--out=", Wish::kWrong, "--out needs the name of a file"},
    {"batch|--profile=|a.dxf", Wish::kWrong, "--profile needs the name of a file"},
    {"batch|--png|a.png", Wish::kRun, ""},
    {"batch|--png|a.pdf|--size|800x600|--extents|--layout|Sheet", Wish::kRun, ""},
    {"batch|--svg=a.svg|--window=-1,-2,3.5,4e2|--background|#102030", Wish::kRun, ""},
    {"batch|--png|a.png|--background|Transparent", Wish::kRun, ""},
    {"batch|--png", Wish::kWrong, "--png needs a value"},
    {"batch|--png=", Wish::kWrong, "--png needs the name of a file"},
    {"batch|--png|a.jpg", Wish::kWrong, "--png a.jpg: the name has to end in .png, .pdf or .svg"},
    {"batch|--size|8x6", Wish::kWrong, "--size needs --png FILE"},
    {"batch|--extents", Wish::kWrong, "--extents needs --png FILE"},
    {"batch|--out|o.dxf|--dxf-version|R2000", Wish::kRun, ""},
    {"batch|--out|o.dxf|--dxf-version=2010", Wish::kRun, ""},
    {"batch|--out|o.dxf|--dxf-version|R12", Wish::kWrong,
     "--dxf-version needs one of: R2000 R2004 R2007 R2010 R2013 R2018"},
    {"batch|--dxf-version|R2000", Wish::kWrong, "--dxf-version needs --out FILE"},
    {"batch|--layout|A", Wish::kWrong, "--layout needs --png FILE"},
    {"batch|--png|a.png|--size|800", Wish::kWrong, "not '800'"},
    {"batch|--png|a.png|--size|0x5", Wish::kWrong, "not '0x5'"},
    {"batch|--png|a.png|--size|-5x5", Wish::kWrong, "not '-5x5'"},
    {"batch|--png|a.png|--size|8x6x4", Wish::kWrong, "not '8x6x4'"},
    {"batch|--png|a.png|--size|99999x5", Wish::kWrong, "--size 99999x5 is too large"},
    {"batch|--png|a.png|--size|30000x30000", Wish::kWrong, "is too large"},
    {"batch|--png|a.png|--background|whiteish", Wish::kWrong, "not 'whiteish'"},
    {"batch|--png|a.png|--background|#12", Wish::kWrong, "not '#12'"},
    {"batch|--png|a.png|--window|1,2,3", Wish::kWrong, "not '1,2,3'"},
    {"batch|--png|a.png|--window|1,2,3,x", Wish::kWrong, "not '1,2,3,x'"},
    {"batch|--png|a.png|--window|1,2,3,inf", Wish::kWrong, "not '1,2,3,inf'"},
    {"batch|--png|a.png|--window|1,2,1,4", Wish::kWrong, "has no area"},
    {"batch|--png|a.png|--extents|--window|1,2,3,4", Wish::kWrong, "cannot go together"},
    {"batch|--png|a.png|--layout=", Wish::kWrong, "--layout needs the name of a layout"},
    {"batch|a.dxf|b.dxf", Wish::kWrong, "more than one drawing: a.dxf and b.dxf"},
};

TEST_P(Arguments, AreUnderstoodOrNamed) {
  const OdString text = OdString::fromLatin1(GetParam().arguments);
  const BatchArguments parsed = parseArguments(text.isEmpty() ? QStringList() : text.split(u'|'));
  EXPECT_EQ(parsed.wish, GetParam().wish) << GetParam().arguments;
  EXPECT_TRUE(parsed.error.contains(QLatin1String(GetParam().told))) << parsed.error.toStdString();
  EXPECT_EQ(parsed.error.isEmpty(), GetParam().wish != Wish::kWrong);
}

INSTANTIATE_TEST_SUITE_P(All, Arguments, ::testing::ValuesIn(kRows));

TEST(HelpText, TellsOfTheWindowToo) {
  EXPECT_TRUE(helpText().contains(QStringLiteral("Usage: drafton [--catalogs")));
  EXPECT_TRUE(helpText().contains(QStringLiteral("drafton batch [--catalogs")));
}

} // namespace

TEST(BatchOptions, TakeTheirValuesInBothForms) {
  const BatchOptions options =
      parseArguments({QStringLiteral("batch"), QStringLiteral("--catalogs=/a;/b"),
                      QStringLiteral("--profile"), QStringLiteral("p.ini"),
                      QStringLiteral("--script"), QStringLiteral("-"), QStringLiteral("--out"),
                      QStringLiteral("o.dxf"), QStringLiteral("d.dxf")})
          .options;
  EXPECT_EQ(options.catalogs, QStringLiteral("/a;/b"));
  EXPECT_EQ(options.profile, QStringLiteral("p.ini"));
  EXPECT_EQ(options.script, QStringLiteral("-"));
  EXPECT_EQ(options.out, QStringLiteral("o.dxf"));
  EXPECT_EQ(options.drawing, QStringLiteral("d.dxf"));
}

TEST(BatchOptions, TellWhatPictureIsWanted) {
  const BatchOptions options =
      parseArguments({QStringLiteral("batch"), QStringLiteral("--png"), QStringLiteral("a.png"),
                      QStringLiteral("--size"), QStringLiteral("80X60"), QStringLiteral("--window"),
                      QStringLiteral("10,20,-30,5"), QStringLiteral("--background"),
                      QStringLiteral("#80102030"), QStringLiteral("--layout"),
                      QStringLiteral("A 1")})
          .options;
  ASSERT_TRUE(options.picture);
  EXPECT_EQ(options.picture->file, QStringLiteral("a.png"));
  EXPECT_EQ(options.picture->size, QSize(80, 60));
  EXPECT_EQ(options.picture->window, QRectF(-30, 5, 40, 15));
  EXPECT_EQ(options.picture->background, QColor(0x10, 0x20, 0x30, 0x80));
  EXPECT_EQ(options.picture->layout, QStringLiteral("A 1"));
  EXPECT_FALSE(options.picture->extents);
  EXPECT_FALSE(parseArguments({QStringLiteral("batch")}).options.picture);
}
