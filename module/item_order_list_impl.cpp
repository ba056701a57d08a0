#include "module/item_order_list_impl.h"

#include "persistence/filer.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCatalogItemOrderList, OdTcPersist, "OdTcCatalogItemOrderList");

namespace id_array_detail {

void write(const OdArray<OdString>& ids, OdTcFiler* filer) {
  // An element with nothing in it would end the reading of the ids behind it.
  for (const OdString& id : ids)
    if (!id.isEmpty()) filer->writeElement(QStringLiteral("ID"), id);
}

bool read(OdArray<OdString>& ids, const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("ID")) return false;
  ids.append(value.toString());
  return true;
}

} // namespace id_array_detail

OdRxObjectPtr OdTcCatalogItemOrderListImpl::clone() const {
  auto copy = odrxMake<OdTcCatalogItemOrderListImpl>();
  copy->setIds(m_ids);
  return copy;
}

} // namespace tc
