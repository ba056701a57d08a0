// The common implementation of item lists.
#pragma once

#include "frame/system_services.h"
#include "module/item_index.h"
#include "module/list.h"
#include "module/persist_impl.h"
#include "persistence/filer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tc {

/// Implements the list interface T, whose elements are of class Item. What is left to a class:
/// `elementName`, `acceptsElement`, and whatever it does otherwise.
template <class T, class Item>
class OdTcListImplBase : public OdTcPersistImpl<T> {
 public:
  using Items = std::vector<OdSmartPtr<Item>>;

  /// Null is passed over; an item that is no Item raises OdError_NotThatKindOfClass.
  void add(OdTcCatalogItem* item) override {
    const OdSmartPtr<Item> added(item);
    if (!added) return;
    added->setOwnerInCatalog(ownerOfItems());
    m_items.push_back(added);
  }
  bool remove(const OdString& id) override {
    const int position = this->indexOf(id);
    if (position == this->count()) return false;
    // The reference goes only after the list is in order again: an item's end may lead back here.
    const OdSmartPtr<Item> removed = m_items[static_cast<std::size_t>(position)];
    m_items.erase(m_items.begin() + position);
    m_index.drop();
    disown(removed);
    return true;
  }
  int count() const override { return static_cast<int>(m_items.size()); }
  bool contains(const OdString& id) const override { return m_index.find(m_items, id) >= 0; }
  int indexOf(const OdString& id) const override {
    const qsizetype position = m_index.find(m_items, id);
    return position < 0 ? this->count() : static_cast<int>(position);
  }
  OdTcEnumPtr<OdTcCatalogItem> items() const override {
    return odrxMake<OdTcEnumImpl<OdTcCatalogItem, Items>>(this, m_items);
  }
  void writeItem(OdTcFiler* filer, OdTcCatalogItem* item) override { filer->writeObject(item); }
  OdTcCatalogItem* find(const OdString& id) const override {
    const qsizetype position = m_index.find(m_items, id);
    return position < 0 ? nullptr : m_items[static_cast<std::size_t>(position)].get();
  }
  /// Raises OdError_InvalidIndex for a position outside the list.
  OdTcCatalogItem* at(int position) const override {
    if (position < 0 || position >= this->count())
      throw OdError_InvalidIndex(position, this->count());
    return m_items[static_cast<std::size_t>(position)].get();
  }
  void regenerateIds(OdTcIdMap& map) override {
    for (const auto& item : m_items) {
      const OdString old = item->id();
      item->setId(odrxSystemServices()->createGuid());
      map.insert(old, item->id());
    }
  }

  void writeFields(OdTcFiler* filer) override {
    for (const auto& item : m_items) this->writeItem(filer, item.get());
  }
  /// Takes objects of the accepted elements. An object of another element or class raises
  /// OdError_NotThatKindOfClass; what is no object is none of the list's.
  bool readField(const OdString& name, const OdVariant& value) override {
    if (!value.isObject()) return false;
    if (!acceptsElement(name)) throw OdError_NotThatKindOfClass(name, Item::desc()->name());
    const OdSmartPtr<Item> item = value.objectAs<Item>();
    // The filer has registered the item under this list already.
    item->setOwnerQuiet(ownerOfItems());
    m_items.push_back(item);
    return true;
  }

 protected:
  /// True for the elements that are items of this list.
  virtual bool acceptsElement(const OdString& element) const = 0;
  /// Who owns the items: the list's owner. A list may name itself.
  virtual OdTcPersist* ownerOfItems() const { return this->owner(); }

  const Items& itemVector() const { return m_items; }
  /// Appends without a change of owner, for copies of lists.
  void appendShared(Item* item) { m_items.emplace_back(item); }
  /// Takes the list's owner off an item that has left the list, and lets the catalog forget it: it
  /// may live on, or go into another list.
  void disown(OdTcCatalogItem* item) {
    OdTcPersist* const former = ownerOfItems();
    const bool isStillHere = std::find(m_items.begin(), m_items.end(), item) != m_items.end();
    if (!former || item->owner() != former || isStillHere) return;
    this->forgetInCatalog(item);
    item->setOwnerQuiet(nullptr);
  }
  /// Empties the list.
  void clearItems() {
    const Items removed = std::exchange(m_items, {});
    m_index.drop();
  }

 private:
  Items m_items;
  OdTcItemIndex m_index;
};

} // namespace tc
