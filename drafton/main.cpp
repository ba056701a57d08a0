#include "drafton/batch/batch_run.h"
#include "drafton/desktop/desktop_run.h"
#include "drafton/previews/offscreen_application.h"
#include "frame/file_path.h"

#include <cstring>

namespace {

/// The program with a window, unless the first argument asks for one of the others.
bool wantsWindow(int argc, char** argv) {
  if (argc < 2) return true;
  for (const char* const other : {"batch", "--help", "-h", "--version"})
    if (std::strcmp(argv[1], other) == 0) return false;
  return true;
}

} // namespace

int main(int argc, char** argv) {
  if (wantsWindow(argc, argv)) return drafton::runDesktop(argc, argv);
  const drafton::OffscreenApplication application(argc, argv);
  return drafton::runProgram(QCoreApplication::arguments().mid(1),
                             odpath::fromPlatform(QCoreApplication::applicationDirPath()));
}
