#include "drafton/batch/batch_message_boxes.h"

#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// What the picture beside the text would say.
OdString wordOf(unsigned style) {
  switch (messagebox::pictureOf(style)) {
  case messagebox::kError:
    return translated(u" (error)");
  case messagebox::kWarning:
    return translated(u" (warning)");
  default:
    return {};
  }
}

} // namespace

messagebox::Answer BatchMessageBoxes::show(const OdString& text, const OdString& caption,
                                           unsigned style) {
  m_console.messageBox(text.trimmed(), caption + wordOf(style));
  return messagebox::defaultOf(style);
}

} // namespace drafton
