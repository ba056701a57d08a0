// Arithmetic with the four channels of pixels at once.
#pragma once

#include <QRgb>

#include <cstdint>
#include <cstring>

namespace drafton {

inline QRgb withAlpha(QRgb color, std::uint8_t alpha) {
  return (color & 0xFFFFFFu) | QRgb{alpha} << 24;
}

/// Goes the part `ink` / 256 of the way from one colour to another.
inline QRgb mixed(QRgb from, QRgb to, unsigned ink) {
  constexpr QRgb kOdd = 0xFF00FFu;
  const QRgb low = (from & kOdd) * (256 - ink) + (to & kOdd) * ink;
  const QRgb high = (from >> 8 & kOdd) * (256 - ink) + (to >> 8 & kOdd) * ink;
  return (low >> 8 & kOdd) | (high & ~kOdd);
}

/// Two pixels that are mixed with the same colour in one go.
class PixelPair {
 public:
  explicit PixelPair(QRgb color)
    : m_color(widened(color, color)) {}

  void mix(QRgb* first, QRgb* second, unsigned firstInk, unsigned secondInk) const {
    store(first, second, result(widened(*first, *second), firstInk, secondInk));
  }
  /// The same for neighbours.
  void mixNext(QRgb* first, unsigned firstInk, unsigned secondInk) const {
    mix(first, first + 1, firstInk, secondInk);
  }

 private:
  using Bytes [[gnu::vector_size(8)]] = std::uint8_t;
  using Words [[gnu::vector_size(16)]] = std::uint16_t;
  using Halves [[gnu::vector_size(16)]] = std::uint64_t;

  static Words widened(QRgb first, QRgb second) {
    const std::uint64_t both = first | std::uint64_t{second} << 32;
    Bytes bytes;
    std::memcpy(&bytes, &both, sizeof(bytes));
    return __builtin_convertvector(bytes, Words);
  }
  static void store(QRgb* first, QRgb* second, Words words) {
    const Bytes bytes = __builtin_convertvector(words, Bytes);
    std::uint64_t both;
    std::memcpy(&both, &bytes, sizeof(both));
    *first = static_cast<QRgb>(both);
    *second = static_cast<QRgb>(both >> 32);
  }
  Words result(Words before, unsigned firstInk, unsigned secondInk) const {
    constexpr std::uint64_t kEach = 0x0001000100010001u;
    const Halves halves{firstInk * kEach, secondInk * kEach};
    Words ink;
    std::memcpy(&ink, &halves, sizeof(ink));
    return (before * (256 - ink) + m_color * ink) >> 8;
  }

  Words m_color;
};

} // namespace drafton
