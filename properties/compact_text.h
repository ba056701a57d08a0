// Texts of which a catalog has very many.
#pragma once

#include "frame/string.h"
#include "persistence/xml_text.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace tc {

/// A text in one block of UTF-8: eight bytes in its owner, and half the block that an OdString
/// needs. Every tool has several texts that are looked at only when it is shown.
class CompactText {
 public:
  CompactText() = default;
  CompactText(const CompactText& other) { assign(other.bytes()); }
  CompactText(CompactText&&) noexcept = default;
  CompactText& operator=(const CompactText& other) {
    if (this != &other) assign(other.bytes());
    return *this;
  }
  CompactText& operator=(CompactText&&) noexcept = default;
  CompactText& operator=(const OdString& text) {
    assign(text.isEmpty() ? QByteArray() : text.toUtf8());
    return *this;
  }

  bool isEmpty() const { return !m_block; }
  OdString toString() const {
    const QByteArrayView text = bytes();
    return fromUtf8(std::string_view(text.data(), static_cast<std::size_t>(text.size())));
  }

 private:
  QByteArrayView bytes() const {
    if (!m_block) return {};
    std::uint32_t size;
    std::memcpy(&size, m_block.get(), sizeof size);
    return {m_block.get() + sizeof size, static_cast<qsizetype>(size)};
  }
  void assign(QByteArrayView text) {
    if (text.isEmpty()) {
      m_block.reset();
      return;
    }
    const auto size = static_cast<std::uint32_t>(text.size());
    std::unique_ptr<char[]> block(new char[sizeof size + size]);
    std::memcpy(block.get(), &size, sizeof size);
    std::memcpy(block.get() + sizeof size, text.data(), size);
    m_block = std::move(block);
  }

  std::unique_ptr<char[]> m_block;
};

} // namespace tc
