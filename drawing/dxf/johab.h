// The Korean code page in which syllables are put together from their letters.
#pragma once

#include "frame/string.h"

#include <QByteArray>

namespace oddxf {

/// Its name among the encodings.
constexpr char kJohab[] = "Johab";

/// The text of bytes in that code page; `bad` is set if some of them are no characters, in whose
/// place stands a replacement character.
OdString fromJohab(QByteArrayView bytes, bool& bad);
/// The bytes of a text; empty if it has a character that the code page lacks.
QByteArray toJohab(QStringView text);

} // namespace oddxf
