// Icons of kinds of files.
#pragma once

#include "frame/string.h"

#include <QImage>

namespace drafton {

/// A sheet with a folded corner and, where there is room for words, the kind of file on it.
/// `extension` has no dot and may be empty.
QImage sheetIcon(const OdString& extension, int pixels);

} // namespace drafton
