// Pictures in files.
#pragma once

#include "frame/string.h"

#include <QImage>

#include <cstdint>

namespace tc {

/// Sizes and names of the size kinds.
int pixelsOfKind(std::int32_t kind);
/// The size kind of a width in pixels; 0 if no kind has it.
std::int32_t kindOfPixels(std::uint32_t pixels);
/// What a picture's name ends in: "16", "32" or "64".
OdString suffixOfKind(std::int32_t kind);

/// The code of PNG among the picture formats.
inline constexpr std::int32_t kPngFormat = 6;
/// The extension of a format's code; that of PNG for any other code.
OdString formatExtension(std::int32_t format);

/// The picture of a file; a null image if it cannot be read. The path is a stored path.
QImage loadPicture(const OdString& path);
/// A picture with no side longer than a few times that of the largest size kind; a smaller one as
/// it is. Scaling that to the size kinds costs next to nothing.
QImage reducedPicture(const QImage& picture);
/// Writes a picture in the format of an extension; false if that fails.
bool savePicture(const QImage& picture, const OdString& path, const OdString& extension);

/// `\Images\<title><suffix>.png`
OdString titledPictureName(const OdString& title, std::int32_t kind);
/// `\Images\<label>_<fresh id>.png` with the label in the user's language.
OdString uniquePictureName(const OdString& label);

} // namespace tc
