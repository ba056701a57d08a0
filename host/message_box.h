// What message boxes look like and what they answer.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

#include <cstddef>
#include <span>

/// A style is one number: buttons, a picture and the button that is the default, added up.
namespace messagebox {

inline constexpr unsigned kOk = 0, kOkCancel = 1, kYesNoCancel = 3, kYesNo = 4;
inline constexpr unsigned kError = 0x10, kQuestion = 0x20, kWarning = 0x30, kInformation = 0x40;
inline constexpr unsigned kSecondIsDefault = 0x100, kThirdIsDefault = 0x200;

enum Answer : int { kAnswerOk = 1, kAnswerCancel = 2, kAnswerYes = 6, kAnswerNo = 7 };

/// The picture of a style: one of kError to kInformation, or 0 for none.
constexpr unsigned pictureOf(unsigned style) { return style & 0xF0; }

namespace detail {

struct Buttons {
  unsigned style;
  std::size_t count;
  Answer answers[3];
};
inline constexpr Buttons kButtons[] = {
    {kOk, 1, {kAnswerOk}},
    {kOkCancel, 2, {kAnswerOk, kAnswerCancel}},
    {kYesNoCancel, 3, {kAnswerYes, kAnswerNo, kAnswerCancel}},
    {kYesNo, 2, {kAnswerYes, kAnswerNo}},
};

} // namespace detail

/// What the buttons of a style answer, from the first to the last. An unknown set is that of kOk.
constexpr std::span<const Answer> buttonsOf(unsigned style) {
  for (const detail::Buttons& row : detail::kButtons)
    if (row.style == (style & 0xF)) return {row.answers, row.count};
  return {detail::kButtons[0].answers, 1};
}

/// What the default button of a style answers; the first one, if there is none of that number.
constexpr Answer defaultOf(unsigned style) {
  const std::span<const Answer> buttons = buttonsOf(style);
  const std::size_t number = (style >> 8) & 0xF;
  return buttons[number < buttons.size() ? number : 0];
}

} // namespace messagebox

/// Message boxes in any style. A host without windows need not have it: its IHostMessages shows the
/// texts.
class IHostMessageBoxes : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostMessageBoxes";

  /// Shows a text over the main window, in a style of messagebox, and gives what the user answered.
  virtual messagebox::Answer show(const OdString& text, const OdString& caption,
                                  unsigned style) = 0;

 protected:
  ~IHostMessageBoxes() = default;
};
