#include "tools/deferred_command.h"

#include "host/host_locator.h"

#include <array>

namespace tc {

static constexpr std::array kWords = {u"block", u"xref", u"raster"};

const char16_t* deferredWord(DeferredKind kind) { return kWords[static_cast<std::size_t>(kind)]; }

void sendDeferredCommand(DeferredKind kind) {
  IHostDocument* const document = host::curDocument();
  IHostCommandInput* const input = document ? document->commandInput() : nullptr;
  if (!input) return;
  // "^M" is the macro's Enter. The word stands in quotes, and its brackets keep it apart from what
  // a user types by hand.
  input->sendText(
      QStringLiteral("%1^M\"<%2>\" ")
          .arg(OdString::fromUtf16(kExecuteToolCommand), OdString::fromUtf16(deferredWord(kind))));
  input->sendText(host::ownText(QStringLiteral("\n")));
}

} // namespace tc
