#include "drawing/mtext/parser.h"

#include "drawing/geometry/geometry.h"
#include "drawing/mtext/text_codes.h"

#include <algorithm>
#include <span>

bool OdMTextFormat::operator==(const OdMTextFormat& o) const {
  return font == o.font && height == o.height && widthFactor == o.widthFactor &&
         tracking == o.tracking && oblique == o.oblique && underlined == o.underlined &&
         overlined == o.overlined && struckThrough == o.struckThrough &&
         verticalAlign == o.verticalAlign && color.has_value() == o.color.has_value() &&
         (!color || color->color() == o.color->color());
}

namespace {

using Piece = OdMTextPiece;
using Paragraph = OdMTextParagraph;

constexpr double kDegree = kOdaPi / 180;
constexpr QChar kNonBreaking(0xA0);

class Parser {
 public:
  Parser(const OdString& contents, const OdMTextFormat& start)
    : m_text(contents)
    , m_unit(start.height)
    , m_format(start) {}

  std::vector<Piece> pieces() {
    while (m_at < m_text.size()) readOne();
    flush();
    return std::move(m_pieces);
  }

 private:
  /// A code with a letter: true if it was one, and `m_at` stands behind it.
  struct Code {
    char16_t letter;
    bool (Parser::*read)();
  };
  static std::span<const Code> codes();

  void readOne() {
    const QChar c = m_text[m_at];
    if (c == u'\\') {
      readBackslash();
    } else if (c == u'{') {
      flush();
      m_outer.push_back(m_format);
      ++m_at;
    } else if (c == u'}' && !m_outer.empty()) {
      flush();
      m_format = m_outer.back();
      m_outer.pop_back();
      ++m_at;
    } else if (c == u'^' && m_at + 1 < m_text.size()) {
      readCaret();
    } else if (c == u'\n') {
      ++m_at;
      endParagraph();
    } else if (c == u'\t') {
      ++m_at;
      add(Piece::kTab);
    } else if (c == u'\r') {
      ++m_at;
    } else {
      m_now += c;
      ++m_at;
    }
  }

  void readCaret() {
    const QChar next = m_text[m_at + 1];
    m_at += 2;
    if (next == u'I') return add(Piece::kTab);
    if (next == u'J') return endParagraph();
    if (next == u' ') {
      m_now += u'^';
    } else if (next != u'M') {
      m_now += u'^';
      --m_at;
    }
  }

  void readBackslash() {
    if (const OdString special = odtext::escapedCharacter(m_text, m_at); !special.isEmpty()) {
      m_now += special;
      return;
    }
    const qsizetype start = m_at;
    const QChar letter = m_at + 1 < m_text.size() ? m_text[m_at + 1] : QChar();
    if (letter == u'\\' || letter == u'{' || letter == u'}') {
      m_now += letter;
      m_at += 2;
      return;
    }
    m_at += 2;
    for (const Code& code : codes())
      if (code.letter == letter.unicode() && (this->*code.read)()) return;
    // Not a code: it stands for itself.
    m_at = std::min(start + 1, m_text.size());
    m_now += u'\\';
  }

  // --- pieces

  void flush() {
    if (m_now.isEmpty()) return;
    // %% codes hold here, too; their switches have codes of their own in such texts.
    Piece piece;
    piece.text = odtext::plain(m_now);
    m_now.clear();
    put(std::move(piece));
  }

  void put(Piece piece) {
    piece.format = m_format;
    piece.paragraph = m_paragraph;
    m_pieces.push_back(std::move(piece));
  }

  void add(Piece::Kind kind) {
    flush();
    Piece piece;
    piece.kind = kind;
    put(std::move(piece));
  }

  void endParagraph() { add(Piece::kParagraph); }

  // --- arguments

  /// What stands up to the next semicolon; nothing if there is none.
  std::optional<OdString> argument() {
    const qsizetype end = m_text.indexOf(u';', m_at);
    if (end < 0) return std::nullopt;
    const OdString text = m_text.mid(m_at, end - m_at);
    m_at = end + 1;
    return text;
  }

  static std::optional<double> number(QStringView text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
  }

  /// A number, or a factor of the former value with an x behind it. The semicolon may miss.
  bool scaled(double& value, double lowest) {
    qsizetype end = m_at;
    while (end < m_text.size() &&
           (m_text[end].isDigit() || QStringView(u"+-.eE").contains(m_text[end])))
      ++end;
    const auto given = number(QStringView(m_text).mid(m_at, end - m_at));
    if (!given) return false;
    const bool factor = end < m_text.size() && m_text[end].toLower() == u'x';
    const double result = factor ? value * *given : *given;
    if (!(result > lowest)) return false;
    flush();
    value = result;
    m_at = factor ? end + 1 : end;
    if (m_at < m_text.size() && m_text[m_at] == u';') ++m_at;
    return true;
  }

  // --- codes

