#include "module/message_table.h"

#include "support/message_box_log.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

const QStringList kTexts = {u"Value must be an digit."_s,
                            u"Error while reading tool palette file."_s,
                            u"The drawing has no block definitions."_s,
                            u"Error reading file."_s,
                            u"Cannot find catalog in the specified folder.\n"_s,
                            u"Before you create the tool you need to save the drawing.\n"_s};

struct MessageTable : testing::Test {
  MessageTable() { testhost::host().reset(); }
  ~MessageTable() override { testhost::host().reset(); }
};

TEST_F(MessageTable, HasTheTextOfEachCode) {
  for (int code = 0; code < kTexts.size(); ++code)
    EXPECT_EQ(tc::showMessage(code, false), kTexts[code]);
  EXPECT_TRUE(testhost::host().messages.boxes.empty());
}

TEST_F(MessageTable, ShowsEachTextInAWarningIfThatIsWanted) {
  const auto log = kvMake<testhost::MessageBoxLog>();
  testhost::host().offer<IHostMessageBoxes>(log.get());
  testhost::host().translations[u"Error reading file."_s] = u"Fehler"_s;
  for (int code = 0; code < kTexts.size(); ++code) {
    log->boxes.clear();
    const OdString text = code == 3 ? u"Fehler"_s : kTexts[code];
    EXPECT_EQ(tc::showMessage(code, true), text);
    ASSERT_EQ(log->boxes.size(), 1u);
    EXPECT_EQ(log->boxes[0].text, text);
    EXPECT_EQ(log->boxes[0].caption, u"Drafton"_s);
    EXPECT_EQ(log->boxes[0].style, 48u);
  }
}

TEST_F(MessageTable, AnUnknownCodeGivesAnEmptyTextAndNoBox) {
  for (const int code : {-1, 6, 1000}) EXPECT_TRUE(tc::showMessage(code, true).isEmpty());
  EXPECT_TRUE(testhost::host().messages.boxes.empty());
}

} // namespace
