// What an item holds, value by value.
#pragma once

#include "module/persist.h"

#include <QMap>

namespace tpal {

/// The values that an item would write into its file, by their places in there, such as
/// "Data/Block/Scale" or "Properties/ItemName". Its identity and its times are left out, and of its
/// pictures there is but where they lie. Sources below `home`, the folder of the catalog, count
/// from there, so that copies of a catalog are alike.
QMap<OdString, OdString> fieldsOf(tc::OdTcPersist& item, const OdString& home);

} // namespace tpal
