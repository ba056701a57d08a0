// The ids of an item's children in the user's order.
#pragma once

#include "frame/array.h"
#include "module/persist.h"

namespace tc {

/// A stored array of ids, element `CatalogItemOrder`. Duplicates are kept.
class OdTcCatalogItemOrderList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcCatalogItemOrderList);

 public:
  virtual const OdArray<OdString>& ids() const = 0;
  virtual void setIds(const OdArray<OdString>& ids) = 0;
  /// Removes the first occurrence only; false if there is none.
  virtual bool removeFirst(const OdString& id) = 0;
};
using OdTcCatalogItemOrderListPtr = OdSmartPtr<OdTcCatalogItemOrderList>;

} // namespace tc
