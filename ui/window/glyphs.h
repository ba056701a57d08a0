// The window's own small pictures, drawn in the colours of the theme.
#pragma once

#include <QIcon>

namespace tc {

enum class TcUiGlyph {
  kSwitchView,
  kIconSize,
  kViewStyle,
  kHelp,
  kCatalog,
  kGroup,
  kPalette,
  kUnknown,
};

/// The picture in `pixels` by `pixels`, crisp at the given ratio of device to logical pixels. Lines
/// have the colour `ink`, the accents keep theirs.
QPixmap glyphPixmap(TcUiGlyph glyph, int pixels, qreal ratio, const QColor& ink);
/// The same for every size of buttons, greyed where the button is disabled.
QIcon glyphIcon(TcUiGlyph glyph, const QPalette& palette);

} // namespace tc
