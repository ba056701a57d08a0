#include "drawing/dxf/johab.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <optional>

namespace {

// A syllable is a set topmost bit and three letters of five bits each. These are the letters by
// their bits: 0 the filler for none, -1 what is no letter, otherwise their number from 1.
using Letters = std::array<int, 32>;
constexpr Letters kInitials = {-1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                               15, 16, 17, 18, 19, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
constexpr Letters kMedials = {-1, -1, 0,  1,  2,  3,  4,  5,  -1, -1, 6,  7,  8,  9,  10, 11,
                              -1, -1, 12, 13, 14, 15, 16, 17, -1, -1, 18, 19, 20, 21, -1, -1};
constexpr Letters kFinals = {-1, 0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14,
                             15, 16, -1, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, -1, -1};
constexpr int kMedialCount = 21;
constexpr int kFinalCount = 28; // with none

constexpr char16_t kFirstSyllable = 0xAC00;
constexpr char16_t kLastSyllable = 0xD7A3;

/// Letters that stand alone, by their numbers less one.
constexpr char16_t kAloneInitials[] =
    u"\u3131\u3132\u3134\u3137\u3138\u3139\u3141\u3142\u3143\u3145"
    u"\u3146\u3147\u3148\u3149\u314A\u314B\u314C\u314D\u314E";
constexpr char16_t kFirstAloneMedial = 0x314F; // all of them follow each other
constexpr char16_t kAloneFinals[] = u"\u3131\u3132\u3133\u3134\u3135\u3136\u3137\u3139\u313A\u313B"
                                    u"\u313C\u313D\u313E\u313F\u3140\u3141\u3142\u3144\u3145\u3146"
                                    u"\u3147\u3148\u314A\u314B\u314C\u314D\u314E";

constexpr unsigned kSyllableMark = 0x8000;
constexpr char16_t kNoLetters = 0x3000; // as wide as a syllable

unsigned bitsOf(const Letters& letters, int number) {
  return static_cast<unsigned>(std::find(letters.begin(), letters.end(), number) - letters.begin());
}

unsigned composed(int initial, int medial, int final) {
  return kSyllableMark | bitsOf(kInitials, initial) << 10 | bitsOf(kMedials, medial) << 5 |
         bitsOf(kFinals, final);
}

/// The syllable or lone letter; 0 if it is none.
char16_t composedText(unsigned code) {
  const int initial = kInitials[code >> 10 & 31];
  const int medial = kMedials[code >> 5 & 31];
  const int final = kFinals[code & 31];
  if (initial < 0 || medial < 0 || final < 0) return 0;
  if (initial > 0 && medial > 0)
    return static_cast<char16_t>(kFirstSyllable +
                                 ((initial - 1) * kMedialCount + medial - 1) * kFinalCount + final);
  if (initial > 0 && final == 0) return kAloneInitials[initial - 1];
  if (initial > 0) return 0;
  if (medial > 0 && final == 0) return static_cast<char16_t>(kFirstAloneMedial + medial - 1);
  if (medial > 0) return 0;
  return final > 0 ? kAloneFinals[final - 1] : kNoLetters;
}

/// A syllable or a letter as bits; nothing for other characters.
std::optional<unsigned> composedCode(char16_t c) {
  if (c >= kFirstSyllable && c <= kLastSyllable) {
    const int number = c - kFirstSyllable;
    return composed(number / (kMedialCount * kFinalCount) + 1,
                    number / kFinalCount % kMedialCount + 1, number % kFinalCount);
  }
  if (c >= kFirstAloneMedial && c < kFirstAloneMedial + kMedialCount)
    return composed(0, c - kFirstAloneMedial + 1, 0);
  const auto in = [c](std::u16string_view all) { return static_cast<int>(all.find(c)) + 1; };
  if (const int initial = in(kAloneInitials); initial > 0) return composed(initial, 0, 0);
  if (const int final = in(kAloneFinals); final > 0) return composed(0, 0, final);
  return std::nullopt;
}

// What is no syllable stands in rows of 94, as in the other Korean code page, two rows a lead byte.
constexpr unsigned kRowEnd = 0x7F;
struct Leads {
  unsigned first, last; // lead bytes
  unsigned row;         // of the first of them
};
constexpr Leads kLeads[] = {{0xD9, 0xDE, 0x21}, {0xE0, 0xF9, 0x4A}};
// Syllables have rows in the other code page, which this one does not use.
constexpr unsigned kHangulRows = 0x30;
constexpr unsigned kLettersRow = 0x24;
constexpr unsigned kLastLetter = 0x53;

const char* otherPage() { return "windows-949"; }

char16_t rowText(unsigned lead, unsigned trail) {
  for (const Leads& leads : kLeads) {
    if (lead < leads.first || lead > leads.last) continue;
    unsigned row = leads.row + 2 * (lead - leads.first);
    unsigned column = 0;
    if (trail >= 0xA1 && trail <= 0xFE) {
      ++row;
      column = trail - 0x80;
    } else if (trail >= 0x91 && trail <= 0xA0) {
      column = trail - 0x22;
    } else if (trail >= 0x31 && trail <= 0x7E) {
      column = trail - 0x10;
    } else {
      return 0;
    }
    // The letters are written as such.
    if (row == kLettersRow && column <= kLastLetter) return 0;
    const char bytes[] = {static_cast<char>(row | 0x80), static_cast<char>(column | 0x80)};
    QStringDecoder decoder(otherPage());
    const OdString text = decoder.decode(QByteArrayView(bytes, 2));
    return decoder.hasError() || text.size() != 1 ? u'\0' : text[0].unicode();
  }
  return 0;
}

/// Two bytes as a number; 0 if there are none.
unsigned rowCode(QChar c) {
  QStringEncoder encoder(otherPage());
  const QByteArray bytes = encoder.encode(QStringView(&c, 1));
  if (encoder.hasError() || bytes.size() != 2) return 0;
  const unsigned row = static_cast<unsigned char>(bytes[0]) & 0x7Fu;
  const unsigned column = static_cast<unsigned char>(bytes[1]) & 0x7Fu;
  const bool isHigh = (bytes[0] & 0x80) != 0 && (bytes[1] & 0x80) != 0;
  if (!isHigh || row < 0x21 || column < 0x21 || column >= kRowEnd) return 0;
  const Leads& leads = kLeads[row < kHangulRows ? 0 : 1];
  if (row < leads.row) return 0;
  const unsigned lead = leads.first + (row - leads.row) / 2;
  if (lead > leads.last) return 0;
  const bool isSecond = (row - leads.row) % 2 != 0;
  const unsigned trail = isSecond ? column + 0x80 : (column < 0x6F ? column + 0x10 : column + 0x22);
  return rowText(lead, trail) == c.unicode() ? lead << 8 | trail : 0;
}

} // namespace

OdString oddxf::fromJohab(QByteArrayView bytes, bool& bad) {
  bad = false;
  OdString text;
  for (qsizetype at = 0; at < bytes.size(); ++at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    if (lead < 0x80) {
      text += QChar(lead);
      continue;
    }
    char16_t c = 0;
    if (at + 1 < bytes.size()) {
      const auto trail = static_cast<unsigned char>(bytes[at + 1]);
      const unsigned code = lead * 256u + trail;
      c = lead < 0xD8 ? composedText(code) : rowText(lead, trail);
      if (c != 0) ++at;
    }
    bad = bad || c == 0;
    text += c != 0 ? QChar(c) : QChar(QChar::ReplacementCharacter);
  }
  return text;
}

QByteArray oddxf::toJohab(QStringView text) {
  QByteArray bytes;
  for (const QChar c : text) {
    if (c.unicode() < 0x80) {
      bytes += static_cast<char>(c.unicode());
      continue;
    }
    unsigned code = composedCode(c.unicode()).value_or(0);
    if (code == 0) code = rowCode(c);
    if (code == 0) return {};
    bytes += static_cast<char>(code >> 8);
    bytes += static_cast<char>(code & 0xFF);
  }
  return bytes;
}
