// Tools whose work needs a running command of the host.
#pragma once

namespace tc {

/// What a deferred tool asks for; each has its word behind the hidden command.
enum class DeferredKind { kBlock, kXref, kRaster };

/// The name of the hidden command.
inline constexpr char16_t kExecuteToolCommand[] = u"__executetool";
/// The word of a kind: "block", "xref" or "raster".
const char16_t* deferredWord(DeferredKind kind);

/// Types the hidden command with the kind's word into the current document. The request must lie in
/// the command conveyor already. Nothing happens without a document or its command input.
void sendDeferredCommand(DeferredKind kind);

} // namespace tc
