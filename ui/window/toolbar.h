// The strip on top of the palette window.
#pragma once

#include "frame/string.h"

#include <QWidget>

#include <functional>
#include <vector>

class QMenu;
class QToolButton;

namespace tc {

/// Four buttons that send commands and know nothing else.
class TcUiToolbar : public QWidget {
 public:
  /// The strip's height, in logical pixels.
  static constexpr int kHeight = 23;
  using Send = std::function<void(int command)>;

  explicit TcUiToolbar(Send send);

  /// Lets a button drop a menu down instead of sending its command; the menu's owner stays.
  void setMenu(int command, QMenu* menu);
  /// Greys the button at an index, 0 to 3; its menu does not open then.
  void setButtonEnabled(int index, bool enabled);
  QToolButton* button(int index) const { return m_buttons[static_cast<std::size_t>(index)]; }

  /// The tip of a button by its number, 1 to 4; empty for any other and for the fourth, whose text
  /// was never given.
  static OdString tipOf(int button);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void takeIcons();

  std::vector<QToolButton*> m_buttons;
};

} // namespace tc
