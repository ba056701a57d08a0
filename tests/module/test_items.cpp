#include "module/test_items.h"

#include "module/catalog_item_list.h"
#include "module/item_order_list_impl.h"
#include "persistence/element_table.h"

namespace tc::test {

int PlainProperties::made = 0;

void PlainProperties::writeFields(OdTcFiler* filer) {
  filer->writeElement(QStringLiteral("ItemName"), m_name);
}

bool PlainProperties::readField(const OdString& name, const OdVariant& value) {
  return setPropertyValue(name, value);
}

OdRxObjectPtr PlainProperties::clone() const {
  auto copy = odrxMake<PlainProperties>();
  copy->m_name = m_name;
  copy->m_description = m_description;
  return copy;
}

OdVariant PlainProperties::propertyValue(const OdString& name) const {
  return name == QLatin1String("ItemName") ? OdVariant(m_name) : OdVariant();
}

bool PlainProperties::setPropertyValue(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("ItemName")) return false;
  m_name = value.toString();
  return true;
}

OdTcCatalogItemPtr Item::clone(bool) const {
  auto copy = odrxMake<Item>();
  copyItemTo(*copy);
  return copy;
}

bool Item::readField(const OdString& name, const OdVariant& value) {
  if (OdTcCatalogItemImplBase::readField(name, value)) return true;
  if (name != QLatin1String("CatalogItemOrder")) return false;
  readOrderList(value);
  return true;
}

void useItems() {
  static const bool done = [] {
    OdTcPersist::rxInit();
    OdTcCatalogItem::rxInit();
    OdTcList::rxInit();
    OdTcCatalogItemOrderList::rxInit();
    OdTcCatalogItemList::rxInit();
    OdTcProperties::s_factory = &odrxFactory<PlainProperties>;
    OdTcProperties::rxInit();
    OdTcElementTable::setBuilder([](OdTcElementTable& table) {
      table.add(QStringLiteral("Properties"),
                [] { return static_cast<OdTcPersist*>(new PlainProperties); });
      table.add(QStringLiteral("Item"), [] { return static_cast<OdTcPersist*>(new Item); });
      table.add(QStringLiteral("Items"), [] { return static_cast<OdTcPersist*>(new ItemList); });
      table.add(QStringLiteral("CatalogItemOrder"),
                [] { return static_cast<OdTcPersist*>(new OdTcCatalogItemOrderListImpl); });
    });
    return true;
  }();
  static_cast<void>(done);
}

OdSmartPtr<Item> makeItem(const OdString& id) {
  useItems();
  auto item = odrxMake<Item>();
  item->setId(id);
  return item;
}

} // namespace tc::test
