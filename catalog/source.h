// Elements of foreign catalogs that are known only so that they can be passed over.
#pragma once

#include "module/persist.h"

namespace tc {

/// Element `Source` of a catalog: it has no fields, and nothing of it is kept.
class OdTcSource : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcSource);
};

/// Element `ToolSource` of a palette's display record. It is held only while it is read, and never
/// written.
class OdTcToolSource : public OdTcPersist {
  ODRX_DECLARE_MEMBERS(OdTcToolSource);

 public:
  virtual OdString sourceId() const = 0;
  virtual OdString sourcePalette() const = 0;
};

} // namespace tc
