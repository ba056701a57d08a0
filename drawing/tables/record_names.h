// What names of records are made of.
#pragma once

#include <QStringView>

/// Why a text cannot be the name of a record in a symbol table.
enum class OdDbNameFault : unsigned char { kNone, kEmpty, kTooLong, kSign, kControl, kBlank };

inline constexpr qsizetype kOdDbLongestName = 255;

/// The first fault of a name; `sign` becomes the character that is not allowed (kSign).
inline OdDbNameFault oddbNameFault(QStringView name, QChar* sign = nullptr) {
  constexpr QStringView kForbidden = u"<>/\\\":;?*|,=`";
  if (name.isEmpty()) return OdDbNameFault::kEmpty;
  if (name.size() > kOdDbLongestName) return OdDbNameFault::kTooLong;
  for (const QChar c : name) {
    if (kForbidden.contains(c)) {
      if (sign) *sign = c;
      return OdDbNameFault::kSign;
    }
    if (c.category() == QChar::Other_Control) return OdDbNameFault::kControl;
  }
  return name.trimmed() != name ? OdDbNameFault::kBlank : OdDbNameFault::kNone;
}
