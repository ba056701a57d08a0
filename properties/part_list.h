// Ordered lists of parts that are stored one element each.
#pragma once

#include "module/persist_cast.h"
#include "module/persist_impl.h"
#include "persistence/filer.h"
#include "properties/owned_part.h"

#include <vector>

namespace tc {

/// Implements the list interface T over parts of the class Item. `itemElement` of the derived class
/// names the only children that are taken.
template <class T, class Item>
class OdTcPartListImpl : public OdTcPersistImpl<T> {
 public:
  void add(Item* item) override {
    if (item) m_items.push_back(adoptPart(OdSmartPtr<Item>(item), this));
  }
  int count() const override { return static_cast<int>(m_items.size()); }

  void writeFields(OdTcFiler* filer) override {
    for (const auto& item : m_items) filer->writeObject(item);
  }
  bool readField(const OdString& name, const OdVariant& value) override {
    if (name != itemElement()) return false;
    add(persistCast<Item>(value));
    return true;
  }

 protected:
  virtual QStringView itemElement() const = 0;
  const std::vector<OdSmartPtr<Item>>& parts() const { return m_items; }
  void copyPartsFrom(const OdTcPartListImpl& other) {
    m_items.reserve(other.m_items.size());
    for (const auto& item : other.m_items) m_items.push_back(clonePart(item, this));
  }

 private:
  std::vector<OdSmartPtr<Item>> m_items;
};

} // namespace tc
