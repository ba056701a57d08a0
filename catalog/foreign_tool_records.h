// What a tool of a foreign palette carries besides its data.
#pragma once

#include "module/persist.h"

namespace tc {

/// Element `CustomData`: what a multitool draws. It is never written.
class OdTcToolCustomData : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcToolCustomData);

 public:
  virtual OdString className() const = 0;
  virtual OdString idButton() const = 0;
};
using OdTcToolCustomDataPtr = OdSmartPtr<OdTcToolCustomData>;

/// Element `Flyout`: the pop-up menu of a multitool.
class OdTcToolFlyout : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcToolFlyout);

 public:
  virtual bool isFlyoutEnabled() const = 0;
  virtual OdString shapePackage() const = 0;
  virtual OdString currentShape() const = 0;
};
using OdTcToolFlyoutPtr = OdSmartPtr<OdTcToolFlyout>;

/// Element `StockToolRef`: the id of a record that only the foreign program has.
class OdTcStockToolRef : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcStockToolRef);

 public:
  virtual OdString stockId() const = 0;
};
using OdTcStockToolRefPtr = OdSmartPtr<OdTcStockToolRef>;

} // namespace tc
