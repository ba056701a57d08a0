#include "persistence/document_check.h"

#include "host/host_locator.h"
#include "persistence/document_scanner.h"
#include "persistence/utf8_repair.h"

namespace tc {
namespace {

struct ByteOrder {
  const char* name;
  const char* mark;
  int markLength;
  // Which of the first four bytes of a text in ASCII letters are NUL.
  int nulPattern;
};
// The longer marks come first: the mark of UTF-32 begins with that of UTF-16.
constexpr ByteOrder kOtherEncodings[] = {
    {"UTF-32", "\xFF\xFE\0\0", 4, 0b0111},
    {"UTF-32", "\0\0\xFE\xFF", 4, 0b1110},
    {"UTF-16", "\xFF\xFE", 2, 0b0101},
    {"UTF-16", "\xFE\xFF", 2, 0b1010},
};

/// The name of the encoding if it is one of 16 or 32 bits a character; null otherwise.
const char* wideEncoding(const QByteArray& bytes) {
  int nuls = 0;
  if (bytes.size() >= 4)
    for (int i = 0; i < 4; ++i)
      if (bytes[i] == '\0') nuls |= 8 >> i;
  for (const ByteOrder& order : kOtherEncodings)
    if (bytes.startsWith(QByteArrayView(order.mark, order.markLength)) || nuls == order.nulPattern)
      return order.name;
  return nullptr;
}

OdString placed(const QByteArray& text, qsizetype offset, const OdString& what) {
  qsizetype line = 1, column = 1;
  for (qsizetype i = 0; i < offset; ++i) {
    if (text[i] == '\n') {
      ++line;
      column = 1;
    } else if ((text[i] & 0xC0) != 0x80) { // the later bytes of a character count for nothing
      ++column;
    }
  }
  return host::translate(QStringLiteral("line %1, column %2: %3")).arg(line).arg(column).arg(what);
}

void addRemark(OdString& remarks, const OdString& remark) {
  if (!remarks.isEmpty()) remarks += QStringLiteral("; ");
  remarks += remark;
}

void scanInto(OdTcCheckedDocument& result, const QByteArray& text, const OdTcPassedOver* passedOver,
              const OdTcDeferral& deferral) {
  OdTcDocumentScanner scanner(text, passedOver, deferral);
  const bool isWellFormed = scanner.scan();
  if (!scanner.canDefer()) return scanInto(result, text, passedOver, {});
  if (!isWellFormed) {
    result.refusal = placed(text, scanner.failedAt(), scanner.failure());
    return;
  }
  for (const OdTcDocumentScanner::Remark& remark : scanner.remarks())
    addRemark(result.remark, placed(text, remark.offset, remark.text));
  result.text = scanner.takeText();
  result.deferred = scanner.takeDeferred();
}

} // namespace

OdTcCheckedDocument checkDocument(QByteArray bytes, const OdTcPassedOver* passedOver,
                                  const OdTcDeferral& deferral) {
  OdTcCheckedDocument result;
  if (bytes.isEmpty()) {
    result.refusal = host::translate(QStringLiteral("the file is empty"));
    return result;
  }
  if (const char* encoding = wideEncoding(bytes)) {
    result.refusal = host::translate(QStringLiteral("its text is in %1, and only UTF-8 is read"))
                         .arg(QLatin1String(encoding));
    return result;
  }
  if (const qsizetype nul = bytes.indexOf('\0'); nul >= 0) {
    result.refusal = placed(bytes, nul, host::translate(QStringLiteral("a NUL byte")));
    return result;
  }
  OdTcRepairedText repaired = repairUtf8(bytes);
  if (repaired.badBytes > 0)
    addRemark(result.remark,
              placed(bytes, repaired.firstBad,
                     host::translate(QStringLiteral("bytes that are no UTF-8 (%1 in all)"))
                         .arg(repaired.badBytes)));
  bytes.clear();
  scanInto(result, repaired.text, passedOver, deferral);
  return result;
}

} // namespace tc
