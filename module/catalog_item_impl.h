// The common implementation of catalog items.
#pragma once

#include "module/catalog_item.h"
#include "module/item_id.h"
#include "module/item_order_list.h"
#include "module/persist_impl.h"
#include "module/properties.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tc {

/// The record that OdTcCatalogItemImplBase keeps, apart from its template so that it is compiled
/// once.
///
/// A catalog holds very many items, most of which are only listed. So the record of name and
/// images, the order list and the id come into being when somebody first asks for them, which
/// nobody can tell from making them at once.
class OdTcCatalogItemRecord {
 public:
  const OdString& id() const { return m_id.get(); }
  void setId(const OdString& id) { m_id.set(id); }

  /// The properties, made with `owner` as their owner if there are none yet.
  OdTcProperties* properties(OdTcPersist* owner) const;
  void setProperties(const OdTcPropertiesPtr& properties) { m_properties = properties; }
  OdTcCatalogItemOrderList* orderList(OdTcPersist* owner) const;
  void setOrderList(const OdTcCatalogItemOrderListPtr& list) { m_orderList = list; }
  /// Takes `owner`, which is going, off the parts.
  void forget(const OdTcPersist* owner) const;
  bool hasOrderList() const { return !m_orderList.isNull(); }

  void addReactor(OdTcCatalogItemReactor* reactor);
  bool removeReactor(OdTcCatalogItemReactor* reactor);
  /// Calls `notification` of each reactor in the order of adding. A reactor may remove itself, or
  /// others, while it is called.
  void notify(void (OdTcCatalogItemReactor::*notification)(OdTcCatalogItem*),
              OdTcCatalogItem* item) const;

  OdString tag2() const { return m_rare ? m_rare->tag2 : OdString(); }
  void setTag2(const OdString& text);

  void write(OdTcFiler* filer, OdTcPersist* owner) const;
  bool read(const OdString& name, const OdVariant& value);
  /// Takes over what a copy of an item has from it: the revision, the options, the reserved text
  /// and a deep copy of the properties.
  void copyFrom(const OdTcCatalogItemRecord& other, OdTcPersist* owner);

  OdString revision = kNewRevision();
  std::uint32_t options = 0;
  bool isModified = false;
  bool isMarked = false;
  bool isDeleted = false;

 private:
  struct Rare {
    OdString tag2;
    std::vector<OdTcCatalogItemReactor*> reactors;
  };
  static const OdString& kNewRevision();
  Rare& rare();

  OdTcItemId m_id;
  mutable OdTcPropertiesPtr m_properties;
  mutable OdTcCatalogItemOrderListPtr m_orderList;
  std::unique_ptr<Rare> m_rare;
};

/// Implements the item operations of the interface T, which derives from OdTcCatalogItem. What is
/// left to a class: `elementName`, `clone` (see copyItemTo) and its own fields.
template <class T>
class OdTcCatalogItemImplBase : public OdTcPersistImpl<T> {
 public:
  using Base = OdTcPersistImpl<T>;

  ~OdTcCatalogItemImplBase() override { m_item.forget(this); }

  void setName(const OdString& name) override {
    this->properties()->setName(name);
    this->setModified();
  }
  void setOptions(std::uint32_t options) override {
    m_item.options = options;
    this->setModified();
  }
  void setDescription(const OdString& description) override {
    this->properties()->setDescription(description);
    this->setModified();
  }
  void setId(const OdString& id) override { m_item.setId(id); }
  OdTcImageList* itemImages() const override { return this->properties()->images(); }
  void setMarked() override { m_item.isMarked = true; }
  void clearMarked() override { m_item.isMarked = false; }
  void setImages(OdTcImageList* images) override {
    this->properties()->setImages(images);
    this->setModified();
  }
  OdTcImageList* images() const override { return this->properties()->images(); }
  OdString id() const override { return m_item.id(); }
  OdString revision() const override { return m_item.revision; }
  OdString name() const override { return this->properties()->getName(); }
  OdString description() const override { return this->properties()->getDescription(); }
  bool isModified() const override { return m_item.isModified; }
  /// Each call tells the reactors of a change.
  void setModified() override {
    m_item.isModified = true;
    notify(&OdTcCatalogItemReactor::itemChanged, self());
  }
  bool addItem(OdTcCatalogItem*) override { return false; }
  bool removeItem(const OdString&) override { return false; }
  bool findItem(const OdString&) const override { return false; }
  bool addReactor(OdTcCatalogItemReactor* reactor) override {
    m_item.addReactor(reactor);
    return true;
  }
  bool removeReactor(OdTcCatalogItemReactor* reactor) override {
    return m_item.removeReactor(reactor);
  }
  bool isMarked() const override { return m_item.isMarked; }
  bool isDeleted() const override { return m_item.isDeleted; }
  std::uint32_t options() const override { return m_item.options; }
  OdVariant propertyValue(const OdString& name) const override {
    return this->properties()->propertyValue(name);
  }
  bool setPropertyValue(const OdString& name, const OdVariant& value) override {
    return this->properties()->setPropertyValue(name, value);
  }
  OdTcEnumPtr<OdTcCatalogItem> children() const override {
    static const std::vector<OdTcCatalogItemPtr> kNone;
    return odrxMake<OdTcEnumImpl<OdTcCatalogItem, std::vector<OdTcCatalogItemPtr>>>(this, kNone);
  }
  OdArray<OdString> orderList() const override {
    return m_item.hasOrderList() ? orderListObject()->ids() : OdArray<OdString>();
  }
  void setOrderList(const OdArray<OdString>& ids) override { orderListObject()->setIds(ids); }
  OdTcProperties* properties() const override { return m_item.properties(self()); }
  void setDeleted() override { m_item.isDeleted = true; }
  OdString displayName() const override { return this->name(); }

  void writeFields(OdTcFiler* filer) override { m_item.write(filer, self()); }
  bool readField(const OdString& name, const OdVariant& value) override {
    return m_item.read(name, value);
  }

 protected:
  /// The stored array of ids of children; never null.
  OdTcCatalogItemOrderList* orderListObject() const { return m_item.orderList(self()); }
  /// Takes the order list that was read; a value of another class raises
  /// OdError_NotThatKindOfClass.
  void readOrderList(const OdVariant& value) {
    m_item.setOrderList(value.objectAs<OdTcCatalogItemOrderList>());
  }
  void notifyAdded(OdTcCatalogItem* item) { notify(&OdTcCatalogItemReactor::itemAdded, item); }
  void notifyRemoved(OdTcCatalogItem* item) { notify(&OdTcCatalogItemReactor::itemRemoved, item); }
  /// Gives `copy`, a new item, the revision, the reserved text, the options and a deep copy of the
  /// properties. It has a fresh id of its own.
  void copyItemTo(OdTcCatalogItemImplBase& copy) const {
    copy.m_item.copyFrom(m_item, copy.self());
  }

  OdTcCatalogItemRecord& itemRecord() { return m_item; }
  const OdTcCatalogItemRecord& itemRecord() const { return m_item; }

 private:
  OdTcCatalogItem* self() const { return const_cast<OdTcCatalogItemImplBase*>(this); }
  void notify(void (OdTcCatalogItemReactor::*notification)(OdTcCatalogItem*),
              OdTcCatalogItem* item) {
    m_item.notify(notification, item);
  }

  OdTcCatalogItemRecord m_item;
};

} // namespace tc
