// The pictures of an item.
#pragma once

#include "images/image.h"
#include "module/enum.h"

#include <cstdint>
#include <functional>

namespace tc {

/// Element `Images`.
class OdTcImageList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcImageList);

 public:
  virtual void add(OdTcImage* image) = 0;
  /// Forgets the pictures; with `deleteFiles`, their files go as well, but for those that another
  /// item of the catalog shows.
  virtual void removeAll(bool deleteFiles) = 0;
  virtual OdTcEnumPtr<OdTcImage> enumImages() const = 0;
  /// The first picture of that size, or null. Borrowed.
  virtual OdTcImage* findBySize(std::int32_t sizeKind) const = 0;
  virtual int count() const = 0;
  virtual std::uint32_t options() const = 0;
  /// Replaces the pictures by those of a file in the three sizes that every item has: 16, 32 and 64
  /// pixels. The files of the former ones go. False, with nothing changed, if the file cannot be
  /// read.
  virtual bool setFromFile(const OdString& path) = 0;
  /// The same with pictures that `make` makes: it is given each image, of its size kind and already
  /// in the list's palette, and is false if no picture came of it. The list then has none.
  virtual bool setFrom(const std::function<bool(OdTcImage& image)>& make) = 0;
  /// The stored paths of the pictures' files, as far as these exist.
  virtual QStringList pictureFiles() const = 0;
};
using OdTcImageListPtr = OdSmartPtr<OdTcImageList>;

} // namespace tc
