// A passing collection of catalog items.
#pragma once

#include "module/catalog_item.h"
#include "module/persist_impl.h"

#include <vector>

namespace tc {

/// A view of some items that is stored nowhere and has no element; it holds a reference to each.
class OdTcCatalogItemList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcCatalogItemList);

 public:
  virtual OdTcEnumPtr<OdTcCatalogItem> items() const = 0;
  /// Null is passed over.
  virtual void add(OdTcCatalogItem* item) = 0;
  virtual int count() const = 0;
};
using OdTcCatalogItemListPtr = OdSmartPtr<OdTcCatalogItemList>;

class OdTcCatalogItemListImpl : public OdTcPersistImpl<OdTcCatalogItemList> {
 public:
  OdTcEnumPtr<OdTcCatalogItem> items() const override;
  void add(OdTcCatalogItem* item) override;
  int count() const override { return static_cast<int>(m_items.size()); }

 private:
  std::vector<OdTcCatalogItemPtr> m_items;
};

} // namespace tc
