#include "ui/palette_set.h"

#include "host/host_locator.h"
#include "ui/windowless_palette_set.h"

namespace tc {

static std::unique_ptr<ITcUiPaletteSet> g_window;
static PaletteSetMaker g_maker = nullptr;
static bool g_isShown = false;

ITcUiPaletteSet* ITcUiPaletteSet::instance() { return g_window.get(); }

void ITcUiPaletteSet::setInstance(std::unique_ptr<ITcUiPaletteSet> window) {
  g_window = std::move(window);
}

std::unique_ptr<ITcUiPaletteSet> makePaletteSet() {
  if (g_maker)
    if (std::unique_ptr<ITcUiPaletteSet> window = g_maker()) return window;
  return std::make_unique<WindowlessPaletteSet>();
}

void setPaletteSetMaker(PaletteSetMaker maker) { g_maker = maker; }

bool isPaletteSetShown() { return g_isShown; }

void clearPaletteSetShown() { g_isShown = false; }

void setPaletteSetShown(bool shown) {
  g_isShown = shown;
  const KVPtr<IProfile> startup = host::profileSection(QStringLiteral("Startup"));
  if (!startup) return;
  const OdString entry = host::ownText(QStringLiteral("ToolPalettes"));
  if (shown)
    startup->set(entry, entry);
  else
    startup->deleteValue(entry);
}

} // namespace tc
