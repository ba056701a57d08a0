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
    {"open", Wish::kWrong, "'open' is not known"},
    {"batch|--unknown", Wish::kWrong, "unknown option --unknown"},
    {"batch|--unknown=3", Wish::kWrong, "unknown option --unknown"},
    {"batch|-x", Wish::kWrong, "unknown option -x"},
    {"batch|--script", Wish::kWrong, "--script needs a value"},
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
