// Message boxes of modules over the main window.
#pragma once

#include "host/message_box.h"

#include <QPointer>
#include <QWidget>

namespace drafton {

/// Lives as long as somebody holds it; behind the window's end its boxes stand alone.
class MessageBoxes : public CKVUnknownImpl<IHostMessageBoxes> {
 public:
  explicit MessageBoxes(QWidget* window)
    : m_window(window) {}
  messagebox::Answer show(const OdString& text, const OdString& caption, unsigned style) override;

 private:
  QPointer<QWidget> m_window;
};

} // namespace drafton
