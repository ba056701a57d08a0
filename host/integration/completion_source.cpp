#include "host/integration/completion_source.h"

#include "catalog/catalog.h"
#include "catalog/palette_manager.h"
#include "catalog/repeated_tool.h"
#include "catalog/tool_palette.h"
#include "host/host_locator.h"
#include "images/image_list.h"

#include <QSet>

#include <array>

namespace tc {
namespace {

constexpr char16_t kOption[] = u"CommandLine/completetools";

/// Image sizes from the smallest to the largest, with their pixels.
constexpr std::array<std::pair<OdTcSizeKind, int>, 4> kSizes = {{{OdTcSizeKind::kSmall, 16},
                                                                 {OdTcSizeKind::kMedium, 24},
                                                                 {OdTcSizeKind::kNormal, 32},
                                                                 {OdTcSizeKind::kLarge, 64}}};

/// What an offer holds of its tool, in one piece: there may be a hundred thousand of them.
struct HeldTool {
  explicit HeldTool(OdTcTool* tool)
    : image(tool)
    , action([this] { run(); }) {}
  HeldTool(const HeldTool&) = delete;
  HeldTool& operator=(const HeldTool&) = delete;

  void run() const {
    IHostDocument* const document = host::curDocument();
    if (!document) return;
    // The host may let go of the offer meanwhile.
    const OdTcToolPtr running(&image.tool());
    running->execute(document);
    tellUserRan(*running);
  }

  ToolImage image;
  HostEdCompletion::CallFunction action;
};

/// One walk over everything that is offered.
class ToolWalk {
 public:
  explicit ToolWalk(const HostEdCompletion::Callback& callback)
    : m_callback(callback) {}

  void manager(const OdTcPaletteManager& all) {
    const OdSmartPtr<OdTcPaletteManager::CatalogEnum> catalogs = all.catalogsEnum();
    OdString path;
    OdTcCatalog* catalog = nullptr;
    while (catalogs->next(path, catalog)) {
      m_loading = catalog->loading();
      items(catalog->groupsEnum());
    }
  }

 private:
  void items(const OdTcEnumPtr<OdTcCatalogItem>& all) {
    while (OdTcCatalogItem* item = all->next()) {
      if (const OdTcGroup* group = odrxCast<OdTcGroup>(item))
        items(group->children());
      else if (const OdTcPaletteSoftRef* reference = odrxCast<OdTcPaletteSoftRef>(item))
        // Nobody who types waits for palettes that are still to be read.
        palette(m_loading->findSoFar(reference->id()));
    }
  }

  void palette(const OdTcToolPalette* palette) {
    if (!palette || m_seen.contains(palette)) return;
    m_seen.insert(palette);
    const OdTcEnumPtr<OdTcTool> tools = palette->enumTools();
    while (OdTcTool* tool = tools->next()) offer(tool);
  }

  void offer(OdTcTool* tool) {
    const auto held = std::make_shared<HeldTool>(tool);
    auto entry = std::make_shared<HostEdCompletion::Entry>();
    entry->text = host::ownText(tool->name());
    entry->displayText = QLatin1String("TOOL:") + entry->text;
    entry->pictogram = {held, &held->image};
    entry->action = {held, &held->action};
    m_callback(std::move(entry));
  }

  const HostEdCompletion::Callback& m_callback;
  const OdTcCatalogLoading* m_loading = nullptr; ///< of the catalog that is walked
  QSet<const OdTcToolPalette*> m_seen;
};

HostEdCompletion::Registry* registry() {
  IHostServices* const services = host::services();
  return services ? services->completionRegistry() : nullptr;
}

void setProvider(HostEdCompletion::Provider provider) {
  if (HostEdCompletion::Registry* const sources = registry())
    sources->registerSource(OdString::fromUtf16(kToolsSource), std::move(provider));
}

} // namespace

void registerToolSource() {
  setProvider([](const HostEdCompletion::Callback& callback) {
    if (isToolCompletionOn()) offerTools(callback);
  });
}

void removeToolSource() { setProvider(nullptr); }

bool isToolCompletionOn() {
  OdString path = OdString::fromUtf16(kOption);
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  QStringList parts = path.split(QLatin1Char('/'));
  const OdString key = parts.takeLast();
  IHostApplication* const application = host::application();
  KVPtr<IProfile> section = application ? application->profile() : nullptr;
  for (const OdString& part : parts)
    if (section) section = section->openSection(part, false);
  OdVariant option = true;
  if (section) section->get(key, option);
  return option.toBool();
}

void offerTools(const HostEdCompletion::Callback& callback) {
  if (const OdTcPaletteManager* const manager = OdTcPaletteManager::instance())
    ToolWalk(callback).manager(*manager);
}

QImage ToolImage::image(int pixels) {
  OdTcImageList* const images = m_tool->images();
  if (!images) return {};
  // The next larger picture looks better than one that is stretched; failing that, the largest.
  OdTcImage* best = nullptr;
  for (const auto& [kind, size] : kSizes) {
    OdTcImage* const image = images->findBySize(static_cast<std::int32_t>(kind));
    if (image) best = image;
    if (image && size >= pixels) break;
  }
  const QImage picture = best ? best->getBitmap() : QImage();
  return picture.isNull() || picture.width() == pixels
             ? picture
             : picture.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace tc
