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

UserDialogs::Lost UserDialogs::askLost(const QStringList& names) {
  QMessageBox box(QMessageBox::Question, kProgram,
                  translated(u"Drafton did not end as it should. Copies of changed drawings "
                             u"were kept: %1. Open them?")
                      .arg(names.join(QStringLiteral(", "))),
                  QMessageBox::NoButton, m_window);
  const QPushButton* const open = box.addButton(translated(u"&Open"), QMessageBox::AcceptRole);
  const QPushButton* const remove =
      box.addButton(translated(u"&Delete the Copies"), QMessageBox::DestructiveRole);
  QPushButton* const later = box.addButton(translated(u"Ask &Later"), QMessageBox::RejectRole);
  box.setEscapeButton(later);
  box.exec();
  if (box.clickedButton() == open) return Lost::kOpen;
  return box.clickedButton() == remove ? Lost::kDelete : Lost::kLater;
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
