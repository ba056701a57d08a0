// What the command line offers to complete typed text with.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QCompleter>

class QLineEdit;
class QWidget;

namespace drafton {

class OfferModel;

/// The names of commands, and what modules offer (tools, say), while no command runs.
class CommandOffers : public QObject {
  Q_OBJECT

 public:
  CommandOffers(Desktop& desktop, QLineEdit& edit);

  /// Shows the list for the text of the line, or hides it.
  void show();
  bool isShown() const;
  /// The list, which has the keyboard while it is shown.
  QWidget* list() const;
  /// Runs the offer that is marked in the list; false if there is none.
  bool takeMarked();
  void hide();

 private:
  bool eventFilter(QObject* object, QEvent* event) override;
  /// Takes all that begins with a letter.
  void gather(QChar first);
  void take(const QModelIndex& index);

  Desktop& m_desktop;
  QLineEdit& m_edit;
  OfferModel* m_model;
  QCompleter* m_completer;
  QChar m_first;      ///< of the words in the model
  OdString m_deadEnd; ///< with which nothing begins
};

} // namespace drafton
