#include "drawing/mtext/text_codes.h"

#include <QStringDecoder>

namespace {

/// The signs that have letters.
struct Sign {
  char16_t letter;
  char16_t sign;
};
constexpr Sign kSigns[] = {{u'c', u'\u00D8'}, {u'd', u'\u00B0'}, {u'p', u'\u00B1'}, {u'%', u'%'}};

/// Code pages of \M+NXXXX by N.
constexpr const char* kMultiByte[] = {nullptr, "Shift_JIS", "Big5", "EUC-KR", "Johab", "GBK"};

struct Switch {
  char16_t letter;
  bool OdTextPiece::*on;
};
constexpr Switch kSwitches[] = {{u'u', &OdTextPiece::underlined},
                                {u'o', &OdTextPiece::overlined},
                                {u'k', &OdTextPiece::struckThrough}};

char16_t small(QChar c) { return c.toLower().unicode(); }

/// The number that stands as digits of a base; -1 if there are too few.
int number(const OdString& text, qsizetype at, int digits, int base) {
  const QStringView view = QStringView(text).mid(at, digits);
  bool ok = false;
  const int value = view.size() == digits && !view.startsWith(u'+') && !view.startsWith(u'-')
                        ? view.toInt(&ok, base)
                        : -1;
  return ok ? value : -1;
}

class Reader {
 public:
  explicit Reader(const OdString& text)
    : m_text(text) {}

  std::vector<OdTextPiece> pieces() {
    while (m_at < m_text.size()) readOne();
    flush();
    return m_pieces;
  }

 private:
  void readOne() {
    const QChar c = m_text[m_at];
    if (c == u'%' && m_at + 2 < m_text.size() && m_text[m_at + 1] == u'%' && readCode()) return;
    if (c == u'\\')
      if (const OdString special = odtext::escapedCharacter(m_text, m_at); !special.isEmpty()) {
        m_now.text += special;
        return;
      }
    if (c == u'^' && m_at + 1 < m_text.size()) {
      // A caret and a letter are a control character, of which only the tab leaves a trace.
      const QChar next = m_text[m_at + 1];
      if (next == u' ' || (next >= u'@' && next <= u'_')) {
        m_now.text += next == u' ' ? QLatin1Char('^') : QLatin1Char(' ');
        m_at += 2;
        return;
      }
    }
    m_now.text += c;
    ++m_at;
  }

  bool readCode() {
    const QChar code = m_text[m_at + 2];
    for (const Sign& s : kSigns)
      if (small(code) == s.letter) {
        m_now.text += QChar(s.sign);
        m_at += 3;
        return true;
      }
    for (const Switch& s : kSwitches)
      if (small(code) == s.letter) {
        flush();
        m_now.*s.on = !(m_now.*s.on);
        m_at += 3;
        return true;
      }
    if (const int value = number(m_text, m_at + 2, 3, 10); value > 0) {
      m_now.text += QChar(static_cast<ushort>(value));
      m_at += 5;
      return true;
    }
    return false;
  }

  void flush() {
    if (m_now.text.isEmpty()) return;
    m_pieces.push_back(m_now);
    m_now.text.clear();
  }

  const OdString& m_text;
  qsizetype m_at = 0;
  OdTextPiece m_now;
  std::vector<OdTextPiece> m_pieces;
};

} // namespace

std::vector<OdTextPiece> odtext::pieces(const OdString& text) { return Reader(text).pieces(); }

OdString odtext::plain(const OdString& text) {
  OdString all;
  for (const OdTextPiece& piece : pieces(text)) all += piece.text;
  return all;
}

OdString odtext::escapedCharacter(const OdString& text, qsizetype& at) {
  const QStringView rest = QStringView(text).mid(at);
  if (rest.startsWith(QLatin1String("\\U+"), Qt::CaseInsensitive)) {
    const int unit = number(text, at + 3, 4, 16);
    if (unit <= 0) return {};
    at += 7;
    return QChar(static_cast<ushort>(unit));
  }
  if (rest.startsWith(QLatin1String("\\M+"), Qt::CaseInsensitive)) {
    const int page = number(text, at + 3, 1, 10);
    const int value = number(text, at + 4, 4, 16);
    if (page < 1 || page > 5 || value < 0) return {};
    QStringDecoder decoder(kMultiByte[page]);
    if (!decoder.isValid()) return {};
    const char bytes[] = {static_cast<char>(value >> 8), static_cast<char>(value & 0xFF)};
    const OdString decoded = decoder.decode(QByteArrayView(bytes, 2));
    if (decoder.hasError() || decoded.isEmpty()) return {};
    at += 8;
    return decoded;
  }
  return {};
}
