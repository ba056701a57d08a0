#include "drafton/desktop/user_dialogs.h"

#include "drafton/engine/translator.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace drafton {
namespace {

const OdString kProgram = QStringLiteral("Drafton");

} // namespace

void UserDialogs::tell(const OdString& text) { QMessageBox::information(m_window, kProgram, text); }

void UserDialogs::warn(const OdString& text) { QMessageBox::warning(m_window, kProgram, text); }

bool UserDialogs::confirm(const OdString& text, const OdString& yes) {
  QMessageBox box(QMessageBox::Question, kProgram, text, QMessageBox::Cancel, m_window);
  const QPushButton* const button = box.addButton(yes, QMessageBox::AcceptRole);
  box.exec();
  return box.clickedButton() == button;
}

UserDialogs::Save UserDialogs::askSave(const OdString& documentName) {
  QMessageBox box(QMessageBox::Question, kProgram,
                  translated(u"Save the changes to %1?").arg(documentName), QMessageBox::NoButton,
                  m_window);
  const QPushButton* const save = box.addButton(translated(u"&Save"), QMessageBox::AcceptRole);
  const QPushButton* const discard =
      box.addButton(translated(u"&Do Not Save"), QMessageBox::DestructiveRole);
  QPushButton* const cancel = box.addButton(translated(u"Cancel"), QMessageBox::RejectRole);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == save) return Save::kSave;
  return box.clickedButton() == discard ? Save::kDiscard : Save::kCancel;
}

QStringList UserDialogs::chooseToOpen(const OdString& title, const OdString& folder,
                                      const OdString& kinds) {
  return QFileDialog::getOpenFileNames(m_window, title, folder, kinds);
}

OdString UserDialogs::chooseToSave(const OdString& title, const OdString& suggestion,
                                   const OdString& kinds) {
  return QFileDialog::getSaveFileName(m_window, title, suggestion, kinds);
}

} // namespace drafton
