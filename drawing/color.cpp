#include "drawing/color.h"

#include "drawing/errors.h"

#include <array>

namespace {

using Palette = std::array<std::uint32_t, 256>;

/// Nine fixed colours, 24 hues in five shades of two strengths, six greys.
constexpr Palette makePalette() {
  Palette palette{};
  constexpr std::uint32_t kFirst[] = {0xFFFFFF, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                      0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
  constexpr std::uint32_t kGreys[] = {0x333333, 0x505050, 0x696969, 0x828282, 0xBEBEBE, 0xFFFFFF};
  // In hundredths.
  constexpr int kShades[] = {100, 65, 50, 30, 15};
  for (std::size_t i = 0; i < 10; ++i) palette[i] = kFirst[i];
  for (std::size_t i = 0; i < 6; ++i) palette[250 + i] = kGreys[i];
  for (int i = 10; i < 250; ++i) {
    const int hue = (i - 10) / 10;
    const int quarter = hue % 4;
    // Quarters of full strength for red, green and blue; a sixth of the circle has four hues.
    int parts[3] = {};
    switch (hue / 4) {
    case 0:
      parts[0] = 4, parts[1] = quarter;
      break;
    case 1:
      parts[1] = 4, parts[0] = 4 - quarter;
      break;
    case 2:
      parts[1] = 4, parts[2] = quarter;
      break;
    case 3:
      parts[2] = 4, parts[1] = 4 - quarter;
      break;
    case 4:
      parts[2] = 4, parts[0] = quarter;
      break;
    default:
      parts[0] = 4, parts[2] = 4 - quarter;
      break;
    }
    const int shade = kShades[i % 10 / 2];
    std::uint32_t rgb = 0;
    for (const int part : parts) {
      const int eighths = i % 2 ? 4 + part : 2 * part;
      rgb = rgb << 8 | static_cast<std::uint32_t>(255 * shade * eighths / 800);
    }
    palette[static_cast<std::size_t>(i)] = rgb;
  }
  return palette;
}

constexpr Palette kPalette = makePalette();

constexpr std::uint32_t withMethod(OdCmColor::Method method, std::uint32_t low) {
  return std::uint32_t{method} << 24 | low;
}

} // namespace

OdCmColor::OdCmColor(Method method) { setColorMethod(method); }

OdCmColor OdCmColor::fromColorIndex(int index) {
  OdCmColor c;
  c.setColorIndex(index);
  return c;
}

OdCmColor OdCmColor::fromRgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  OdCmColor c;
  c.setRGB(red, green, blue);
  return c;
}

void OdCmColor::setColorMethod(Method method) { m_value = withMethod(method, m_value & 0xFFFFFF); }

void OdCmColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  m_value = withMethod(kByColor, std::uint32_t{red} << 16 | std::uint32_t{green} << 8 | blue);
}

std::uint16_t OdCmColor::colorIndex() const {
  switch (colorMethod()) {
  case kByLayer:
    return kACIbyLayer;
  case kByBlock:
    return kACIbyBlock;
  case kByColor:
    return lookUpACI(red(), green(), blue());
  case kByACI:
    return blue();
  case kForeground:
    return kACIforeground;
  case kByPen:
  case kLayerOff:
  case kLayerFrozen:
  case kNone:
    break;
  }
  return kACInone;
}

void OdCmColor::setColorIndex(int index) {
  if (index < 0 || index > kACInone)
    throw OdError(eInvalidInput, QStringLiteral("%1 is no colour index").arg(index));
  switch (index) {
  case kACIbyBlock:
    m_value = withMethod(kByBlock, 0);
    break;
  case kACIbyLayer:
    m_value = withMethod(kByLayer, 0);
    break;
  case kACInone:
    m_value = withMethod(kNone, 0);
    break;
  default:
    m_value = withMethod(kByACI, static_cast<std::uint32_t>(index));
    break;
  }
}

std::uint32_t OdCmColor::rgb() const {
  if (isByColor()) return m_value & 0xFFFFFF;
  return isByACI() ? lookUpRGB(blue()) : 0xFFFFFF;
}

OdString OdCmColor::colorName() const { return m_names ? m_names->color : OdString(); }
OdString OdCmColor::bookName() const { return m_names ? m_names->book : OdString(); }

bool OdCmColor::setNames(const OdString& colorName, const OdString& bookName) {
  if (colorName.isEmpty() && bookName.isEmpty()) {
    m_names = nullptr;
    return true;
  }
  if (!m_names) m_names = new Names;
  m_names->color = colorName;
  m_names->book = bookName;
  return true;
}

std::uint32_t OdCmColor::lookUpRGB(std::uint8_t index) { return kPalette[index]; }

std::uint8_t OdCmColor::lookUpACI(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  int best = 7;
  int bestDistance = 3 * 255 * 255 + 1;
  for (int i = 1; i < 256; ++i) {
    const std::uint32_t c = kPalette[static_cast<std::size_t>(i)];
    const int dr = static_cast<int>(c >> 16) - red;
    const int dg = static_cast<int>(c >> 8 & 0xFF) - green;
    const int db = static_cast<int>(c & 0xFF) - blue;
    const int distance = dr * dr + dg * dg + db * db;
    if (distance < bestDistance) {
      bestDistance = distance;
      best = i;
    }
  }
  return static_cast<std::uint8_t>(best);
}

bool OdCmColor::operator==(const OdCmColor& other) const {
  return m_value == other.m_value && colorName() == other.colorName() &&
         bookName() == other.bookName();
}
