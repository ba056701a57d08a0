// The ids of a palette's tools in the user's order.
#pragma once

#include "catalog/palette_ui.h"
#include "module/item_order_list_impl.h"

namespace tc {

class OdTcToolOrderListImpl : public OdTcIdArrayImpl<OdTcToolOrderList> {
 public:
  OdString elementName() const override { return QStringLiteral("ToolOrder"); }
  /// In palettes of other programs an entry is called `Tool`, and its id may be an attribute.
  bool readField(const OdString& name, const OdVariant& value) override {
    const bool isForeign = name == QLatin1String("Tool") || name == QLatin1String("idValue");
    if (!isForeign) return OdTcIdArrayImpl::readField(name, value);
    if (!value.isObject()) m_ids.append(value.toString());
    return true;
  }
  OdRxObjectPtr clone() const override {
    const auto copy = odrxMake<OdTcToolOrderListImpl>();
    copy->setIds(ids());
    return copy;
  }
};

} // namespace tc
