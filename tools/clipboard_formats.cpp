#include "tools/clipboard_formats.h"

#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/clipboard.h"
#include "host/clipboard_payload.h"
#include "host/host_locator.h"

namespace tc {
namespace {

int numberOf(const KVPtr<IHostClipboard>& clipboard, QStringView name) {
  // The host keeps the name for longer than the library stays.
  return clipboard->registerFormat(host::ownText(name.toString()));
}

} // namespace

void registerClipboardFormats() {
  if (const KVPtr<IHostClipboard> clipboard = host::service<IHostClipboard>())
    for (const QStringView name : kClipboardFormats) numberOf(clipboard, name);
}

OdString drawingOfPayload(const QByteArray& bytes) {
  const OdString name = hostclipboard::fromBytes(bytes).drawing;
  return name.isEmpty() ? OdString() : odpath::fromPlatform(name);
}

OdString drawingOnClipboard() {
  const KVPtr<IHostClipboard> clipboard = host::service<IHostClipboard>();
  if (!clipboard) return {};
  for (const QStringView name : kClipboardFormats) {
    const OdString path = drawingOfPayload(clipboard->data(numberOf(clipboard, name)));
    if (!path.isEmpty() && odrxSystemServices()->fileExists(path)) return path;
  }
  return {};
}

} // namespace tc
