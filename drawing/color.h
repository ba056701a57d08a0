// Colours of layers, entities and styles.
#pragma once

#include "frame/string.h"

#include <QSharedData>

#include <cstdint>

/// A colour: how it is told (the method), its parts, and the names of a colour book if it comes
/// from one. The 32-bit value is that of the files: the method in the high byte, then red, green
/// and blue, or an index in the low byte.
class OdCmColor {
 public:
  enum Method : std::uint8_t {
    kByLayer = 0xC0,
    kByBlock = 0xC1,
    kByColor = 0xC2, ///< red, green, blue
    kByACI = 0xC3,   ///< an index into the palette
    kByPen = 0xC4,
    kForeground = 0xC5, ///< what stands out against the ground
    kLayerOff = 0xC6,
    kLayerFrozen = 0xC7,
    kNone = 0xC8,
  };
  static constexpr std::uint16_t kACIbyBlock = 0;
  static constexpr std::uint16_t kACIforeground = 7;
  static constexpr std::uint16_t kACIbyLayer = 256;
  static constexpr std::uint16_t kACInone = 257;

  /// By layer.
  OdCmColor() = default;
  explicit OdCmColor(Method method);
  static OdCmColor fromColorIndex(int index);
  static OdCmColor fromRgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

  /// The whole 32-bit value.
  std::uint32_t color() const { return m_value; }
  /// Sets the whole value; the names stay.
  void setColor(std::uint32_t value) { m_value = value; }

  Method colorMethod() const { return static_cast<Method>(m_value >> 24); }
  /// Changes the method and keeps the low bytes.
  void setColorMethod(Method method);
  bool isByLayer() const { return colorMethod() == kByLayer; }
  bool isByBlock() const { return colorMethod() == kByBlock; }
  bool isByColor() const { return colorMethod() == kByColor; }
  bool isByACI() const { return colorMethod() == kByACI; }
  bool isByPen() const { return colorMethod() == kByPen; }
  bool isForeground() const { return colorMethod() == kForeground; }
  bool isNone() const { return colorMethod() == kNone; }

  /// Parts of the value as they stand; for an index see rgb().
  std::uint8_t red() const { return static_cast<std::uint8_t>(m_value >> 16); }
  std::uint8_t green() const { return static_cast<std::uint8_t>(m_value >> 8); }
  std::uint8_t blue() const { return static_cast<std::uint8_t>(m_value); }
  /// Makes it a true colour.
  void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

  /// 0 by block, 1 to 255 a palette entry, 256 by layer, 257 none; for a true colour the nearest
  /// palette entry.
  std::uint16_t colorIndex() const;
  /// Takes 0 to 257 as colorIndex() gives them. Raises OdError(eInvalidInput) outside.
  void setColorIndex(int index);

  /// What to paint: 0xRRGGBB. By layer, by block and none give white.
  std::uint32_t rgb() const;

  OdString colorName() const;
  OdString bookName() const;
  /// Names of a colour book's entry; both empty takes the names away.
  bool setNames(const OdString& colorName, const OdString& bookName = OdString());
  bool hasNames() const { return m_names; }

  /// The palette's colour, 0xRRGGBB. `index` is 0 to 255; 0 gives white.
  static std::uint32_t lookUpRGB(std::uint8_t index);
  /// The palette entry (1 to 255) nearest to a colour.
  static std::uint8_t lookUpACI(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

  bool operator==(const OdCmColor& other) const;

 private:
  struct Names : QSharedData {
    OdString color, book;
  };
  std::uint32_t m_value = std::uint32_t{kByLayer} << 24;
  // Few colours have names, and a drawing has a colour for every entity.
  QSharedDataPointer<Names> m_names;
};
