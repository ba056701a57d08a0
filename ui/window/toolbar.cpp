#include "ui/window/toolbar.h"

#include "module/string_table.h"
#include "ui/window/glyphs.h"
#include "ui/window/window_commands.h"

#include <QIcon>
#include <QWidget>

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

constexpr QSize kButtonSize(20, 20), kPictureSize(16, 16);
/// The longest tip, as long as the windows of old could show.
constexpr int kLongestTip = 64;

} // namespace

bool TcUiToolbar::create(IHostWindowControls& controls, QWidget& parent) {
  m_bar = controls.createToolbar(parent, *this);
  if (!m_bar) return false;
  m_bar->setSizes(kButtonSize, kPictureSize);
  int number = 0;
  for (const Button& row : kButtons)
    m_bar->addButton(row.command, glyphIcon(row.glyph, parent.palette()), tipOf(++number),
                     host::translate(OdString::fromUtf16(row.name)));
  return true;
}

void TcUiToolbar::setColors(const QPalette& palette) {
  for (std::size_t i = 0; i < std::size(kButtons); ++i)
    m_bar->setIcon(static_cast<int>(i), glyphIcon(kButtons[i].glyph, palette));
}

void TcUiToolbar::setMenu(int command, QMenu* menu) {
  for (std::size_t i = 0; i < std::size(kButtons); ++i)
    if (kButtons[i].command == command) m_bar->setMenu(static_cast<int>(i), menu);
}

OdString TcUiToolbar::tipOf(int button) {
  if (button < 1 || button > static_cast<int>(std::size(kButtons))) return {};
  return stringText(kButtons[button - 1].tip).left(kLongestTip);
}

} // namespace tc
