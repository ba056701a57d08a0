#include "ui/window/toolbar.h"

#include "module/string_table.h"
#include "ui/window/glyphs.h"
#include "ui/window/window_commands.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace tc {
namespace {

struct Button {
  int command;
  TcUiGlyph glyph;
  StringId tip;
  /// What a screen reader says; the last button has no tip to say.
  const char16_t* name;
};

constexpr Button kButtons[] = {
    {kCommandToggleView, TcUiGlyph::kSwitchView, StringId::kActiveViewTip, u"Change active view"},
    {kCommandIconSize, TcUiGlyph::kIconSize, StringId::kIconSizeTip, u"Change icon size"},
    {kCommandViewStyle, TcUiGlyph::kViewStyle, StringId::kViewStyleTip, u"Change view style"},
    {kCommandHelp, TcUiGlyph::kHelp, StringId::kHelpTip, u"Help"},
};

constexpr int kButtonSize = 20, kIconSize = 16, kArrowWidth = 12;
/// The longest tip, as long as the windows of old could show.
constexpr int kLongestTip = 64;

} // namespace

TcUiToolbar::TcUiToolbar(Send send) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 2);
  layout->setSpacing(1);
  for (std::size_t i = 0; i < std::size(kButtons); ++i) {
    const int command = kButtons[i].command;
    auto* const button = new QToolButton;
    button->setAutoRaise(true);
    button->setIconSize(QSize(kIconSize, kIconSize));
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(tipOf(static_cast<int>(i) + 1));
    button->setAccessibleName(host::translate(OdString::fromUtf16(kButtons[i].name)));
    connect(button, &QToolButton::clicked, this, [send, command] { send(command); });
    layout->addWidget(button);
    m_buttons.push_back(button);
  }
  layout->addStretch();
  setFixedHeight(kHeight);
  takeIcons();
}

void TcUiToolbar::takeIcons() {
  for (std::size_t i = 0; i < m_buttons.size(); ++i)
    m_buttons[i]->setIcon(glyphIcon(kButtons[i].glyph, palette()));
}

void TcUiToolbar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) takeIcons();
}

void TcUiToolbar::setMenu(int command, QMenu* menu) {
  for (std::size_t i = 0; i < m_buttons.size(); ++i) {
    if (kButtons[i].command != command) continue;
    m_buttons[i]->disconnect(this);
    m_buttons[i]->setMenu(menu);
    m_buttons[i]->setPopupMode(QToolButton::InstantPopup);
    m_buttons[i]->setFixedWidth(kButtonSize + kArrowWidth);
  }
}

void TcUiToolbar::setButtonEnabled(int index, bool enabled) { button(index)->setEnabled(enabled); }

OdString TcUiToolbar::tipOf(int button) {
  if (button < 1 || button > static_cast<int>(std::size(kButtons))) return {};
  return stringText(kButtons[button - 1].tip).left(kLongestTip);
}

} // namespace tc
