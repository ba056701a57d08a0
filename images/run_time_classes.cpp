// The run-time class surface of this folder's interfaces.
#include "images/image_list.h"

namespace tc {

ODRX_DEFINE_MEMBERS(OdTcImage, OdTcPersist, "OdTcImage");
ODRX_DEFINE_MEMBERS(OdTcImageList, OdTcPersist, "OdTcImageList");

} // namespace tc
