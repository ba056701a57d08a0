// The questions that the window asks its user.
#pragma once

#include "frame/string.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace drafton {

/// Dialogs over the main window. Tests answer in their place.
class UserDialogs {
 public:
  enum class Save { kSave, kDiscard, kCancel };
  enum class Lost { kOpen, kDelete, kLater };

  virtual ~UserDialogs() = default;
  void setWindow(QWidget* window) { m_window = window; }
  QWidget* window() const { return m_window; }

  virtual void tell(const OdString& text);
  virtual void warn(const OdString& text);
  /// True for the affirmative button, which shows `yes`.
  virtual bool confirm(const OdString& text, const OdString& yes);
  virtual Save askSave(const OdString& documentName);
  /// What becomes of the copies of drawings that a crash has left. Esc deletes nothing.
  virtual Lost askLost(const QStringList& names);
  /// Paths are the platform's; empty if the user gave up. `kinds` is a filter of Qt.
  virtual QStringList chooseToOpen(const OdString& title, const OdString& folder,
                                   const OdString& kinds);
  virtual OdString chooseToSave(const OdString& title, const OdString& suggestion,
                                const OdString& kinds);

 private:
  QPointer<QWidget> m_window;
};

} // namespace drafton
