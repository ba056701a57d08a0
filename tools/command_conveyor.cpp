#include "tools/command_conveyor.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcCommandConveyor, OdRxObject, "OdTcCommandConveyor");

static OdTcCommandConveyorPtr g_conveyor;

OdTcCommandConveyor* OdTcCommandConveyor::instance() { return g_conveyor; }

void OdTcCommandConveyor::setInstance(const OdTcCommandConveyorPtr& conveyor) {
  g_conveyor = conveyor;
}

} // namespace tc
