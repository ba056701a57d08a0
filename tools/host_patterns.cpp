#include "tools/host_patterns.h"

#include "host/host_locator.h"
#include "host/preview_service.h"

#include <QImage>

namespace tc {

bool isPatternKnown(const OdString& name, const OdString& file) {
  constexpr int kSmallest = 16;
  const KVPtr<IHostPreviewService> previews = host::service<IHostPreviewService>();
  return !previews || !previews->renderPattern(name, file, kSmallest).isNull();
}

} // namespace tc
