#include "host/show_message.h"

#include "support/message_box_log.h"

#include <gtest/gtest.h>

#include <vector>

using namespace messagebox;

namespace {

struct Case {
  unsigned style;
  std::vector<Answer> buttons;
  Answer byDefault;
  unsigned picture;
};

TEST(MessageBox, AStyleSaysButtonsPictureAndDefault) {
  const Case cases[] = {
      {0, {kAnswerOk}, kAnswerOk, 0},
      {48, {kAnswerOk}, kAnswerOk, kWarning},
      {0x10, {kAnswerOk}, kAnswerOk, kError},
      {0x40, {kAnswerOk}, kAnswerOk, kInformation},
      {0x21, {kAnswerOk, kAnswerCancel}, kAnswerOk, kQuestion},
      {0x121, {kAnswerOk, kAnswerCancel}, kAnswerCancel, kQuestion},
      {3, {kAnswerYes, kAnswerNo, kAnswerCancel}, kAnswerYes, 0},
      {0x103, {kAnswerYes, kAnswerNo, kAnswerCancel}, kAnswerNo, 0},
      {0x203, {kAnswerYes, kAnswerNo, kAnswerCancel}, kAnswerCancel, 0},
      {0x134, {kAnswerYes, kAnswerNo}, kAnswerNo, kWarning},
      // A default that is not there is the first one; unknown buttons are a single one.
      {0x204, {kAnswerYes, kAnswerNo}, kAnswerYes, 0},
      {0x3F, {kAnswerOk}, kAnswerOk, kWarning},
  };
  for (const Case& c : cases) {
    const auto buttons = buttonsOf(c.style);
    EXPECT_EQ(std::vector(buttons.begin(), buttons.end()), c.buttons) << c.style;
    EXPECT_EQ(defaultOf(c.style), c.byDefault) << c.style;
    EXPECT_EQ(pictureOf(c.style), c.picture) << c.style;
  }
}

struct ShowMessage : testing::Test {
  ShowMessage() { testhost::host().reset(); }
  ~ShowMessage() override { testhost::host().reset(); }
  const OdString text = QStringLiteral("text"), caption = QStringLiteral("caption");
};

TEST_F(ShowMessage, HandsTheStyleToTheHostAndGivesItsAnswer) {
  const auto log = kvMake<testhost::MessageBoxLog>();
  log->answer = kAnswerNo;
  testhost::host().offer<IHostMessageBoxes>(log.get());
  EXPECT_EQ(host::showMessage(text, caption, kYesNo | kQuestion), kAnswerNo);
  ASSERT_EQ(log->boxes.size(), 1u);
  EXPECT_EQ(log->boxes[0].text, text);
  EXPECT_EQ(log->boxes[0].caption, caption);
  EXPECT_EQ(log->boxes[0].style, kYesNo | kQuestion);
  EXPECT_TRUE(testhost::host().messages.boxes.empty());
}

TEST_F(ShowMessage, AHostWithoutStylesShowsTheTextAndTheDefaultIsTaken) {
  EXPECT_EQ(host::showMessage(text, caption, kOkCancel | kSecondIsDefault), kAnswerCancel);
  ASSERT_EQ(testhost::host().messages.boxes.size(), 1u);
  EXPECT_EQ(testhost::host().messages.boxes[0].text, text);
  EXPECT_EQ(testhost::host().messages.boxes[0].caption, caption);
  testhost::host().switchOff(IHostMessages::kId);
  EXPECT_EQ(host::showMessage(text, caption, kOk), kAnswerOk) << "harmless";
}

} // namespace
