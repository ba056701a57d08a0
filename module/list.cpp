#include "module/list.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcList, OdTcPersist, "OdTcList");

} // namespace tc
