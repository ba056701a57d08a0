#include "drawing/dxf/colors.h"

void oddxf::setTrueColor(OdCmColor& color, std::int64_t value) {
  color.setRGB(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
               static_cast<std::uint8_t>(value));
}

OdString oddxf::colorNames(const OdCmColor& color) {
  return color.bookName() + u'$' + color.colorName();
}

void oddxf::setColorNames(OdCmColor& color, const OdString& names) {
  const qsizetype at = names.indexOf(u'$');
  color.setNames(names.mid(at + 1), at < 0 ? OdString() : names.left(at));
}
