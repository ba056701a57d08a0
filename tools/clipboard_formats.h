// Entities of drawings on the clipboard.
#pragma once

#include "frame/string.h"

#include <QByteArray>
#include <QStringView>

#include <array>

namespace tc {

/// The formats in which entities come, the host's own first.
inline constexpr std::array<QStringView, 6> kClipboardFormats = {
    u"kvd_clipbrd.1.0", u"AutoCAD.r19", u"AutoCAD.r18",
    u"AutoCAD.r17",     u"AutoCAD.r16", u"AutoCAD.r15"};

/// Makes the formats known to the system, in their order.
void registerClipboardFormats();

/// The stored path of the temporary drawing that a payload in one of the formats names; empty if it
/// names none. The payload is anybody's bytes.
OdString drawingOfPayload(const QByteArray& bytes);
/// The same for what is on the clipboard: that of the first format whose drawing is there; empty if
/// there is none.
OdString drawingOnClipboard();

} // namespace tc
