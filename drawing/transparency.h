// Transparency of layers and entities.
#pragma once

#include <cstdint>

/// By layer, by block, or an opacity from 0 (clear) to 255 (solid); the 32-bit value is that of the
/// files: the method in the high byte (0 by layer, 1 by block, 2 an opacity), the opacity in the
/// low.
class OdCmTransparency {
 public:
  enum Method : std::uint8_t { kByLayer = 0, kByBlock = 1, kByAlpha = 2 };

  constexpr OdCmTransparency() = default;
  constexpr explicit OdCmTransparency(Method method)
    : m_value(std::uint32_t{method} << 24 | (method == kByAlpha ? 255u : 0u)) {}
  static constexpr OdCmTransparency fromAlpha(std::uint8_t alpha) {
    return fromValue(std::uint32_t{kByAlpha} << 24 | alpha);
  }
  /// 0 is solid, 90 the clearest that programs offer.
  static constexpr OdCmTransparency fromPercent(int percent) {
    return fromAlpha(static_cast<std::uint8_t>((100 - percent) * 255 / 100));
  }
  static constexpr OdCmTransparency fromValue(std::uint32_t value) {
    OdCmTransparency t;
    t.m_value = value;
    return t;
  }

  Method method() const { return static_cast<Method>(m_value >> 24); }
  bool isByLayer() const { return method() == kByLayer; }
  bool isByBlock() const { return method() == kByBlock; }
  std::uint8_t alpha() const { return static_cast<std::uint8_t>(m_value); }
  int percent() const { return method() == kByAlpha ? 100 - (alpha() * 100 + 127) / 255 : 0; }
  std::uint32_t value() const { return m_value; }
  bool operator==(const OdCmTransparency&) const = default;

 private:
  std::uint32_t m_value = 0;
};
