// The messages that the palette window shares with other windows of the program.
#pragma once

class QWidget;

namespace tc {

/// The number of WM_TC_PALETTE_CLOSED, which tells that the palette window was closed; 0 without a
/// host that has windows.
int closedMessage();
/// The number of WM_TC_CUSTOMIZE, which brings the palette window's owner to the front.
int customizeMessage();

/// Makes both known to the host, as is done once when the module is loaded.
void registerPaletteMessages();
/// Tells one window that the palette window was closed.
void sendPaletteClosed(QWidget& window);

} // namespace tc
