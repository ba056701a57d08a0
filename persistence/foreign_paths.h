// Paths that stand in files of other people.
#pragma once

#include "frame/string.h"

#include <optional>

namespace tc {

/// Why a path that is to lead to something inside a folder leads elsewhere, in words for the user;
/// empty if it stays inside. One separator at its beginning is none of its folders.
OdString whyOutside(const OdString& path);
/// The path without its separator at the beginning and without "." and ".."; nothing if it leads
/// outside. Empty for the folder itself.
std::optional<OdString> insidePath(const OdString& path);
/// Why a path of any kind is not even looked for: it names a device, or lies on a network share,
/// which can be slow and tells strangers of the question. Empty if it can be looked for.
OdString whyNotLookedFor(const OdString& path);

} // namespace tc
