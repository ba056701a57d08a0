// The tools of a palette in storage order.
#pragma once

#include "module/list.h"

#include <functional>

namespace tc {

class OdTcTool;

/// Element `Tools`.
class OdTcToolList : public OdTcList {
  ODRX_DECLARE_MEMBERS(OdTcToolList);

 public:
  /// Removes the tools that the function picks, whatever other tools have their ids.
  virtual void removeWhere(const std::function<bool(const OdTcTool&)>& isUnwanted) = 0;
};
using OdTcToolListPtr = OdSmartPtr<OdTcToolList>;

} // namespace tc
