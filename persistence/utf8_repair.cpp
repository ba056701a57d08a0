#include "persistence/utf8_repair.h"

#include <cstdint>
#include <cstring>
#include <utility>

namespace tc {
namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";

/// The first byte at or behind `p` that is not ASCII.
const char* skipAscii(const char* p, const char* end) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080u;
  while (end - p >= 8) {
    std::uint64_t block;
    std::memcpy(&block, p, sizeof block);
    if (block & kHighBits) break;
    p += 8;
  }
  while (p != end && static_cast<signed char>(*p) >= 0) ++p;
  return p;
}

struct SequenceForm {
  unsigned char firstLead, lastLead;
  int length;
  // The range of the second byte is what shuts out overlong forms, surrogates and numbers beyond
  // U+10FFFF; all further bytes are 80 to BF.
  unsigned char secondLow, secondHigh;
};
constexpr SequenceForm kForms[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the character at `p`, whose first byte is not ASCII; 0 if there is none.
int sequenceLength(const char* p, const char* end) {
  const auto byteAt = [&](int i) { return static_cast<unsigned char>(p[i]); };
  for (const SequenceForm& form : kForms) {
    if (byteAt(0) < form.firstLead || byteAt(0) > form.lastLead) continue;
    if (end - p < form.length) return 0;
    if (byteAt(1) < form.secondLow || byteAt(1) > form.secondHigh) return 0;
    for (int i = 2; i < form.length; ++i)
      if ((byteAt(i) & 0xC0) != 0x80) return 0;
    return form.length;
  }
  return 0;
}

} // namespace

OdTcRepairedText repairUtf8(QByteArray bytes) {
  OdTcRepairedText result;
  const char* const begin = bytes.constData();
  const char* const end = begin + bytes.size();
  const char* copied = begin;
  for (const char* p = skipAscii(begin, end); p != end; p = skipAscii(p, end)) {
    if (const int length = sequenceLength(p, end)) {
      p += length;
      continue;
    }
    if (result.badBytes++ == 0) result.firstBad = p - begin;
    result.text.append(copied, p - copied).append(kReplacement, 3);
    copied = ++p;
  }
  if (result.badBytes == 0)
    result.text = std::move(bytes);
  else
    result.text.append(copied, end - copied);
  return result;
}

} // namespace tc
