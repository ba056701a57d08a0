// Tools as the host repeats them.
#pragma once

namespace tc {

class OdTcTool;

/// Tells the host that the user ran the tool, so that it is what Enter runs again.
void tellUserRan(const OdTcTool& tool);

} // namespace tc
