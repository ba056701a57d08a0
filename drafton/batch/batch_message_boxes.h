// Message boxes where nobody sees them.
#pragma once

#include "drafton/engine/console.h"
#include "host/message_box.h"

namespace drafton {

/// Shows a message box as a line, warnings and errors called so. Nobody is there to answer: the
/// default button is taken.
class BatchMessageBoxes : public CKVUnknownImpl<IHostMessageBoxes> {
 public:
  /// The console is not owned.
  explicit BatchMessageBoxes(Console& console)
    : m_console(console) {}
  messagebox::Answer show(const OdString& text, const OdString& caption, unsigned style) override;

 private:
  Console& m_console;
};

} // namespace drafton
