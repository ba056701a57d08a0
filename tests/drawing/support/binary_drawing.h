// Binary drawings for tests.
#pragma once

#include <QByteArray>
#include <QList>

#include <cstdint>

/// The binary form of a drawing in text; with codes of one byte as files of R12 have them.
inline QByteArray binaryDrawing(const QByteArray& text, bool shortCodes = false) {
  QByteArray bytes("AutoCAD Binary DXF\r\n\x1A\0", 22);
  const auto number = [&](auto value) {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
  };
  const QList<QByteArray> lines = text.split('\n');
  for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
    const int code = lines[i].trimmed().toInt();
    const QByteArray value = lines[i + 1];
    if (!shortCodes)
      number(static_cast<std::int16_t>(code));
    else if (code < 255)
      number(static_cast<std::uint8_t>(code));
    else {
      number(std::uint8_t{255});
      number(static_cast<std::int16_t>(code));
    }
    const auto in = [&](int first, int last) { return code >= first && code <= last; };
    if (in(10, 59) || in(110, 149) || in(210, 239) || in(460, 469) || in(1010, 1059)) {
      number(value.toDouble());
    } else if (in(60, 79) || in(170, 179) || in(270, 289) || in(370, 389) || in(400, 409) ||
               in(1060, 1070)) {
      number(value.toShort());
    } else if (in(90, 99) || in(420, 429) || in(440, 459) || code == 1071) {
      number(static_cast<std::int32_t>(value.toInt()));
    } else if (in(290, 299)) {
      number(static_cast<std::int8_t>(value.toInt()));
    } else if (in(310, 319) || code == 1004) {
      const QByteArray raw = QByteArray::fromHex(value);
      number(static_cast<std::uint8_t>(raw.size()));
      bytes.append(raw);
    } else {
      bytes.append(value).append('\0');
    }
  }
  return bytes;
}
