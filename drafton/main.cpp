#include "drafton/batch/batch_run.h"
#include "frame/file_path.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  return drafton::runProgram(QCoreApplication::arguments().mid(1),
                             odpath::fromPlatform(QCoreApplication::applicationDirPath()));
}
