// Changing a text of the drawing where it stands.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QFrame>

class QLabel;
class QPlainTextEdit;

namespace drafton {

/// A small frame over a canvas while a command asks for a text that is to be changed. Enter, or
/// Ctrl+Enter where there are several lines, gives the text as the answer; Esc cancels.
class TextEditor : public QFrame {
  Q_OBJECT

 public:
  TextEditor(Desktop& desktop, QWidget& canvas);

  /// Opens, stays or closes as what is asked wants it. `corner` is where the text begins on the
  /// canvas.
  void follow(const InputRequest* asked, const QPointF& corner);
  bool isOpen() const { return m_isOpen; }
  /// Gives what stands in it as the answer.
  void submit();
  QPlainTextEdit& edit() { return *m_edit; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void open(const InputRequest& asked);
  void close();
  void fit(const QPointF& corner);

  Desktop& m_desktop;
  QPlainTextEdit* m_edit;
  QLabel* m_question;
  QLabel* m_hint;
  bool m_isOpen = false;
  bool m_hasLines = false;
  OdString m_asked;  ///< what it was opened for
  OdString m_former; ///< the text then
};

} // namespace drafton
