// What a command asks for, and what it gets.
#pragma once

#include "frame/string.h"

#include "drawing/entities/entity.h"

#include <optional>
#include <type_traits>
#include <vector>

namespace drafton {

/// The numbers that a prompt accepts. Others are answered with a message and the prompt again.
enum class NumberRange { kAny, kNotZero, kNotNegative, kPositive };

/// Entities that are shown while the user points about, and are in no drawing.
using PreviewShapes = std::vector<OdDbEntityPtr>;

/// What a command would make of an answer, for a window to show at the cursor. It refers to a
/// callable that takes the answer's value and gives PreviewShapes: a local of the command, which
/// lives while the prompt waits, never a temporary. Where there is no such shape it gives none.
template <class T>
class Preview {
 public:
  Preview() = default;
  template <class Shapes>
  requires(!std::is_same_v<Shapes, Preview>) Preview(const Shapes& shapes)
    : m_shapes(&shapes)
    , m_call([](const void* object, const T& value) -> PreviewShapes {
      return (*static_cast<const Shapes*>(object))(value);
    }) {}
  template <class Shapes>
  requires(!std::is_same_v<Shapes, Preview>) Preview(const Shapes&&)
  = delete;

  explicit operator bool() const { return m_call != nullptr; }
  PreviewShapes operator()(const T& value) const { return m_call(m_shapes, value); }

 private:
  const void* m_shapes = nullptr;
  PreviewShapes (*m_call)(const void* object, const T& value) = nullptr;
};

// Prompts hold views and plain values only: they are built inside `co_await` expressions, where the
// compiler's treatment of temporaries with a destructor is not to be relied on. The texts are
// copied before the command is suspended, so a local OdString may stand behind a view.
//
// `text` is the bare question ("Specify next point"); keywords, default and colon are added:
//   Specify next point or [Close/Undo] <10.0>:
// `keywords` are separated by blanks; the capitals of each are its abbreviation ("Close Undo",
// "eXit", "2P 3P"). Empty input (Enter) gives the default if there is one, else an empty answer if
// `allowEmpty`, else a message and the prompt again.

/// How a window joins a prompt's base with the cursor.
enum class RubberBand {
  kLine,
  kBox,       ///< they are corners
  kSelection, ///< corners of a box that chooses: the direction says how
};

struct PointPrompt {
  QStringView text;
  QStringView keywords = {};
  /// From here polar and distance input is measured, and the window draws a rubber band. Relative
  /// input (`@`) is measured from the document's last point.
  std::optional<OdGePoint3d> base = {};
  bool allowEmpty = false;
  /// What Enter means, to be shown: a keyword of the list, which is then the answer, or words for
  /// an empty answer.
  QStringView enterText = {};
  /// Words that are neither a keyword nor a point are an answer too.
  bool allowText = false;
  RubberBand band = RubberBand::kLine;
  /// The point chooses an entity: a window shows which, and leaves object snaps out.
  bool picks = false;
  /// Of the point.
  Preview<OdGePoint3d> preview = {};
};

/// A number, or a point whose distance from `base` counts (without a base, two points).
struct DistancePrompt {
  QStringView text;
  QStringView keywords = {};
  std::optional<OdGePoint3d> base = {};
  std::optional<double> defaultValue = {};
  NumberRange range = NumberRange::kAny;
  bool allowEmpty = false;
  /// Of the distance.
  Preview<double> preview = {};
};

/// Degrees, or a point seen from `base` (without a base, two points). Default and answer are in
/// radians.
struct AnglePrompt {
  QStringView text;
  QStringView keywords = {};
  std::optional<OdGePoint3d> base = {};
  std::optional<double> defaultValue = {};
  bool allowEmpty = false;
  /// Of the angle in radians.
  Preview<double> preview = {};
};

struct IntegerPrompt {
  QStringView text;
  QStringView keywords = {};
  std::optional<int> defaultValue = {};
  NumberRange range = NumberRange::kAny;
  bool allowEmpty = false;
};

struct RealPrompt {
  QStringView text;
  QStringView keywords = {};
  std::optional<double> defaultValue = {};
  NumberRange range = NumberRange::kAny;
  bool allowEmpty = false;
};

/// What of the drawing a prompt for a text changes.
enum class TextEditing {
  kNone,
  kLine,
  kLines, ///< with formatting codes: `\P` parts the lines
};

struct StringPrompt {
  QStringView text;
  QStringView keywords = {};
  /// A blank belongs to the text and only Enter ends it. Without it a text with blanks is put in
  /// double quotes. In both forms one pair of quotes around the whole text is taken off.
  bool allowBlanks = false;
  std::optional<QStringView> defaultValue = {};
  bool allowEmpty = false;
  /// The default is a text of the drawing that is to be changed: a window shows it where it stands,
  /// and lets it be edited there.
  TextEditing edits = TextEditing::kNone;
  /// The upper left corner of that text.
  std::optional<OdGePoint3d> place = {};
};

struct KeywordPrompt {
  QStringView text;
  QStringView keywords;
  /// A keyword of the list; empty for none.
  QStringView defaultValue = {};
  bool allowEmpty = false;
};

static_assert(std::is_trivially_destructible_v<PointPrompt> &&
              std::is_trivially_destructible_v<DistancePrompt> &&
              std::is_trivially_destructible_v<StringPrompt>);

/// The answer to a prompt. There is none for a cancelled prompt: the command ends there.
template <class T>
struct Answer {
  enum class Kind { kValue, kKeyword, kEmpty, kText };

  Kind kind = Kind::kEmpty;
  T value{};
  /// The chosen keyword as it stands in the prompt's list, such as "Close".
  OdString keyword;
  /// What was typed where a point prompt takes texts.
  OdString text;
  /// A point that was typed without z, and so stands at the current elevation.
  bool isFlat = false;

  bool isText() const { return kind == Kind::kText; }
  bool isValue() const { return kind == Kind::kValue; }
  bool isEmpty() const { return kind == Kind::kEmpty; }
  bool is(QStringView word) const { return kind == Kind::kKeyword && keyword == word; }
};

} // namespace drafton
