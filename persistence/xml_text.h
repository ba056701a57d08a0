// Texts of objects as the parser and the printer of documents need them.
#pragma once

#include "frame/variant.h"

#include <string>
#include <string_view>

namespace tc {

/// How 32-bit numbers are written.
enum class OdTcNumberForm { kSigned, kUnsigned };

/// The text form of a value: texts as they are, bool as "-1" and "0", whole numbers in decimal (of
/// a 64-bit number the low 32 bits), reals with six significant digits. Values marked as array or
/// by reference, objects and void have none.
OdString valueText(const OdVariant& value, OdTcNumberForm form);

/// UTF-8 of a text. A NUL, which no document can hold, becomes U+FFFD.
std::string toUtf8(const OdString& text);
/// The text of valid UTF-8, a byte-order mark at its beginning included.
OdString fromUtf8(std::string_view bytes);

/// `utf8` with each "&#x" written as a reference, for a printer that takes it for a reference which
/// somebody has written on purpose and leaves it alone.
std::string withReferencesEscaped(std::string utf8);

/// True if the parser would take the text for white space between elements and forget it.
bool isLostOnParsing(const std::string& utf8);

} // namespace tc
