// Tags that files of older versions cannot have.
#pragma once

#include "drawing/enums.h"

#include <QByteArray>

#include <string_view>

namespace oddxf {

/// The lines of one subclass, or of several with their markers, without the tags that are newer
/// than `version`. Lengths of stored graphics get the code that the version has for them.
QByteArray fitting(const QByteArray& lines, std::string_view subclass, OdDb::DwgVersion version);

/// The first version that has a section.
OdDb::DwgVersion sectionSince(std::string_view name);

} // namespace oddxf
