// One question of a command, and how typed words answer it.
#pragma once

#include "drafton/engine/keyword_list.h"
#include "drafton/engine/prompt.h"
#include "drafton/engine/value_parser.h"

#include <variant>

namespace drafton {

/// A prompt that waits for its answer.
class InputRequest {
 public:
  enum class Kind { kPoint, kDistance, kAngle, kInteger, kReal, kString, kKeyword, kPlainText };
  /// An answer of any kind: the point, the number, the text; a keyword beside it.
  using Value = std::variant<std::monostate, OdGePoint3d, double, int, OdString>;

  explicit InputRequest(const PointPrompt& prompt);
  explicit InputRequest(const DistancePrompt& prompt);
  explicit InputRequest(const AnglePrompt& prompt);
  explicit InputRequest(const IntegerPrompt& prompt);
  explicit InputRequest(const RealPrompt& prompt);
  explicit InputRequest(const StringPrompt& prompt);
  explicit InputRequest(const KeywordPrompt& prompt);
  /// A text that a module asks for: the prompt is shown as it stands and the text is given as it
  /// was typed.
  InputRequest(const OdString& prompt, bool allowBlanks);

  Kind kind() const { return m_kind; }
  /// True if a blank belongs to the answer.
  bool takesBlanks() const { return m_allowBlanks; }
  /// True if a word in double quotes may hold blanks.
  bool takesQuotes() const { return m_kind == Kind::kString; }
  /// The prompt as it is shown.
  OdString shown() const;
  const KeywordList& keywords() const { return m_keywords; }
  /// From where the window draws its rubber band.
  std::optional<OdGePoint3d> base() const { return m_firstPoint ? m_firstPoint : m_base; }

  RubberBand band() const { return m_band; }
  /// The bits of SnapKind that the user has asked for at this point; none if those count that are
  /// on.
  std::optional<int> snapKinds() const { return m_snapKinds; }
  /// True if the point chooses entities.
  bool picks() const { return m_picks; }
  /// What of the drawing the answer changes.
  TextEditing editing() const { return m_editing; }
  /// The text that is to be changed.
  const OdString& editedText() const { return m_editedText; }
  /// The upper left corner of the text that is to be changed.
  const std::optional<OdGePoint3d>& editedPlace() const { return m_editedPlace; }
  /// True if a point answers it.
  bool takesPoints() const;
  /// What the command would make of a point, had it been given; empty if it shows nothing.
  PreviewShapes preview(const OdGePoint3d& point) const;

  enum class Outcome {
    kAnswered,
    kAgain, ///< not accepted: message() tells why
    kMore,  ///< taken, but the point is still to come: behind a word for a snap, or a first point
  };
  /// Takes one typed word; `word` is empty for Enter alone. The base of `origins` is the prompt's.
  Outcome accept(const OdString& word, PointOrigins origins);
  /// Takes a point that was clicked.
  Outcome acceptPoint(const OdGePoint3d& point);
  /// Takes a text as it stands, for a prompt for texts: no quotes are taken off, and an empty one
  /// stands for itself.
  Outcome acceptText(const OdString& text);
  const OdString& message() const { return m_message; }

  /// The answer once it is there.
  template <class T>
  Answer<T> answer() const {
    Answer<T> result;
    if (!m_keyword.isEmpty()) {
      result.kind = Answer<T>::Kind::kKeyword;
      result.keyword = m_keyword;
    } else if (const T* value = std::get_if<T>(&m_value)) {
      result.kind = Answer<T>::Kind::kValue;
      result.value = *value;
      result.isFlat = m_isFlat;
    } else if (const OdString* text = std::get_if<OdString>(&m_value)) {
      result.kind = Answer<T>::Kind::kText;
      result.text = *text;
    }
    return result;
  }
  /// The point that was given as the answer, if it was one.
  std::optional<OdGePoint3d> answeredPoint() const { return m_answeredPoint; }

 private:
  InputRequest(Kind kind, QStringView text, QStringView keywords, bool allowEmpty)
    : m_kind(kind)
    , m_text(text.toString())
    , m_keywords(keywords)
    , m_allowEmpty(allowEmpty) {}

  Outcome refuse(OdString message);
  Outcome acceptEmpty();
  Outcome acceptNumber(double value);
  Outcome acceptValue(Value value);
  bool isInRange(double value) const;

  Kind m_kind;
  OdString m_text;
  KeywordList m_keywords;
  std::optional<OdGePoint3d> m_base;
  std::optional<OdGePoint3d> m_firstPoint;
  NumberRange m_range = NumberRange::kAny;
  bool m_allowBlanks = false;
  bool m_allowEmpty = false;
  bool m_allowText = false;
  RubberBand m_band = RubberBand::kLine;
  bool m_picks = false;
  TextEditing m_editing = TextEditing::kNone;
  OdString m_editedText;
  std::optional<OdGePoint3d> m_editedPlace;
  std::optional<int> m_snapKinds;
  Preview<OdGePoint3d> m_pointPreview;
  Preview<double> m_numberPreview;
  OdString m_enterKeyword;
  Value m_default;
  OdString m_shownDefault;

  Value m_value;
  OdString m_keyword;
  std::optional<OdGePoint3d> m_answeredPoint;
  bool m_isFlat = false;
  OdString m_message;
};

} // namespace drafton
