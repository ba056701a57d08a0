// Lists of catalog items.
#pragma once

#include "module/catalog_item.h"

#include <QMap>

namespace tc {

/// From the id that an item had to the fresh one that it has now.
using OdTcIdMap = QMap<OdString, OdString>;

/// A stored vector of items; it owns one reference to each.
class OdTcList : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcList);

 public:
  /// Sets the item's owner and appends it. Nothing checks for duplicates.
  virtual void add(OdTcCatalogItem* item) = 0;
  /// Removes the first item with that id, keeping the order of the others; false if there is none.
  virtual bool remove(const OdString& id) = 0;
  virtual bool contains(const OdString& id) const = 0;
  /// The position of the first item with that id, or count().
  virtual int indexOf(const OdString& id) const = 0;
  virtual OdTcEnumPtr<OdTcCatalogItem> items() const = 0;
  /// Writes one item as a child of the list.
  virtual void writeItem(OdTcFiler* filer, OdTcCatalogItem* item) = 0;
  /// The first item with that id, or null. Borrowed.
  virtual OdTcCatalogItem* find(const OdString& id) const = 0;

  virtual int count() const = 0;
  /// The item at a position from 0 to count() - 1.
  virtual OdTcCatalogItem* at(int position) const = 0;
  /// Gives every item a fresh id and records old to new, overwriting an old id that is there.
  virtual void regenerateIds(OdTcIdMap& map) = 0;
};
using OdTcListPtr = OdSmartPtr<OdTcList>;

} // namespace tc
