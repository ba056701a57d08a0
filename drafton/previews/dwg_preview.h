// The preview that a DWG file keeps of itself.
#pragma once

#include <QByteArray>

#include <optional>

class QIODevice;

namespace drafton {

/// The bytes of the preview in a DWG file: a device-independent bitmap without a file header, or a
/// PNG; empty where there is none, and nothing for any other file. Nothing of the drawing is read:
/// where the preview is stands in the file's header.
std::optional<QByteArray> dwgPreview(QIODevice& file);

} // namespace drafton
