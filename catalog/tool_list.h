// The tools of a palette in storage order.
#pragma once

#include "module/list.h"

namespace tc {

/// Element `Tools`.
class OdTcToolList : public OdTcList {
  ODRX_DECLARE_MEMBERS(OdTcToolList);
};
using OdTcToolListPtr = OdSmartPtr<OdTcToolList>;

} // namespace tc
