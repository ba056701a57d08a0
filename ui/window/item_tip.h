// What is told of an item when the pointer rests on it.
#pragma once

#include "ui/window/item_pictures.h"

namespace tc {

/// Name, description and large picture as rich text. The item's own words are shown as they stand,
/// whatever they look like.
OdString itemTip(const OdTcCatalogItem& item, TcUiItemPictures& pictures);

} // namespace tc
