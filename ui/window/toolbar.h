// The strip on top of the palette window.
#pragma once

#include "host/window_controls.h"

#include <functional>

class QMenu;
class QPalette;
class QWidget;

namespace tc {

/// Four buttons on the host's toolbar that send commands and know nothing else.
class TcUiToolbar : private IHostToolbarEvents {
 public:
  using Send = std::function<void(int command)>;

  explicit TcUiToolbar(Send send)
    : m_send(std::move(send)) {}

  /// Makes the strip in the parent; false if the host makes none. The strip must not live longer.
  bool create(IHostWindowControls& controls, QWidget& parent);
  QWidget* widget() const { return m_bar ? m_bar->widget() : nullptr; }
  /// The strip's height, in logical pixels.
  int fixedHeight() const { return m_bar->fixedHeight(); }

  /// Lets a button drop a menu down instead of sending its command; the menu's owner stays.
  void setMenu(int command, QMenu* menu);
  /// Greys the button at an index, 0 to 3; its menu does not open then.
  void setButtonEnabled(int index, bool enabled) { m_bar->setEnabled(index, enabled); }
  /// Draws the pictures in other colours.
  void setColors(const QPalette& palette);

  /// The tip of a button by its number, 1 to 4; empty for any other and for the fourth, whose text
  /// was never given.
  static OdString tipOf(int button);

 private:
  void buttonPressed(int command) override { m_send(command); }

  Send m_send;
  IHostToolbar* m_bar = nullptr; ///< the parent's
};

} // namespace tc
