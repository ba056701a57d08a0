// What a saved drawing tells of itself to those who only look into its header.
#pragma once

#include "drawing/database.h"
#include "frame/time_stamp.h"

namespace drafton {

/// Tells what the spaces of a changed drawing take up: in the header and in its layouts. Other
/// programs zoom to that, and lay sheets out by it. This is no change that could be undone.
void tellExtents(OdDbDatabase& database);

/// Tells when a changed drawing was saved, and adds the time since `since` to that of working on
/// it. One that is new was made then, too. This is no change that could be undone.
void tellTimes(OdDbDatabase& database, const OdTimeStamp& since, bool isNew);

} // namespace drafton
