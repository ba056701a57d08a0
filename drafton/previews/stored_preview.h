// The pictures that drawing files carry.
#pragma once

#include "frame/string.h"

#include <QImage>

namespace drafton {

/// The preview picture in a DXF file, text or binary, or in a DWG file; null if there is none or it
/// cannot be read. Only that part of the file is read. `path` is a stored path.
QImage readStoredPreview(const OdString& path);

/// The picture in the bytes of a preview: a device-independent bitmap without a file header, or a
/// PNG. Null if it is neither.
QImage pictureOfPreview(const QByteArray& bytes);

} // namespace drafton
