#include "tools/host_patterns.h"

#include "host/host_locator.h"
#include "host/preview_service.h"

#include <QImage>

namespace tc {

bool isPatternKnown(const OdString& name) {
  constexpr int kSmallest = 16;
  const KVPtr<IHostPreviewService> previews = host::service<IHostPreviewService>();
  return !previews || !previews->renderPattern(name, kSmallest).isNull();
}

} // namespace tc
