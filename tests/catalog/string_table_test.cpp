#include "module/string_table.h"

#include "support/data_file.h"
#include "support/test_host.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using namespace tc;

struct StringTableTest : testing::Test {
  StringTableTest() { testhost::host().reset(); }
};

TEST_F(StringTableTest, StandsInAscendingOrderWithoutDuplicates) {
  for (std::size_t i = 1; i < string_table::kRows.size(); ++i)
    EXPECT_LT(string_table::kRows[i - 1].id, string_table::kRows[i].id);
}

TEST_F(StringTableTest, KeepsTheTextsToTheLetter) {
  EXPECT_EQ(englishText(StringId::kMustBeDigit), u"Value must be an digit.");
  EXPECT_EQ(englishText(StringId::kToolAlreadyRuns),
            u"\nExecution canceled. Tool \"%s\" is already running in document \"%s\"");
  EXPECT_EQ(englishText(StringId::kPreviewSizes), u"Small|Normal|Large");
  EXPECT_EQ(englishText(StringId::kNoCatalogInFolder),
            u"Cannot find catalog in the specified folder.\n");
  EXPECT_EQ(englishText(StringId::kFolderHasNoCatalog),
            u"Cannot find catalog in the specified folder.");
}

TEST_F(StringTableTest, HasEveryNumberWithItsText) {
  QByteArray lines;
  for (const string_table::Row& row : string_table::kRows) {
    OdString shown = QStringView(row.text).toString();
    shown.replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
    lines += QByteArray::number(static_cast<int>(row.id)) + " \"" + shown.toUtf8() + "\"\n";
  }
  EXPECT_EQ(lines.toStdString(), testhost::dataFile(u"strings.txt"_s).toStdString());
}

TEST_F(StringTableTest, TwoNumbersAndAllUnknownOnesHaveNoText) {
  EXPECT_TRUE(stringText(StringId::kHelpTip).isEmpty());
  EXPECT_TRUE(stringText(StringId::kConfirmRemoveCatalog).isEmpty());
  EXPECT_TRUE(stringText(static_cast<StringId>(999)).isEmpty());
}

TEST_F(StringTableTest, IsTranslatedByItsEnglishText) {
  testhost::host().translations[u"Change icon size"_s] = u"Andere Größe"_s;
  EXPECT_EQ(stringText(StringId::kIconSizeTip), u"Andere Größe"_s);
}

TEST_F(StringTableTest, ArgumentsAreTakenInOrderAndNotLookedAtAgain) {
  EXPECT_EQ(formatText(u"%s in %s!"_s, u"%s"_s, u"b"_s), u"%s in b!"_s);
  EXPECT_EQ(formatText(u"%s and %s"_s, u"a"_s), u"a and %s"_s);
  EXPECT_EQ(formatText(u"none"_s, u"a"_s), u"none"_s);
}

} // namespace
