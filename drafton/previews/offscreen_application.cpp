#include "drafton/previews/offscreen_application.h"

#include "drafton/previews/quiet_decoders.h"
#include "drafton/render/text_shapes.h"

namespace drafton {
namespace {

QtMessageHandler g_usualHandler = nullptr;

/// Qt warns of a folder for sockets that sessions without a user lack, and that nobody here needs.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
    g_usualHandler(type, context, text);
}

} // namespace

OffscreenApplication::Environment::Environment() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  g_usualHandler = qInstallMessageHandler(handleMessage);
}

OffscreenApplication::OffscreenApplication(int& argc, char** argv)
  : m_application(argc, argv) {
  quietDecoders();
  prepareThread();
}

void OffscreenApplication::prepareThread() { TextShapes::install(); }

} // namespace drafton
