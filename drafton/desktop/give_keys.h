// The keyboard's way between the windows of the program.
#pragma once

class QWidget;

namespace drafton {

/// Gives the keys to a widget, also where another window of the program has them: a pane that
/// floats, or a page that was pulled out. Until the system brings the widget's window forward, that
/// other window keeps no widget that could take keys for itself.
void giveKeys(QWidget& widget);

} // namespace drafton
