#include "drafton/batch/batch_run.h"
#include "drafton/render/text_shapes.h"
#include "frame/file_path.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
  // A run without a window needs fonts, but no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  drafton::TextShapes::install();
  return drafton::runProgram(QCoreApplication::arguments().mid(1),
                             odpath::fromPlatform(QCoreApplication::applicationDirPath()));
}
