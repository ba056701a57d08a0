// Pictures whose decoder complains to the user's terminal.
#pragma once

#include "frame/string.h"

namespace tc {

/// False if the bytes begin as a PNG file and are none to the end: cut, or changed on the way. The
/// decoder prints what it thinks of such a file where nobody can keep it from it. True for pictures
/// of other formats.
bool isNoBrokenPng(const QByteArray& bytes);

} // namespace tc