  bool paragraph() {
    endParagraph();
    return true;
  }
  bool column() {
    add(Piece::kColumn);
    return true;
  }
  bool blank() {
    m_now += kNonBreaking;
    return true;
  }
  template <bool OdMTextFormat::*Member, bool On>
  bool line() {
    flush();
    m_format.*Member = On;
    return true;
  }
  bool height() { return scaled(m_format.height, 0); }
  bool width() { return scaled(m_format.widthFactor, 0); }
  bool tracking() { return scaled(m_format.tracking, 0); }
  bool slant() {
    double degrees = m_format.oblique / kDegree;
    if (!scaled(degrees, -86)) return false;
    m_format.oblique = std::min(degrees, 85.0) * kDegree;
    return true;
  }
  bool align() {
    double value = m_format.verticalAlign;
    if (!scaled(value, -1)) return false;
    m_format.verticalAlign = std::clamp(static_cast<int>(value), 0, 2);
    return true;
  }
  bool colorIndex() {
    double value = 0;
    const qsizetype start = m_at;
    if (!scaled(value, -1) || value > OdCmColor::kACIbyLayer) {
      m_at = start;
      return false;
    }
    m_format.color = OdCmColor::fromColorIndex(static_cast<int>(value));
    return true;
  }
  bool trueColor() {
    double value = 0;
    const qsizetype start = m_at;
    if (!scaled(value, -1) || value > 0xFFFFFF) {
      m_at = start;
      return false;
    }
    // Blue stands highest here.
    const auto bgr = static_cast<std::uint32_t>(value);
    m_format.color =
        OdCmColor::fromRgb(static_cast<std::uint8_t>(bgr), static_cast<std::uint8_t>(bgr >> 8),
                           static_cast<std::uint8_t>(bgr >> 16));
    return true;
  }

  bool font() {
    const qsizetype start = m_at;
    const auto text = argument();
    if (!text || text->isEmpty()) {
      m_at = start;
      return false;
    }
    flush();
    const QStringList parts = text->split(u'|');
    OdGiFont font;
    font.vertical = m_format.font.vertical;
    for (qsizetype i = 1; i < parts.size(); ++i) {
      if (parts[i].compare(QLatin1String("b1"), Qt::CaseInsensitive) == 0) font.bold = true;
      if (parts[i].compare(QLatin1String("i1"), Qt::CaseInsensitive) == 0) font.italic = true;
    }
    // A file has an ending or a big font beside it, a typeface has neither.
    const QStringList files = parts[0].split(u',');
    if (files[0].endsWith(QLatin1String(".shx"), Qt::CaseInsensitive) || files.size() > 1 ||
        m_text[start - 1] == u'F') {
      font.file = files[0];
      font.bigFile = files.value(1);
    } else {
      font.typeface = files[0];
    }
    m_format.font = font;
    return true;
  }

  bool stack() {
    OdString upper, lower;
    OdString* now = &upper;
    Piece piece;
    piece.kind = Piece::kStack;
    qsizetype at = m_at;
    for (; at < m_text.size() && m_text[at] != u';'; ++at) {
      const QChar c = m_text[at];
      if (c == u'\\' && at + 1 < m_text.size()) {
        if (const OdString special = odtext::escapedCharacter(m_text, at); !special.isEmpty()) {
          *now += special;
          --at;
        } else {
          *now += m_text[++at];
        }
        continue;
      }
      constexpr QStringView kMarks = u"/#^";
      if (const qsizetype kind = kMarks.indexOf(c); kind >= 0 && now == &upper) {
        piece.stackKind = static_cast<Piece::StackKind>(kind);
        now = &lower;
        // A blank behind a caret only keeps it from being a control character.
        if (c == u'^' && at + 1 < m_text.size() && m_text[at + 1] == u' ') ++at;
        continue;
      }
      *now += c;
    }
    flush();
    m_at = std::min(at + 1, m_text.size());
    piece.text = odtext::plain(upper);
    piece.below = odtext::plain(lower);
    // Without a mark it is plain text.
    if (now == &upper) piece.kind = Piece::kText;
    put(std::move(piece));
    return true;
  }

  bool paragraphLook() {
    const qsizetype start = m_at;
    const auto text = argument();
    if (!text) {
      m_at = start;
      return false;
    }
    flush();
    bool inTabs = false;
    for (OdString part : text->split(u',')) {
      part = part.trimmed();
      if (part.startsWith(u'x')) part = part.mid(1);
      if (part.isEmpty()) continue;
      readParagraphPart(part, inTabs);
    }
    return true;
  }

  void readParagraphPart(const OdString& part, bool& inTabs) {
    const char16_t first = part[0].unicode();
    const OdString rest = part.mid(1);
    if (first == u't') {
      inTabs = true;
      m_paragraph.tabs.clear();
      return addTab(rest);
    }
    if (inTabs &&
        (part[0].isDigit() || first == u'.' || first == u'c' || first == u'r' || first == u'd'))
      return addTab(part);
    inTabs = false;
    if (first == u'q')
      readAlignment(rest);
    else if (first == u's')
      readSpacing(rest);
    else
      readParagraphLength(first, rest);
  }

