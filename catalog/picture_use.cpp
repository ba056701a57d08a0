#include "catalog/picture_use.h"

#include "catalog/catalog.h"
#include "catalog/database.h"
#include "catalog/tool.h"
#include "catalog/tool_list.h"
#include "images/image_home.h"
#include "images/image_list.h"
#include "module/properties.h"

#include <algorithm>

namespace tc {
namespace {

OdString nameIn(const OdString& path) {
  return path.mid(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1).toCaseFolded();
}

/// Goes through the items that may show pictures.
class PictureUse {
 public:
  explicit PictureUse(const QSet<OdString>& keys) {
    for (const OdString& key : keys) m_keysByName.insert(nameIn(key), key);
  }
  QSet<OdString> shown;

  void look(const OdTcDatabase& palette) {
    if (palette.isUnread()) shown = QSet<OdString>(m_keysByName.begin(), m_keysByName.end());
    look(palette, palette.getPath());
    const OdTcToolList& tools = *palette.tools();
    for (int i = 0; i < tools.count(); ++i) look(*tools.at(i), palette.getPath());
  }
  void look(const OdTcCatalog& catalog) {
    look(catalog, catalog.path());
    lookAtGroups(catalog.groupsEnum(), catalog.path());
    const OdTcEnumPtr<OdTcToolPalette> palettes = catalog.palettesEnum();
    while (const OdTcToolPalette* const palette = palettes->next()) look(*palette->getDatabase());
  }

 private:
  void lookAtGroups(const OdTcEnumPtr<OdTcCatalogItem>& items, const OdString& home) {
    while (OdTcCatalogItem* const item = items ? items->next() : nullptr) {
      look(*item, home);
      if (const auto* const group = odrxCast<OdTcGroup>(item))
        lookAtGroups(group->children(), home);
    }
  }
  void look(const OdTcCatalogItem& item, const OdString& home) {
    const OdTcImageList* const images = item.images();
    if (!images) return;
    const OdTcEnumPtr<OdTcImage> all = images->enumImages();
    while (const OdTcImage* const image = all->next()) look(*image, home);
  }
  /// The name alone rules most pictures out; the disk is asked for the others only.
  void look(const OdTcImage& image, const OdString& home) {
    const OdString src = image.src();
    const auto [first, last] = m_keysByName.equal_range(nameIn(src));
    for (auto at = first; at != last; ++at)
      if (*at == pictureFileKey(imagePathBeside(home, src)) ||
          *at == pictureFileKey(image.fullPath()))
        shown << *at;
  }

  QMultiHash<OdString, OdString> m_keysByName;
};

} // namespace

QSet<OdString> picturesStillShown(const OdTcDatabase* palette, const QSet<OdString>& keys) {
  PictureUse use(keys);
  if (palette) use.look(*palette);
  if (const OdTcCatalog* const catalog = palette ? palette->catalog() : nullptr) use.look(*catalog);
  return std::move(use.shown);
}

} // namespace tc
