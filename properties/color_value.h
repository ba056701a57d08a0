// Colours as values that travel between a property and its editor.
#pragma once

#include "drawing/color.h"
#include "frame/variant.h"

#include <optional>

namespace tc {

/// A colour with its names, in an object, so that a value can hold it.
class OdTcColorValue final : public OdRxObject {
 public:
  explicit OdTcColorValue(const OdCmColor& color)
    : m_color(color) {}
  const OdCmColor& color() const { return m_color; }

 private:
  OdCmColor m_color;
};

inline OdVariant colorToVariant(const OdCmColor& color) {
  return OdVariant(odrxMake<OdTcColorValue>(color));
}

/// The colour of a value: a colour object, or the whole 32-bit value as a number. Nothing for any
/// other kind of value.
inline std::optional<OdCmColor> colorFromVariant(const OdVariant& value) {
  if (value.isObject()) {
    const auto* const held = dynamic_cast<const OdTcColorValue*>(value.object());
    return held ? std::optional(held->color()) : std::nullopt;
  }
  if (value.isVoid() || value.isText()) return std::nullopt;
  OdCmColor color;
  color.setColor(value.toUInt32());
  return color;
}

/// True for colours that entities can have: by layer, by block, foreground, of the palette, and
/// true colours. Files can hold others, and methods that nobody knows.
bool isEntityColor(const OdCmColor& color);

/// The colour that stands for "-- use current" in an editor.
OdCmColor useCurrentColor();
/// True for a colour of the book "curr_color", whatever its case.
bool isUseCurrentColor(const OdCmColor& color);
/// The word that stands for "-- use current" in an editor, in the user's language.
OdString useCurrentText();

} // namespace tc
