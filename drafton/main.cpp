#include "drafton/batch/batch_run.h"
#include "drafton/previews/offscreen_application.h"
#include "frame/file_path.h"

int main(int argc, char** argv) {
  const drafton::OffscreenApplication application(argc, argv);
  return drafton::runProgram(QCoreApplication::arguments().mid(1),
                             odpath::fromPlatform(QCoreApplication::applicationDirPath()));
}
