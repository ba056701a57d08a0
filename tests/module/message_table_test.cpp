#include "module/message_table.h"

#include "support/test_host.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

struct MessageTable : testing::Test {
  MessageTable() { testhost::host().reset(); }
  ~MessageTable() override { testhost::host().reset(); }
};

TEST_F(MessageTable, HasTheTextOfEachCode) {
  const QStringList texts = {u"Value must be an digit."_s,
                             u"Error while reading tool palette file."_s,
                             u"The drawing has no block definitions."_s,
                             u"Error reading file."_s,
                             u"Cannot find catalog in the specified folder.\n"_s,
                             u"Before you create the tool you need to save the drawing.\n"_s};
  for (int code = 0; code < texts.size(); ++code)
    EXPECT_EQ(tc::showMessage(code, false), texts[code]);
  EXPECT_TRUE(testhost::host().messages.boxes.empty());
}

TEST_F(MessageTable, ShowsTheTextInABoxIfThatIsWanted) {
  testhost::host().translations[u"Error reading file."_s] = u"Fehler"_s;
  EXPECT_EQ(tc::showMessage(3, true), u"Fehler"_s);
  ASSERT_EQ(testhost::host().messages.boxes.size(), 1u);
  EXPECT_EQ(testhost::host().messages.boxes[0].text, u"Fehler"_s);
  EXPECT_EQ(testhost::host().messages.boxes[0].caption, u"Drafton"_s);
}

TEST_F(MessageTable, AnUnknownCodeGivesAnEmptyTextAndNoBox) {
  for (const int code : {-1, 6, 1000}) EXPECT_TRUE(tc::showMessage(code, true).isEmpty());
  EXPECT_TRUE(testhost::host().messages.boxes.empty());
}

} // namespace
