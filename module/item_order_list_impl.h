// The stored array of ids.
#pragma once

#include "module/item_order_list.h"
#include "module/persist_impl.h"

namespace tc {

namespace id_array_detail {
void write(const OdArray<OdString>& ids, OdTcFiler* filer);
bool read(OdArray<OdString>& ids, const OdString& name, const OdVariant& value);
} // namespace id_array_detail

/// Written as one child `ID` for each id, in order; empty ids are passed over. T is the interface
/// that it serves: an order of children, or the order of tools on a palette.
template <class T>
class OdTcIdArrayImpl : public OdTcPersistImpl<T> {
 public:
  const OdArray<OdString>& ids() const override { return m_ids; }
  void setIds(const OdArray<OdString>& ids) override { m_ids = ids; }
  bool removeFirst(const OdString& id) override { return m_ids.removeFirst(id); }

  void writeFields(OdTcFiler* filer) override { id_array_detail::write(m_ids, filer); }
  /// Takes `ID` and appends the value.
  bool readField(const OdString& name, const OdVariant& value) override {
    return id_array_detail::read(m_ids, name, value);
  }

 protected:
  OdArray<OdString> m_ids;
};

/// Element `CatalogItemOrder`.
class OdTcCatalogItemOrderListImpl : public OdTcIdArrayImpl<OdTcCatalogItemOrderList> {
 public:
  OdString elementName() const override { return QStringLiteral("CatalogItemOrder"); }
  OdRxObjectPtr clone() const override;
};

} // namespace tc
