// The display records of a palette.
#pragma once

#include "frame/array.h"
#include "module/persist.h"

#include <cstdint>

namespace tc {

/// A stored array of tool ids, element `ToolOrder`. Duplicates are kept.
class OdTcToolOrderList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcToolOrderList);

 public:
  virtual const OdArray<OdString>& ids() const = 0;
  virtual void setIds(const OdArray<OdString>& ids) = 0;
  /// Removes the first occurrence only; false if there is none.
  virtual bool removeFirst(const OdString& id) = 0;
};

/// Element `CatalogView`.
class OdTcCatalogView : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcCatalogView);

 public:
  virtual OdTcToolOrderList* toolOrder() const = 0;
};

/// Element `CAcTcUiToolPalette`.
class OdTcPaletteUiProperties : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcPaletteUiProperties);

 public:
  virtual OdTcCatalogView* catalogView() const = 0;
};

/// Element `PaletteUI`. It has no registered class of its own.
class OdTcPaletteUi : public OdTcPersist {
 public:
  /// Orders of tools.
  enum Sort : std::int32_t { kByName = 0, kByType = 1, kManual = 2 };

  virtual std::int32_t sortType() const = 0;
  virtual void setSortType(std::int32_t type) = 0;
  /// 1, 3 or 4: small, normal, large.
  virtual std::int32_t previewSize() const = 0;
  virtual void setPreviewSize(std::int32_t size) = 0;
  /// 0 to 3: the view styles of the palette window.
  virtual std::int32_t previewStyle() const = 0;
  virtual void setPreviewStyle(std::int32_t style) = 0;
  virtual OdTcPaletteUiProperties* uiProperties() const = 0;
};

} // namespace tc
