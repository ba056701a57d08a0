#include "drafton/engine/input_request.h"

#include "drafton/engine/snap_kinds.h"
#include "drafton/engine/translator.h"

#include <cmath>

namespace drafton {
namespace {

/// What a prompt of each kind says to input that it cannot use, and to none.
struct KindTexts {
  InputRequest::Kind kind;
  const char16_t* invalid;
  const char16_t* missing;
};

using Kind = InputRequest::Kind;

constexpr KindTexts kTexts[] = {
    {Kind::kPoint, u"Invalid point.", u"A point is needed."},
    {Kind::kDistance, u"Invalid distance: a number or a point is needed.",
     u"A distance is needed: a number or a point."},
    {Kind::kAngle, u"Invalid angle: degrees or a point are needed.",
     u"An angle is needed: degrees or a point."},
    {Kind::kInteger, u"Invalid whole number.", u"A whole number is needed."},
    {Kind::kReal, u"Invalid number.", u"A number is needed."},
    {Kind::kString, u"Invalid text.", u"A text is needed."},
    {Kind::kKeyword, u"Invalid option.", u"An option is needed."},
};

/// Of a text that is to be changed; the prompt is one line.
constexpr qsizetype kLongestShown = 60;

struct RangeText {
  NumberRange range;
  const char16_t* refusal;
};

constexpr RangeText kRanges[] = {
    {NumberRange::kNotZero, u"The value must not be zero."},
    {NumberRange::kNotNegative, u"The value must not be negative."},
    {NumberRange::kPositive, u"The value must be greater than zero."},
};

const KindTexts& textsOf(Kind kind) {
  for (const KindTexts& row : kTexts)
    if (row.kind == kind) return row;
  return kTexts[0];
}

OdString unquoted(const OdString& word) {
  const bool quoted = word.size() >= 2 && word.startsWith(u'"') && word.endsWith(u'"');
  return quoted ? word.mid(1, word.size() - 2) : word;
}

} // namespace

InputRequest::InputRequest(const PointPrompt& prompt)
  : InputRequest(Kind::kPoint, prompt.text, prompt.keywords,
                 prompt.allowEmpty || !prompt.enterText.isEmpty()) {
  m_base = prompt.base;
  m_allowText = prompt.allowText;
  m_band = prompt.band;
  m_picks = prompt.picks || prompt.band == RubberBand::kSelection;
  m_pointPreview = prompt.preview;
  m_shownDefault = prompt.enterText.toString();
  if (m_keywords.words().contains(m_shownDefault)) {
    m_enterKeyword = m_shownDefault;
    m_shownDefault = m_keywords.shownWord(m_enterKeyword);
  } else if (!m_shownDefault.isEmpty()) {
    m_shownDefault = translated(m_shownDefault);
  }
}

InputRequest::InputRequest(const DistancePrompt& prompt)
  : InputRequest(Kind::kDistance, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_base = prompt.base;
  m_numberPreview = prompt.preview;
  m_range = prompt.range;
  if (!prompt.defaultValue) return;
  m_default = *prompt.defaultValue;
  m_shownDefault = shownReal(*prompt.defaultValue);
}

InputRequest::InputRequest(const AnglePrompt& prompt)
  : InputRequest(Kind::kAngle, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_base = prompt.base;
  m_numberPreview = prompt.preview;
  if (!prompt.defaultValue) return;
  m_default = *prompt.defaultValue;
  m_shownDefault = shownAngle(*prompt.defaultValue);
}

InputRequest::InputRequest(const IntegerPrompt& prompt)
  : InputRequest(Kind::kInteger, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_range = prompt.range;
  if (!prompt.defaultValue) return;
  m_default = *prompt.defaultValue;
  m_shownDefault = OdString::number(*prompt.defaultValue);
}

InputRequest::InputRequest(const RealPrompt& prompt)
  : InputRequest(Kind::kReal, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_range = prompt.range;
  if (!prompt.defaultValue) return;
  m_default = *prompt.defaultValue;
  m_shownDefault = shownReal(*prompt.defaultValue);
}

InputRequest::InputRequest(const StringPrompt& prompt)
  : InputRequest(Kind::kString, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_allowBlanks = prompt.allowBlanks;
  m_editing = prompt.edits;
  m_editedPlace = prompt.place;
  if (!prompt.defaultValue) return;
  m_shownDefault = prompt.defaultValue->toString();
  m_default = m_shownDefault;
  if (m_editing == TextEditing::kNone) return;
  m_editedText = m_shownDefault;
  if (m_shownDefault.size() > kLongestShown)
    m_shownDefault = m_shownDefault.left(kLongestShown) + QStringLiteral("...");
}

InputRequest::InputRequest(const KeywordPrompt& prompt)
  : InputRequest(Kind::kKeyword, prompt.text, prompt.keywords, prompt.allowEmpty) {
  m_enterKeyword = prompt.defaultValue.toString();
  m_shownDefault = m_keywords.shownWord(m_enterKeyword);
}

InputRequest::InputRequest(const OdString& prompt, bool allowBlanks)
  : InputRequest(Kind::kPlainText, prompt, {}, true) {
  m_allowBlanks = allowBlanks;
}

OdString InputRequest::shown() const {
  if (m_kind == Kind::kPlainText) return m_text;
  if (m_snapKinds.value_or(0) != 0)
    return translated(u"%1 of").arg(snapName(SnapKind(*m_snapKinds))) + QStringLiteral(": ");
  if (m_firstPoint) return translated(u"Specify second point") + QStringLiteral(": ");
  OdString text = translated(m_text);
  if (!m_keywords.isEmpty())
    text = (m_kind == Kind::kKeyword ? QStringLiteral("%1 [%2]") : translated(u"%1 or [%2]"))
               .arg(text, m_keywords.shown());
  if (!m_shownDefault.isEmpty()) text += QStringLiteral(" <%1>").arg(m_shownDefault);
  return text + QStringLiteral(": ");
}

bool InputRequest::takesPoints() const {
  return m_kind == Kind::kPoint || m_kind == Kind::kDistance || m_kind == Kind::kAngle;
}

bool InputRequest::isInRange(double value) const {
  switch (m_range) {
  case NumberRange::kAny:
    return true;
  case NumberRange::kNotZero:
    return value != 0;
  case NumberRange::kNotNegative:
    return value >= 0;
  case NumberRange::kPositive:
    return value > 0;
  }
  return true;
}

InputRequest::Outcome InputRequest::refuse(OdString message) {
  m_message = std::move(message);
  return Outcome::kAgain;
}

InputRequest::Outcome InputRequest::acceptValue(Value value) {
  m_value = std::move(value);
  return Outcome::kAnswered;
}

InputRequest::Outcome InputRequest::acceptNumber(double value) {
  if (isInRange(value)) return acceptValue(value);
  for (const RangeText& row : kRanges)
    if (row.range == m_range) return refuse(translated(row.refusal));
  return Outcome::kAgain;
}

InputRequest::Outcome InputRequest::acceptEmpty() {
  if (!m_enterKeyword.isEmpty()) {
    m_keyword = m_enterKeyword;
    return Outcome::kAnswered;
  }
  if (m_default.index() != 0 && !m_firstPoint) return acceptValue(m_default);
  if (m_allowEmpty && !m_firstPoint) return Outcome::kAnswered;
  return refuse(translated(textsOf(m_kind).missing));
}

InputRequest::Outcome InputRequest::accept(const OdString& word, PointOrigins origins) {
  if (m_kind == Kind::kPlainText) return acceptValue(word);
  if (word.isEmpty()) return acceptEmpty();
  if (const std::optional<OdString> keyword = m_keywords.match(word)) {
    m_keyword = *keyword;
    return Outcome::kAnswered;
  }
  if (m_kind == Kind::kString) return acceptValue(unquoted(word));
  if (m_kind == Kind::kInteger) {
    const std::optional<int> number = parseInteger(word);
    if (!number) return refuse(translated(textsOf(m_kind).invalid));
    const Outcome outcome = acceptNumber(*number);
    if (outcome == Outcome::kAnswered) m_value = *number;
    return outcome;
  }
  if (m_kind != Kind::kPoint && m_kind != Kind::kKeyword && !m_firstPoint) {
    const std::optional<double> number =
        m_kind == Kind::kAngle ? parseAngle(word) : parseReal(word);
    if (number) return acceptNumber(*number);
  }
  origins.base = base();
  if (const auto point = takesPoints() ? parsePoint(word, origins) : std::nullopt) {
    // It would lie elsewhere if the elevation were another.
    PointOrigins elsewhere = origins;
    elsewhere.elevation = origins.elevation == 0 ? 1 : 0;
    m_isFlat = point != parsePoint(word, elsewhere);
    return acceptPoint(*point);
  }
  if (m_allowText) return acceptValue(word);
  if (takesPoints() && !m_picks) {
    if (const auto point = parseDistanceToCursor(word, origins)) return acceptPoint(*point);
    if (const std::optional<int> kinds = snapKindsOf(word)) {
      m_snapKinds = kinds;
      return Outcome::kMore;
    }
  }
  return refuse(translated(textsOf(m_kind).invalid));
}

InputRequest::Outcome InputRequest::acceptText(const OdString& text) {
  if (m_kind != Kind::kString) return refuse(translated(textsOf(m_kind).invalid));
  return acceptValue(text);
}

InputRequest::Outcome InputRequest::acceptPoint(const OdGePoint3d& point) {
  if (!takesPoints()) return refuse(translated(textsOf(m_kind).invalid));
  m_answeredPoint = point;
  if (m_kind == Kind::kPoint) return acceptValue(point);
  const std::optional<OdGePoint3d> from = base();
  if (!from) {
    m_firstPoint = point;
    m_snapKinds.reset();
    return Outcome::kMore;
  }
  const OdGeVector3d offset = point - *from;
  if (m_kind == Kind::kDistance) return acceptNumber(offset.length());
  if (offset.x == 0 && offset.y == 0) return refuse(translated(u"The two points must differ."));
  return acceptValue(odgeNormalAngle(std::atan2(offset.y, offset.x)));
}

PreviewShapes InputRequest::preview(const OdGePoint3d& point) const {
  if (m_pointPreview) return m_pointPreview(point);
  const std::optional<OdGePoint3d> from = base();
  if (!m_numberPreview || !from) return {};
  // As the point would be taken, but for the messages.
  InputRequest asked = *this;
  if (asked.acceptPoint(point) == Outcome::kAnswered)
    return m_numberPreview(std::get<double>(asked.m_value));
  // On the base the point tells nothing yet, and what Enter takes is shown.
  const auto* const usual = std::get_if<double>(&m_default);
  return usual && point == *from ? m_numberPreview(*usual) : PreviewShapes();
}

} // namespace drafton
