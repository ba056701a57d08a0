// Items, a list and a properties record for tests of what all items share.
#pragma once

#include "module/catalog_item_impl.h"
#include "module/list_impl.h"
#include "persistence/filer.h"

namespace tc::test {

/// Keeps a name, a description and a note of its copies.
class PlainProperties : public OdTcPersistImpl<OdTcProperties> {
 public:
  OdString elementName() const override { return QStringLiteral("Properties"); }
  void writeFields(OdTcFiler* filer) override;
  bool readField(const OdString& name, const OdVariant& value) override;
  OdRxObjectPtr clone() const override;

  OdString getName() const override { return m_name; }
  void setName(const OdString& name) override { m_name = name; }
  void setDescription(const OdString& text) override { m_description = text; }
  OdString getDescription() const override { return m_description; }
  void clearResource() override {}
  OdString created() const override { return {}; }
  OdString modified() const override { return {}; }
  OdString resource() const override { return {}; }
  OdString src() const override { return {}; }
  void setResource(const OdString&, const OdString&) override {}
  OdTcImageList* images() const override { return nullptr; }
  void setImages(OdTcImageList*) override {}
  OdVariant propertyValue(const OdString& name) const override;
  bool setPropertyValue(const OdString& name, const OdVariant& value) override;

  static int made;
  PlainProperties() { ++made; }

 private:
  OdString m_name;
  OdString m_description;
};

/// An item with nothing of its own.
class Item : public OdTcCatalogItemImplBase<OdTcCatalogItem> {
 public:
  OdString elementName() const override { return QStringLiteral("Item"); }
  OdTcCatalogItemPtr clone(bool deep) const override;
  using OdTcCatalogItemImplBase::clone;
  bool readField(const OdString& name, const OdVariant& value) override;

  void sayRemoved(OdTcCatalogItem* item) { notifyRemoved(item); }
  void sayAdded(OdTcCatalogItem* item) { notifyAdded(item); }
  OdTcCatalogItemRecord& record() { return itemRecord(); }
};

/// A list of items under the element `Items`.
class ItemList : public OdTcListImplBase<OdTcList, OdTcCatalogItem> {
 public:
  OdString elementName() const override { return QStringLiteral("Items"); }

 protected:
  bool acceptsElement(const OdString& element) const override {
    return element == QLatin1String("Item");
  }
};

/// The top of a catalog: counts what is registered with it.
class Top : public OdTcPersistImpl<OdTcPersist> {
 public:
  OdTcCatalog* catalog() const override {
    return reinterpret_cast<OdTcCatalog*>(const_cast<Top*>(this));
  }
  void noteInCatalog(OdTcPersist* object) override { noted.push_back(object); }
  void noteInDatabase(OdTcPersist* object) override { notedInDatabase.push_back(object); }
  void forgetInCatalog(OdTcPersist* object) override { forgotten.push_back(object); }
  std::vector<OdTcPersist*> noted;
  std::vector<OdTcPersist*> forgotten;
  std::vector<OdTcPersist*> notedInDatabase;
};

/// Registers the classes and elements; in force for the life of the program.
void useItems();

OdSmartPtr<Item> makeItem(const OdString& id);

} // namespace tc::test
