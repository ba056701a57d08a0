// What a tool holds, value by value.
#pragma once

#include "catalog/tool.h"

#include <QMap>

namespace tpal {

/// The values that a tool would write into its file, by their places in there, such as
/// "Data/Block/Scale" or "Properties/ItemName". Its identity and its times are left out, and of its
/// pictures there is but where they lie. A source is the file that it leads to, counted from
/// `home`, the folder of the catalog, if it is below: copies of a catalog are alike.
QMap<OdString, OdString> fieldsOf(tc::OdTcTool& tool, const OdString& home);

} // namespace tpal
