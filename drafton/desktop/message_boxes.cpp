#include "drafton/desktop/message_boxes.h"

#include <QMessageBox>

namespace drafton {
namespace {

struct PictureRow {
  unsigned picture;
  QMessageBox::Icon icon;
};
constexpr PictureRow kPictures[] = {
    {messagebox::kError, QMessageBox::Critical},
    {messagebox::kQuestion, QMessageBox::Question},
    {messagebox::kWarning, QMessageBox::Warning},
    {messagebox::kInformation, QMessageBox::Information},
};

struct ButtonRow {
  messagebox::Answer answer;
  QMessageBox::StandardButton button;
};
constexpr ButtonRow kButtons[] = {
    {messagebox::kAnswerOk, QMessageBox::Ok},
    {messagebox::kAnswerCancel, QMessageBox::Cancel},
    {messagebox::kAnswerYes, QMessageBox::Yes},
    {messagebox::kAnswerNo, QMessageBox::No},
};

QMessageBox::StandardButton buttonOf(messagebox::Answer answer) {
  for (const ButtonRow& row : kButtons)
    if (row.answer == answer) return row.button;
  return QMessageBox::NoButton;
}

void dress(QMessageBox& box, const OdString& text, const OdString& caption, unsigned style) {
  box.setWindowTitle(caption);
  // Names of files may look like markup.
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  for (const PictureRow& row : kPictures)
    if (row.picture == messagebox::pictureOf(style)) box.setIcon(row.icon);
  QMessageBox::StandardButtons buttons;
  for (const messagebox::Answer answer : messagebox::buttonsOf(style)) buttons |= buttonOf(answer);
  box.setStandardButtons(buttons);
  box.setDefaultButton(buttonOf(messagebox::defaultOf(style)));
}

messagebox::Answer answerOf(int button, unsigned style) {
  for (const ButtonRow& row : kButtons)
    if (row.button == button) return row.answer;
  return messagebox::defaultOf(style);
}

} // namespace

messagebox::Answer MessageBoxes::show(const OdString& text, const OdString& caption,
                                      unsigned style) {
  QMessageBox box(m_window);
  dress(box, text, caption, style);
  return answerOf(box.exec(), style);
}

} // namespace drafton
