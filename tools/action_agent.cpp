#include "tools/action_agent.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcToolActionAgent, OdTcPersist, "OdTcToolActionAgent");
ODRX_DEFINE_MEMBERS(OdTcToolCommand, OdTcToolActionAgent, "OdTcToolCommand");
ODRX_DEFINE_MEMBERS(OdTcToolBlockCommand, OdTcToolActionAgent, "OdTcToolBlockCommand");
ODRX_DEFINE_MEMBERS(OdTcToolHatchCommand, OdTcToolActionAgent, "OdTcToolHatchCommand");
ODRX_DEFINE_MEMBERS(OdTcToolRasterCommand, OdTcToolActionAgent, "OdTcToolRasterCommand");

} // namespace tc
