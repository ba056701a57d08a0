#pragma once

#include "catalog/palette_ui.h"
#include "module/item_order_list_impl.h"

namespace tc {

class OdTcToolOrderListImpl : public OdTcIdArrayImpl<OdTcToolOrderList> {
 public:
  OdString elementName() const override { return QStringLiteral("ToolOrder"); }
  OdRxObjectPtr clone() const override {
    const auto copy = odrxMake<OdTcToolOrderListImpl>();
    copy->setIds(ids());
    return copy;
  }
};

} // namespace tc
