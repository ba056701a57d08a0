// Patterns for names, as users type them.
#pragma once

#include "frame/string.h"

namespace drafton {

/// True if the name fits one of the patterns, which are separated by commas; upper and lower case
/// are the same. In a pattern `*` stands for any characters, `?` for one, `#` for a digit, `@` for
/// a letter, `.` for a character that is neither, `[abc]` and `[a-f]` for one of a set and `[~abc]`
/// for one outside of it; `~` at the start turns the pattern round, and a grave accent takes the
/// special meaning from the character behind it.
bool matchesWildcard(QStringView name, QStringView patterns);

} // namespace drafton
