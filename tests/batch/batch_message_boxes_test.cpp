#include "drafton/batch/batch_message_boxes.h"

#include "drafton/batch/batch_console.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace drafton;

namespace {

struct Case {
  unsigned style;
  const char* shown;
  messagebox::Answer answer;
};

TEST(BatchMessageBoxes, AreLinesAndAnsweredByTheirDefaultButton) {
  const Case cases[] = {
      {0, "Title: text\n", messagebox::kAnswerOk},
      {messagebox::kWarning, "Title (warning): text\n", messagebox::kAnswerOk},
      {messagebox::kError, "Title (error): text\n", messagebox::kAnswerOk},
      {messagebox::kInformation, "Title: text\n", messagebox::kAnswerOk},
      {messagebox::kQuestion | messagebox::kYesNo | messagebox::kSecondIsDefault, "Title: text\n",
       messagebox::kAnswerNo},
  };
  for (const Case& c : cases) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::tmpfile(), &std::fclose);
    ASSERT_TRUE(out);
    BatchConsole console(out.get());
    const auto boxes = kvMake<BatchMessageBoxes>(console);
    EXPECT_EQ(boxes->show(QStringLiteral("text\n"), QStringLiteral("Title"), c.style), c.answer);
    console.flush();
    std::rewind(out.get());
    char shown[200] = {};
    const std::size_t length = std::fread(shown, 1, sizeof shown - 1, out.get());
    EXPECT_EQ(std::string(shown, length), c.shown);
  }
}

} // namespace
