// The command line: what was said, what is asked, and where one types.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QWidget>

#include <functional>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace drafton {

class CommandOffers;

/// Types into the desktop what the user writes. A blank ends a word as Enter does, unless the
/// prompt takes texts with blanks; Enter or a blank on the empty line repeats the last command; Up
/// and Down bring back what was typed before; Esc cancels. Keywords of the prompt can be clicked.
class CommandLine : public QWidget {
  Q_OBJECT

 public:
  explicit CommandLine(Desktop& desktop, QWidget* parent = nullptr);

  /// Takes a key that was pressed elsewhere; false if it is none for the command line.
  bool takeKey(QKeyEvent* event);
  QLineEdit& edit() { return *m_edit; }

  /// Takes a word that is typed while no command runs, before it is one; false if it is not taken.
  using WordTaker = std::function<bool(const OdString& word)>;
  void setWordTaker(WordTaker taker) { m_wordTaker = std::move(taker); }

 Q_SIGNALS:
  /// Esc was pressed on the empty line while no command ran.
  void gaveUp();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool handleKey(QKeyEvent* event);
  void submit();
  void typeKeyword(const OdString& word);
  void recall(int step);
  void showHistory();
  void showPrompt();
  bool blankBelongsToText() const;

  Desktop& m_desktop;
  QPlainTextEdit* m_history;
  QLabel* m_prompt;
  QLineEdit* m_edit;
  CommandOffers* m_offers;
  WordTaker m_wordTaker;
  QStringList m_typed;      ///< the latest last
  qsizetype m_recalled = 0; ///< in m_typed; its size for the new line
};

} // namespace drafton
