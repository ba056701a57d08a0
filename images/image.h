// One picture of an item, at one size.
#pragma once

#include "module/persist.h"

#include <QImage>

namespace tc {

/// Size kinds and their pixels: 0 and 1 are 16, 2 is 24, 3 is 32, 4 is 64; any other counts as 16.
enum class OdTcSizeKind : std::int32_t { kNone = 0, kSmall = 1, kMedium = 2, kNormal = 3, kLarge = 4 };

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
};
using OdTcImagePtr = OdSmartPtr<OdTcImage>;

} // namespace tc
