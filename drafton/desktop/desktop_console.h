// The command line's text as the window keeps it.
#pragma once

#include "drafton/engine/console.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace drafton {

/// Gathers what commands show, so that the engine can speak before there is a window. A prompt
/// stands apart from the history until it is answered.
class DesktopConsole : public QObject, public Console {
  Q_OBJECT

 public:
  /// Over which window message boxes stand; null for none.
  void setWindow(QWidget* window) { m_window = window; }

  /// The lines that were shown, the latest last; older ones are forgotten.
  const QStringList& history() const { return m_history; }
  /// Takes a prompt that nobody answers any more into the history.
  void dropPrompt();

  void print(const OdString& text) override;
  void prompt(const OdString& text) override;
  void echo(const OdString& text) override;
  void messageBox(const OdString& text, const OdString& caption) override;
  bool messageBoxWithCheckBox(const OdString& text, const OdString& caption) override;

 Q_SIGNALS:
  /// A line was added to the history, or the last one was lengthened.
  void historyChanged();
  void promptChanged();

 private:
  void addLine(const OdString& line);

  QPointer<QWidget> m_window;
  QStringList m_history;
  OdString m_prompt;
};

} // namespace drafton
