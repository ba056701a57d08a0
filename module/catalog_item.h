// The base of everything that a catalog tree shows.
#pragma once

#include "frame/array.h"
#include "module/enum.h"
#include "module/persist.h"

#include <cstdint>

namespace tc {

class OdTcCatalogItem;
class OdTcCatalogItemOrderList;
class OdTcImageList;
class OdTcProperties;

/// Hears of changes of an item. Calls are synchronous, in the order in which reactors were added.
class OdTcCatalogItemReactor {
 public:
  virtual void itemChanged(OdTcCatalogItem* /*item*/) {}
  /// The item is about to leave; it is still in place.
  virtual void itemRemoved(OdTcCatalogItem* /*item*/) {}
  virtual void itemAdded(OdTcCatalogItem* /*item*/) {}

 protected:
  ~OdTcCatalogItemReactor() = default;
};

/// A catalog, group, palette, tool, soft reference or palette loader: what has an identity and a
/// record of name and images.
class OdTcCatalogItem : public OdTcPersist {
  ODRX_DECLARE_MEMBERS_EX(OdTcCatalogItem, TC_API);

 public:
  virtual void setName(const OdString& name) = 0;
  /// The item's option word; its bits have the meaning that each class gives them.
  virtual void setOptions(std::uint32_t options) = 0;
  virtual void setDescription(const OdString& description) = 0;
  virtual void setId(const OdString& id) = 0;
  virtual OdTcImageList* itemImages() const = 0;
  virtual void setMarked() = 0;
  virtual void clearMarked() = 0;
  virtual void setImages(OdTcImageList* images) = 0;
  virtual OdTcImageList* images() const = 0;
  /// A deep copy through the item's own class, with a fresh id.
  virtual OdSmartPtr<OdTcCatalogItem> clone(bool deep) const = 0;
  /// A GUID text, compared exactly.
  virtual OdString id() const = 0;
  virtual OdString revision() const = 0;
  virtual OdString name() const = 0;
  virtual OdString description() const = 0;
  virtual bool isModified() const = 0;
  virtual void setModified() = 0;
  /// Containers take items; all others answer false.
  virtual bool addItem(OdTcCatalogItem* item) = 0;
  virtual bool removeItem(const OdString& id) = 0;
  virtual bool findItem(const OdString& id) const = 0;
  /// Reactors are not owned.
  virtual bool addReactor(OdTcCatalogItemReactor* reactor) = 0;
  /// Removes the first equal pointer; false if there is none.
  virtual bool removeReactor(OdTcCatalogItemReactor* reactor) = 0;
  virtual bool isMarked() const = 0;
  virtual bool isDeleted() const = 0;
  virtual std::uint32_t options() const = 0;
  virtual OdVariant propertyValue(const OdString& name) const = 0;
  virtual bool setPropertyValue(const OdString& name, const OdVariant& value) = 0;
  /// The direct children, in order.
  virtual OdTcEnumPtr<OdTcCatalogItem> children() const = 0;
  /// The ids of children in the user's order. Ids without an item and items without an id are both
  /// legal.
  virtual OdArray<OdString> orderList() const = 0;
  virtual void setOrderList(const OdArray<OdString>& ids) = 0;

  /// The record of name, description, times and images; never null.
  virtual OdTcProperties* properties() const = 0;
  /// Called by the owner when the item is removed.
  virtual void setDeleted() = 0;

  using OdRxObject::clone;
};
using OdTcCatalogItemPtr = OdSmartPtr<OdTcCatalogItem>;

} // namespace tc
