#include "module/properties.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcProperties, OdTcPersist, "OdTcProperties");

} // namespace tc
