#include "images/item_image.h"

#include "images/image_list.h"
#include "module/catalog_item.h"
#include "module/properties.h"

namespace tc {

bool setImage(OdTcCatalogItem& item, const OdString& path) {
  OdTcImageListPtr images(item.images());
  const bool hadImages = images;
  if (!hadImages) {
    images = OdTcImageList::createObject();
    // In its place, so that the pictures get names that are free there.
    images->setOwner(item.properties());
  }
  if (!images->setFromFile(path)) return false;
  if (hadImages)
    item.setModified();
  else
    item.setImages(images);
  return true;
}

} // namespace tc
