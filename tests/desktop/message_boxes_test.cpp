#include "desktop_fixture.h"
#include "drafton/desktop/message_boxes.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace drafton;

namespace {

struct Case {
  unsigned style;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton byDefault;
};
const Case kCases[] = {
    {0, QMessageBox::NoIcon, QMessageBox::Ok, QMessageBox::Ok},
    {48, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok},
    {messagebox::kError, QMessageBox::Critical, QMessageBox::Ok, QMessageBox::Ok},
    {messagebox::kInformation, QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok},
    {messagebox::kQuestion | messagebox::kOkCancel | messagebox::kSecondIsDefault,
     QMessageBox::Question, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel},
    {messagebox::kYesNoCancel, QMessageBox::NoIcon,
     QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes},
    {messagebox::kYesNo | messagebox::kSecondIsDefault, QMessageBox::NoIcon,
     QMessageBox::Yes | QMessageBox::No, QMessageBox::No},
};

class MessageBoxesTest : public DesktopFixture {
 protected:
  /// Looks at the box that comes up next, and presses Enter.
  void expect(const Case& c) {
    QTimer::singleShot(0, &window(), [this, c] {
      const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      ++seen;
      EXPECT_EQ(box->parentWidget(), &window());
      EXPECT_EQ(box->icon(), c.icon);
      EXPECT_EQ(box->standardButtons(), c.buttons);
      EXPECT_EQ(box->defaultButton(), box->button(c.byDefault));
      EXPECT_EQ(box->text(), QStringLiteral("<b>text</b>"));
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->windowTitle(), QStringLiteral("Title"));
      box->defaultButton()->click();
    });
  }

  /// As a module finds them.
  KVPtr<IHostMessageBoxes> boxes() {
    const auto found = kvQuery<IHostMessageBoxes>(&desktop().engine().services());
    EXPECT_TRUE(found);
    return found;
  }

  const OdString text = QStringLiteral("<b>text</b>");
  const OdString title = QStringLiteral("Title");
  int seen = 0;
};

TEST_F(MessageBoxesTest, LookAsTheirStyleSays) {
  for (const Case& c : kCases) {
    expect(c);
    EXPECT_EQ(boxes()->show(text, title, c.style), messagebox::defaultOf(c.style));
  }
  EXPECT_EQ(seen, static_cast<int>(std::size(kCases)));
}

TEST_F(MessageBoxesTest, AnswerWithTheButtonThatWasPressed) {
  QTimer::singleShot(0, &window(), [] {
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    box->button(QMessageBox::No)->click();
  });
  EXPECT_EQ(boxes()->show(text, title, messagebox::kYesNoCancel), messagebox::kAnswerNo);
}

} // namespace
