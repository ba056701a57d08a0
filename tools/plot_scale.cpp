#include "tools/plot_scale.h"

#include "drawing/database.h"
#include "drawing/objects/layout.h"

namespace tc {

std::optional<double> activePlotScale(const OdDbDatabase& database) {
  const OdDbLayoutPtr layout = oddb::activeLayout(database).openObject();
  return layout ? std::optional<double>(layout->getStdScale()) : std::nullopt;
}

} // namespace tc
