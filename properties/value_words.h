// The words that stand for values which an object takes from elsewhere.
#pragma once

#include <QStringView>

namespace tc {

inline constexpr QStringView kByLayer = u"ByLayer";
inline constexpr QStringView kByBlock = u"ByBlock";
inline constexpr QStringView kByDefault = u"ByDefault"; ///< of line weights alone
inline constexpr QStringView kContinuous = u"Continuous";

/// The word that a stored text means, in any case, or null: ByLayer, ByBlock or ByDefault. Palettes
/// from other programs can hold the words of the language in which they were written.
QStringView storedWord(QStringView text);

} // namespace tc
