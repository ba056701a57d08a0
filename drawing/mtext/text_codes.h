// The codes of plain texts.
#pragma once

#include "frame/string.h"

#include <vector>

/// A piece of a plain text, codes resolved.
struct OdTextPiece {
  OdString text;
  bool underlined = false, overlined = false, struckThrough = false;
  bool operator==(const OdTextPiece&) const = default;
};

namespace odtext {

/// Resolves %%c %%d %%p %%% %%nnn, the switches %%u %%o %%k, \U+XXXX, \M+NXXXX and ^I.
std::vector<OdTextPiece> pieces(const OdString& text);
/// The same without the switches.
OdString plain(const OdString& text);

/// The character of an escape that begins at `at` with a backslash (\U+XXXX, \M+NXXXX), with `at`
/// moved behind it; empty if there is none.
OdString escapedCharacter(const OdString& text, qsizetype& at);

} // namespace odtext
