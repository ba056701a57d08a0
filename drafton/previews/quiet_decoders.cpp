#include "drafton/previews/quiet_decoders.h"

#include <QLoggingCategory>

namespace drafton {

void quietDecoders() {
  QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\n"
                                                  "qt.imageformats*=false"));
}

} // namespace drafton
