#include "drafton/batch/batch_run.h"
#include "drafton/render/text_shapes.h"
#include "frame/file_path.h"

#include <QGuiApplication>

namespace {

QtMessageHandler g_usualHandler = nullptr;

/// Qt warns of a folder for sockets that sessions without a user lack, and that nobody here needs.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
    g_usualHandler(type, context, text);
}

} // namespace

int main(int argc, char** argv) {
  // A run without a window needs fonts, but no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  g_usualHandler = qInstallMessageHandler(handleMessage);
  const QGuiApplication application(argc, argv);
  drafton::TextShapes::install();
  return drafton::runProgram(QCoreApplication::arguments().mid(1),
                             odpath::fromPlatform(QCoreApplication::applicationDirPath()));
}
