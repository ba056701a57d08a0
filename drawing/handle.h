// Handles: the numbers by which objects are known in files.
#pragma once

#include "frame/string.h"

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

/// The number of an object, unique in its drawing and kept for the object's life; 0 is none.
class OdDbHandle {
 public:
  constexpr OdDbHandle() = default;
  constexpr OdDbHandle(std::uint64_t value)
    : m_value(value) {}

  constexpr operator std::uint64_t() const { return m_value; }
  bool isNull() const { return m_value == 0; }
  /// Hexadecimal, in capitals.
  OdString ascii() const { return OdString::number(m_value, 16).toUpper(); }

  /// A handle from its hexadecimal text; nothing if the text is no such number.
  static std::optional<OdDbHandle> fromText(std::string_view text) {
    std::uint64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, value, 16);
    if (error != std::errc() || at != end) return std::nullopt;
    return OdDbHandle(value);
  }

 private:
  std::uint64_t m_value = 0;
};
