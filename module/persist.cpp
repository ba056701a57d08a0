#include "module/persist.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcPersist, OdRxObject, "OdTcPersist");

} // namespace tc
