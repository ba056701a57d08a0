// The formatting codes of MTEXT.
#pragma once

#include "drawing/mtext/format.h"

namespace odmtext {

/// Splits a text with formatting codes into pieces. `start` is how the text begins, its height
/// included; a paragraph's lengths come multiplied by that height. Codes that are none are text;
/// braces that do not close close at the end.
std::vector<OdMTextPiece> parse(const OdString& contents, const OdMTextFormat& start);

/// The text without codes; paragraphs end with a line break, stacks are "1/2".
OdString plainText(const OdString& contents);

/// A text as contents that show it: escapes what would be a code, line breaks as paragraphs.
OdString escaped(const OdString& plain);

} // namespace odmtext
