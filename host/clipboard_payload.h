// What stands on the clipboard for entities of a drawing.
#pragma once

#include "drawing/handle.h"
#include "frame/string.h"

#include <QByteArray>
#include <QtEndian>

#include <optional>
#include <vector>

/// Entities on their way from a drawing to somewhere else. In bytes: two names of 260 characters in
/// UTF-16, of the temporary drawing and of the one that the entities come from, each ended by a
/// zero; then the number of entities in 32 bits and their handles in 64 bits each. All numbers
/// begin with the lowest byte.
struct HostClipboardPayload {
  OdString drawing; ///< the stored path of a temporary drawing that holds nothing but the entities
  OdString source;  ///< the stored path of the drawing that they come from; may be empty
  std::vector<OdDbHandle> entities; ///< in the source
};

/// Drafton's own clipboard format.
inline constexpr QStringView kHostClipboardFormat = u"kvd_clipbrd.1.0";

namespace hostclipboard {

inline constexpr qsizetype kNameLength = 260;

inline void appendName(QByteArray& bytes, const OdString& name) {
  for (qsizetype i = 0; i < kNameLength; ++i) {
    const char16_t unit = i < name.size() ? name[i].unicode() : u'\0';
    bytes.append(static_cast<char>(unit & 0xFF)).append(static_cast<char>(unit >> 8));
  }
}

inline OdString nameAt(const QByteArray& bytes, qsizetype at) {
  OdString name;
  for (qsizetype i = 0; i < kNameLength && at + 2 * i + 1 < bytes.size(); ++i) {
    const auto unit = qFromLittleEndian<quint16>(bytes.constData() + at + 2 * i);
    if (unit == 0) break;
    name += QChar(unit);
  }
  return name;
}

/// The bytes of a payload; nothing if a name is too long for them.
inline std::optional<QByteArray> toBytes(const HostClipboardPayload& payload) {
  if (payload.drawing.size() >= kNameLength || payload.source.size() >= kNameLength)
    return std::nullopt;
  QByteArray bytes;
  appendName(bytes, payload.drawing);
  appendName(bytes, payload.source);
  const auto append = [&](auto number) {
    char raw[sizeof number];
    qToLittleEndian(number, raw);
    bytes.append(raw, sizeof raw);
  };
  append(static_cast<quint32>(payload.entities.size()));
  for (const OdDbHandle handle : payload.entities) append(static_cast<quint64>(handle));
  return bytes;
}

/// A payload from bytes of anybody's: what they do not hold stays empty.
inline HostClipboardPayload fromBytes(const QByteArray& bytes) {
  HostClipboardPayload payload{nameAt(bytes, 0), nameAt(bytes, 2 * kNameLength), {}};
  qsizetype at = 4 * kNameLength;
  if (at + 4 > bytes.size()) return payload;
  const auto count = qFromLittleEndian<quint32>(bytes.constData() + at);
  at += 4;
  for (quint32 i = 0; i < count && at + 8 <= bytes.size(); ++i, at += 8)
    payload.entities.emplace_back(qFromLittleEndian<quint64>(bytes.constData() + at));
  return payload;
}

} // namespace hostclipboard
