#include "module/entry/tool_palettes_command.h"

#include "ui/palette_set.h"

namespace tc {

int TcCmd::Run() {
  ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  const bool show = !window || !isPaletteSetShown();
  if (!window)
    ITcUiPaletteSet::setInstance(makePaletteSet());
  else if (show)
    window->show(1, 0, 1);
  else
    window->close();
  setPaletteSetShown(show);
  return 0;
}

int TcCmd::state() {
  constexpr int kCanRun = 1, kChecked = 2;
  const ITcUiPaletteSet* const window = ITcUiPaletteSet::instance();
  return window && window->isVisible() ? kCanRun | kChecked : kCanRun;
}

void TcCmd::setContext(IRunContext* context) {
  // The new reference comes first: both may be held by the same owner.
  if (context != m_context.get()) m_context = KVPtr<IRunContext>(context);
}

} // namespace tc
