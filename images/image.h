// One picture of an item, at one size.
#pragma once

#include "drawing/color.h"
#include "drawing/object_id.h"
#include "module/persist.h"

#include <QImage>

#include <cstdint>
#include <optional>

class QPainter;

namespace tc {

/// Size kinds and their pixels: 0 and 1 are 16, 2 is 24, 3 is 32, 4 is 64; any other counts as 16.
enum class OdTcSizeKind : std::int32_t {
  kNone = 0,
  kSmall = 1,
  kMedium = 2,
  kNormal = 3,
  kLarge = 4
};

/// Knows where a picture comes from, a file beside the palette or a named resource of the program,
/// and keeps it once it is decoded. Element `Image`.
class OdTcImage : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcImage);

 public:
  virtual std::int32_t sizeKind() const = 0;
  /// Also sets the size in pixels.
  virtual void setSizeKind(std::int32_t kind) = 0;
  /// `src` is a library name or a path relative to the palette's folder.
  virtual void setResource(const OdString& src, const OdString& resource) = 0;
  virtual void setSize(std::uint32_t cx, std::uint32_t cy) = 0;
  virtual std::uint32_t cx() const = 0;
  virtual std::uint32_t cy() const = 0;
  virtual OdString src() const = 0;
  virtual OdString resource() const = 0;
  /// Decodes the picture if that has not been done; a null image if there is none.
  virtual QImage getBitmap() = 0;
  virtual void releaseBitmap() = 0;
  /// True if the picture lies in the program's button resources.
  virtual bool isResource() const = 0;

  // Pictures of what a tool acts on, in the pixels of the size kind, to be saved as PNG when the
  // image is next written. Each is false, with nothing changed, if no picture came of it.

  /// Shows a block or an entity and names the picture after the block, a layout's after its
  /// drawing. Needs the host.
  virtual bool makeFromBlock(OdDbObjectId source) = 0;
  /// Shows a gradient by its stored name; an unknown one is taken for LINEAR.
  virtual bool makeFromGradient(const OdString& name, const OdCmColor& first,
                                const OdCmColor& second) = 0;
  /// Shows a hatch pattern of a file, which may be empty, or of the host. The pattern SOLID with a
  /// colour needs no host.
  virtual bool makeFromPattern(const OdString& name, const OdString& file,
                               const std::optional<OdCmColor>& color) = 0;
  /// Shows a picture file, whose proportions are not kept, under its name; a name that the
  /// palette's folder has already is replaced by a fresh one.
  virtual bool setSrcFromFile(const OdString& path) = 0;
  /// Shows the preview that a drawing file keeps, or else the icon of files of its kind.
  virtual bool makeFromDrawing(const OdString& path) = 0;

  /// Saves the picture in a format by its code: 1 bmp, 2 wmf, 3 ico, 4 emf, 5 jpeg, 6 png, 7 gif,
  /// 8 tiff, -1 by the path's extension, any other png. A path without an extension gets the
  /// format's. False if there is no picture or it cannot be saved.
  virtual bool saveTo(const OdString& path, std::int32_t format) = 0;
  /// Takes the picture of a file as it is and remembers the path; false if it cannot be read.
  virtual bool loadFromFile(const OdString& path) = 0;
  /// Draws the picture at its own size and gives it up again.
  virtual void draw(QPainter* painter, int x, int y, int width, int height) = 0;
  /// A new image of another size kind, with the picture scaled to it.
  virtual OdSmartPtr<OdTcImage> cloneAtSize(std::int32_t kind) = 0;
  /// The stored path of the picture's file; empty if it is not known.
  virtual OdString fullPath() const = 0;
  /// As setSrcFromFile(), for a file whose picture is at hand already: several sizes are made of it
  /// decoding it once.
  virtual bool setSrcFromPicture(const QImage& picture, const OdString& path) = 0;
  /// As makeFromPattern(), for lines of the user's own at an angle (radians), crossed or not.
  virtual bool makeFromUserPattern(double angle, bool isCrosswise) = 0;
};
using OdTcImagePtr = OdSmartPtr<OdTcImage>;

} // namespace tc
