#include "drawing/dxf/piece_source.h"

#include "drawing/dxf/text.h"

#include <bit>
#include <cstring>

namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);
constexpr std::uint64_t kOnes = 0x0101010101010101;
constexpr std::uint64_t kHighBits = kOnes << 7;

/// The end of the line that begins at `at`; there is one. Lines are short: bytes are looked at by
/// words, which costs less than to call somebody.
const char* lineEnd(const char* at, const char* end) {
  if constexpr (std::endian::native == std::endian::little) {
    for (; end - at >= static_cast<std::ptrdiff_t>(kWord); at += kWord) {
      std::uint64_t word;
      std::memcpy(&word, at, kWord);
      // A byte becomes 0 where a line ends; the lowest one that does has its high bit set below.
      word ^= kOnes * '\n';
      if (const std::uint64_t zeros = (word - kOnes) & ~word & kHighBits; zeros != 0)
        return at + std::countr_zero(zeros) / 8;
    }
  }
  return static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
}

constexpr int kComment = 999;

/// The group code of a line of three characters, which nearly all are, at the lowest bytes of
/// `word`; -1 for others. Blanks may stand before the digits.
int shortCode(std::uint32_t word) {
  // Of digits this leaves their values, of a blank 16, and of the line's end nothing.
  constexpr std::uint32_t kZeros = '\n' << 24 | '0' << 16 | '0' << 8 | '0';
  constexpr std::uint32_t kBlank = ' ' ^ '0';
  word ^= kZeros;
  const std::uint32_t hundreds = word & 0xFF, tens = word >> 8 & 0xFF, ones = word >> 16;
  if (ones > 9) return -1;
  if (tens > 9) return tens == kBlank && hundreds == kBlank ? static_cast<int>(ones) : -1;
  const std::uint32_t low = tens * 10 + ones;
  if (hundreds > 9) return hundreds == kBlank ? static_cast<int>(low) : -1;
  return static_cast<int>(hundreds * 100 + low);
}

/// Reads the group code of the line at `at`, which has an end, and goes behind it. -1 if it is not
/// plain; then `at` stands anywhere in the line.
int plainCode(const char*& at, const char* end) {
  if constexpr (std::endian::native == std::endian::little) {
    std::uint32_t word;
    if (end - at >= static_cast<std::ptrdiff_t>(sizeof word)) {
      std::memcpy(&word, at, sizeof word);
      if (const int code = shortCode(word); code >= 0) {
        at += sizeof word;
        return code;
      }
    }
  }
  // No loop goes beyond the end of the line.
  while (*at == ' ') ++at;
  const char* const digits = at;
  int code = 0;
  constexpr int kDigits = 4;
  for (; *at >= '0' && *at <= '9' && at - digits < kDigits; ++at) code = 10 * code + (*at - '0');
  if (at == digits) return -1;
  if (*at == '\r') ++at;
  return *at++ == '\n' ? code : -1;
}

} // namespace

void OdDbDxfPieceSource::restart(const OdDbDxfPiece& piece) {
  m_at = piece.text.data();
  m_end = m_at + piece.text.size();
  m_line = m_nextLine = piece.line;
}

OdDbDxfSource::Result OdDbDxfPieceSource::next(OdDbDxfTag& tag) {
  if (m_at != m_end) {
    const char* value = m_at;
    const int code = plainCode(value, m_end);
    if (code >= 0 && code != kComment) {
      const char* stop = lineEnd(value, m_end);
      m_at = stop + 1;
      if (stop != value && stop[-1] == '\r') --stop;
      tag.code = code;
      tag.text = {value, static_cast<std::size_t>(stop - value)};
      if (code == 0) tag.text = oddxf::trimmed(tag.text);
      m_line = m_nextLine;
      m_nextLine += 2;
      return kTag;
    }
  }
  m_other.restart({m_at, static_cast<std::size_t>(m_end - m_at)}, m_nextLine);
  const Result result = m_other.next(tag);
  m_at = m_other.place();
  m_line = m_other.line();
  m_nextLine = m_line + 2;
  return result;
}
