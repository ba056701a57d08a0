#include "module/catalog_item_impl.h"

#include "module/item_order_list_impl.h"
#include "module/owner_link.h"
#include "persistence/filer.h"

#include <algorithm>

namespace tc {
namespace {

/// A new object of the class whose factory the composition root has set. Made past the class
/// description, which can be gone while items live on.
template <class T>
OdSmartPtr<T> makeOwned(OdTcPersist* owner) {
  OdSmartPtr<T> made(static_cast<T*>(T::pseudoConstructor()), kOdRxObjAttach);
  if (!made) throw OdError(eNotApplicable, QStringLiteral("The class of a record has no factory"));
  made->setOwner(owner);
  return made;
}

} // namespace

const OdString& OdTcCatalogItemRecord::kNewRevision() {
  static const OdString revision = QStringLiteral("8.0");
  return revision;
}

OdTcCatalogItemRecord::Rare& OdTcCatalogItemRecord::rare() {
  if (!m_rare) m_rare = std::make_unique<Rare>();
  return *m_rare;
}

void OdTcCatalogItemRecord::setTag2(const OdString& text) {
  if (m_rare || !text.isEmpty()) rare().tag2 = text;
}

OdTcProperties* OdTcCatalogItemRecord::properties(OdTcPersist* owner) const {
  if (!m_properties) m_properties = makeOwned<OdTcProperties>(owner);
  return m_properties;
}

void OdTcCatalogItemRecord::forget(const OdTcPersist* owner) const {
  forgetOwner(m_properties, owner);
  forgetOwner(m_orderList, owner);
}

OdTcCatalogItemOrderList* OdTcCatalogItemRecord::orderList(OdTcPersist* owner) const {
  if (!m_orderList) {
    m_orderList.attach(new OdTcCatalogItemOrderListImpl);
    m_orderList->setOwner(owner);
  }
  return m_orderList;
}

void OdTcCatalogItemRecord::addReactor(OdTcCatalogItemReactor* reactor) {
  rare().reactors.push_back(reactor);
}

bool OdTcCatalogItemRecord::removeReactor(OdTcCatalogItemReactor* reactor) {
  if (!m_rare) return false;
  auto& reactors = m_rare->reactors;
  const auto at = std::find(reactors.begin(), reactors.end(), reactor);
  if (at == reactors.end()) return false;
  reactors.erase(at);
  return true;
}

void OdTcCatalogItemRecord::notify(void (OdTcCatalogItemReactor::*notification)(OdTcCatalogItem*),
                                   OdTcCatalogItem* item) const {
  if (!m_rare) return;
  const std::vector<OdTcCatalogItemReactor*> snapshot = m_rare->reactors;
  for (OdTcCatalogItemReactor* reactor : snapshot) {
    const auto& now = m_rare->reactors;
    if (reactor && std::find(now.begin(), now.end(), reactor) != now.end())
      (reactor->*notification)(item);
  }
}

void OdTcCatalogItemRecord::write(OdTcFiler* filer, OdTcPersist* owner) const {
  filer->writeAttribute(QStringLiteral("Revision"), revision);
  // The filers differ in how they write 32-bit numbers; an option word is unsigned in both.
  filer->writeAttribute(QStringLiteral("option"), OdString::number(options));
  filer->writeElementAttribute(QStringLiteral("ItemID"), QStringLiteral("idValue"), id());
  filer->writeObject(properties(owner));
}

bool OdTcCatalogItemRecord::read(const OdString& name, const OdVariant& value) {
  if (name == QLatin1String("Revision")) {
    const OdString text = value.toString();
    revision = text == kNewRevision() ? kNewRevision() : text;
  } else if (name == QLatin1String("option")) {
    options = static_cast<std::uint32_t>(odParseUInt(value.toString()));
  } else if (name == QLatin1String("idValue")) {
    // An empty id is not written, so an item that took it would come back with another one.
    if (const OdString text = value.toString(); !text.isEmpty()) setId(text);
  } else if (name == QLatin1String("Properties")) {
    setProperties(value.objectAs<OdTcProperties>());
  } else {
    return false;
  }
  return true;
}

void OdTcCatalogItemRecord::copyFrom(const OdTcCatalogItemRecord& other, OdTcPersist* owner) {
  revision = other.revision;
  options = other.options;
  setTag2(other.tag2());
  if (!other.m_properties) return;
  m_properties = other.m_properties->clone();
  m_properties->setOwner(owner);
}

} // namespace tc