  void readAlignment(const OdString& letter) {
    struct Align {
      char16_t letter;
      Paragraph::Align align;
    };
    static constexpr Align kAligns[] = {
        {u'l', Paragraph::kLeft},        {u'c', Paragraph::kCenter},
        {u'r', Paragraph::kRight},       {u'j', Paragraph::kJustified},
        {u'd', Paragraph::kDistributed}, {u'*', Paragraph::kByAttachment}};
    for (const Align& a : kAligns)
      if (!letter.isEmpty() && letter[0].unicode() == a.letter) m_paragraph.align = a.align;
  }

  void readSpacing(const OdString& text) {
    const char16_t kind = text.isEmpty() ? u'*' : text[0].unicode();
    const auto value = number(QStringView(text).mid(1));
    m_paragraph.spacingKind = Paragraph::kAsText;
    if (!value) return;
    if (kind == u'm') m_paragraph.spacingKind = Paragraph::kMultiple;
    if (kind == u'e') m_paragraph.spacingKind = Paragraph::kExact;
    if (kind == u'a') m_paragraph.spacingKind = Paragraph::kAtLeast;
    m_paragraph.spacing = kind == u'm' ? *value : *value * m_unit;
  }

  void readParagraphLength(char16_t letter, const OdString& text) {
    struct Length {
      char16_t letter;
      double Paragraph::*member;
    };
    static constexpr Length kLengths[] = {{u'i', &Paragraph::firstIndent},
                                          {u'l', &Paragraph::leftIndent},
                                          {u'r', &Paragraph::rightIndent},
                                          {u'b', &Paragraph::before},
                                          {u'a', &Paragraph::after}};
    for (const Length& length : kLengths) {
      if (letter != length.letter) continue;
      const auto value = number(text);
      if (value || text == QLatin1String("*"))
        m_paragraph.*length.member = value.value_or(0) * m_unit;
    }
  }

  void addTab(const OdString& text) {
    Paragraph::Tab tab;
    OdString digits = text;
    constexpr QStringView kKinds = u"crd";
    if (const qsizetype kind = text.isEmpty() ? -1 : kKinds.indexOf(text[0]); kind >= 0) {
      tab.kind = static_cast<Paragraph::Tab::Kind>(kind + 1);
      digits = text.mid(1);
    }
    if (const auto value = number(digits)) {
      tab.position = *value * m_unit;
      m_paragraph.tabs.push_back(tab);
    }
  }

  const OdString& m_text;
  double m_unit;
  qsizetype m_at = 0;
  OdString m_now;
  OdMTextFormat m_format;
  Paragraph m_paragraph;
  std::vector<OdMTextFormat> m_outer;
  std::vector<Piece> m_pieces;
};

std::span<const Parser::Code> Parser::codes() {
  static constexpr Code kCodes[] = {
      {u'P', &Parser::paragraph},
      {u'X', &Parser::paragraph},
      {u'N', &Parser::column},
      {u'~', &Parser::blank},
      {u'L', &Parser::line<&OdMTextFormat::underlined, true>},
      {u'l', &Parser::line<&OdMTextFormat::underlined, false>},
      {u'O', &Parser::line<&OdMTextFormat::overlined, true>},
      {u'o', &Parser::line<&OdMTextFormat::overlined, false>},
      {u'K', &Parser::line<&OdMTextFormat::struckThrough, true>},
      {u'k', &Parser::line<&OdMTextFormat::struckThrough, false>},
      {u'f', &Parser::font},
      {u'F', &Parser::font},
      {u'H', &Parser::height},
      {u'h', &Parser::height},
      {u'W', &Parser::width},
      {u'w', &Parser::width},
      {u'Q', &Parser::slant},
      {u'q', &Parser::slant},
      {u'T', &Parser::tracking},
      {u't', &Parser::tracking},
      {u'A', &Parser::align},
      {u'a', &Parser::align},
      {u'C', &Parser::colorIndex},
      {u'c', &Parser::trueColor},
      {u'S', &Parser::stack},
      {u's', &Parser::stack},
      {u'p', &Parser::paragraphLook},
  };
  return kCodes;
}

} // namespace

std::vector<OdMTextPiece> odmtext::parse(const OdString& contents, const OdMTextFormat& start) {
  return Parser(contents, start).pieces();
}

OdString odmtext::plainText(const OdString& contents) {
  OdString plain;
  for (const OdMTextPiece& piece : parse(contents, {})) {
    switch (piece.kind) {
    case OdMTextPiece::kText:
      plain += OdString(piece.text).replace(kNonBreaking, u' ');
      break;
    case OdMTextPiece::kStack:
      plain += piece.text + u'/' + piece.below;
      break;
    case OdMTextPiece::kTab:
      plain += u'\t';
      break;
    case OdMTextPiece::kParagraph:
    case OdMTextPiece::kColumn:
      plain += u'\n';
      break;
    }
  }
  return plain;
}

OdString odmtext::escaped(const OdString& plain) {
  OdString contents;
  for (const QChar c : plain) {
    if (c == u'\\' || c == u'{' || c == u'}') contents += u'\\';
    if (c == u'\n')
      contents += QStringLiteral("\\P");
    else if (c == u'\t')
      contents += QStringLiteral("^I");
    else if (c == u'^')
      contents += QStringLiteral("^ ");
    else if (c != u'\r')
      contents += c;
  }
  return contents;
}
