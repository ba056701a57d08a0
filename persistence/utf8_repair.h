// Makes valid UTF-8 of any bytes.
#pragma once

#include <QByteArray>

namespace tc {

/// Bytes that a parser may take for UTF-8 without looking twice.
struct OdTcRepairedText {
  QByteArray text;
  /// How many bytes were replaced, and where the first one stood in the original.
  qsizetype badBytes = 0;
  qsizetype firstBad = -1;
};

/// `bytes` themselves if they are valid UTF-8, else a copy in which U+FFFD stands for each byte
/// that belongs to no character. Overlong forms and surrogates are not characters.
OdTcRepairedText repairUtf8(QByteArray bytes);

} // namespace tc
