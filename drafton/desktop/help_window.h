// The manual and what Drafton is.
#pragma once

#include "host/window_services.h"

#include <QPointer>
#include <QWidget>

namespace drafton {

/// The manual's first page.
inline constexpr char16_t kManualStart[] = u"desktop.md";

/// Shows a page of the manual in a window of its own; false if there is no such page. Pages lead to
/// each other by links.
bool showManual(QWidget& parent, const OdString& page);
inline bool showManual(QWidget& parent, const char16_t* page) {
  return showManual(parent, OdString::fromUtf16(page));
}

void showAbout(QWidget& parent);

/// Opens the manual for modules.
class HelpService : public CKVUnknownImpl<IHelpService> {
 public:
  explicit HelpService(QWidget& window)
    : m_window(&window) {}
  bool showTopic(const OdString& topic) override;

 private:
  QPointer<QWidget> m_window;
};

} // namespace drafton
