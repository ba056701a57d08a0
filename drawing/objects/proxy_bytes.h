// Reads the bytes of a picture that a program left behind of its entities. Not for use outside of
// the library.
#pragma once

#include "drawing/geometry/geometry.h"
#include "frame/string.h"

#include <QByteArrayView>
#include <QStringDecoder>
#include <QtEndian>

#include <bit>
#include <vector>

namespace oddb {

/// Reads values one after the other; what is not there is 0 and sets failed().
class ProxyBytes {
 public:
  /// Plain texts stand in `encoding`.
  explicit ProxyBytes(QByteArrayView bytes, QByteArray encoding = "UTF-8")
    : m_bytes(bytes)
    , m_encoding(std::move(encoding)) {}

  bool failed() const { return m_failed; }
  qsizetype left() const { return m_bytes.size() - m_at; }

  std::int32_t integer() { return take<std::int32_t>(); }
  double real() {
    const double value = std::bit_cast<double>(take<std::uint64_t>());
    if (std::isfinite(value)) return value;
    m_failed = true;
    return 0;
  }
  OdGePoint3d point() {
    const double x = real();
    const double y = real();
    return {x, y, real()};
  }
  OdGeVector3d vector() { return point().asVector(); }
  /// Points whose number stands in front.
  std::vector<OdGePoint3d> points() {
    const std::int32_t count = integer();
    std::vector<OdGePoint3d> all;
    if (!hasPoints(count)) return all;
    all.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) all.push_back(point());
    return all;
  }
  /// False, and failed, if fewer points are left.
  bool hasPoints(std::int64_t count) {
    constexpr qsizetype kPointSize = 24;
    if (count < 0 || count > left() / kPointSize) m_failed = true;
    return !m_failed;
  }
  /// Text up to its end mark, filled up to four bytes.
  OdString text() {
    const qsizetype start = m_at;
    while (left() > 0 && m_bytes[m_at] != '\0') ++m_at;
    QStringDecoder decoder(m_encoding.constData());
    if (!decoder.isValid()) decoder = QStringDecoder(QStringDecoder::Latin1);
    const OdString found = decoder.decode(m_bytes.sliced(start, m_at - start));
    skipTo(start, m_at - start + 1);
    return found;
  }
  /// The same of characters of two bytes.
  OdString wideText() {
    OdString found;
    const qsizetype start = m_at;
    while (left() >= 2) {
      const QChar c(take<std::uint16_t>());
      if (c.isNull()) break;
      found += c;
    }
    skipTo(start, m_at - start);
    return found;
  }

 private:
  template <class T>
  T take() {
    constexpr auto kSize = static_cast<qsizetype>(sizeof(T));
    if (left() < kSize) {
      m_failed = true;
      return 0;
    }
    const T value = qFromLittleEndian<T>(m_bytes.data() + m_at);
    m_at += kSize;
    return value;
  }
  void skipTo(qsizetype start, qsizetype size) {
    m_at = std::min(start + (size + 3) / 4 * 4, m_bytes.size());
  }

  QByteArrayView m_bytes;
  QByteArray m_encoding;
  qsizetype m_at = 0;
  bool m_failed = false;
};

} // namespace oddb
