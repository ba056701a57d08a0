#include "properties/color_value.h"

#include "host/host_locator.h"

namespace tc {

OdString useCurrentText() { return host::translate(QStringLiteral("-- use current")); }

OdCmColor useCurrentColor() {
  OdCmColor color = OdCmColor::fromRgb(255, 255, 255);
  color.setNames(useCurrentText(), QStringLiteral("curr_color"));
  return color;
}

bool isEntityColor(const OdCmColor& color) {
  return color.isByLayer() || color.isByBlock() || color.isByColor() || color.isByACI() ||
         color.isForeground();
}

bool isUseCurrentColor(const OdCmColor& color) {
  return color.bookName().compare(QLatin1String("curr_color"), Qt::CaseInsensitive) == 0;
}

} // namespace tc
