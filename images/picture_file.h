// Pictures in files.
#pragma once

#include "frame/string.h"

#include <QImage>

#include <cstdint>

namespace tc {

/// The width in pixels of a size kind.
int pixelsOfKind(std::int32_t kind);
/// The size kind of a width in pixels; 0 if no kind has it.
std::int32_t kindOfPixels(std::uint32_t pixels);
/// What a picture's name ends in: "16", "32" or "64".
OdString suffixOfKind(std::int32_t kind);

/// The code of PNG among the picture formats.
inline constexpr std::int32_t kPngFormat = 6;
/// The extension of a format's code; that of PNG for any other code.
OdString formatExtension(std::int32_t format);

/// The picture of a file, the first one of several, with its pixels as they lie in the file and as
/// a drawing shows it; a null image if it cannot be read, is cut off or is too large to be decoded.
/// What the file is, its contents tell, not its name. The path is a stored path.
QImage loadPicture(const OdString& path);
/// The same with no side longer than a few times that of the largest size kind; a smaller one as it
/// is. The proportions go where it is reduced. A photograph is not even decoded at its full size.
QImage loadReducedPicture(const OdString& path);
/// Why one of these gave nothing, in words for the user; looks at the file again.
OdString whyNoPicture(const OdString& path);

/// Writes a picture in the format of an extension. False if that fails: `problem` then names the
/// file and the reason.
bool savePicture(const QImage& picture, const OdString& path, const OdString& extension,
                 OdString* problem = nullptr);
/// The two halves of that. The bytes are empty if the picture cannot be written in the format.
QByteArray pictureBytes(const QImage& picture, const OdString& extension);
bool savePictureBytes(const QByteArray& bytes, const OdString& path, OdString* problem = nullptr);
/// Makes the folder that a picture is to be written into. False, with the folder and the reason in
/// `problem`, if it cannot be made.
bool makePictureFolder(const OdString& path, OdString* problem = nullptr);

/// A title without what file names may not have, and not too long for one; it may be empty then.
OdString pictureTitle(const OdString& title);
/// `\Images\<title><suffix>.png`
OdString titledPictureName(const OdString& title, std::int32_t kind);
/// `\Images\<label>_<fresh id>.png` with the label in the user's language.
OdString uniquePictureName(const OdString& label);

} // namespace tc
