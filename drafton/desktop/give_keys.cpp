#include "drafton/desktop/give_keys.h"

#include <QApplication>
#include <QWidget>

namespace drafton {

void giveKeys(QWidget& widget) {
  QWidget* const former = QApplication::focusWidget();
  if (former && former->window() != widget.window()) former->clearFocus();
  widget.setFocus(Qt::OtherFocusReason);
  if (QApplication::activeWindow() != widget.window()) widget.activateWindow();
}

} // namespace drafton
