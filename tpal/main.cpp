// The catalog manager's tool.
#include "drafton/icons/icon_service.h"
#include "drafton/previews/offscreen_application.h"
#include "drafton/previews/preview_service.h"
#include "drawing/patterns/pattern_file.h"
#include "frame/error.h"
#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/console_host.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

/// A pattern of the file beside the program, which is read when the first one is asked for.
class Patterns {
 public:
  std::optional<OdHatchPattern> operator()(const OdString& name) {
    if (!m_file) m_file = read();
    const OdHatchPattern* const found = m_file->find(name);
    return found ? std::optional(*found) : std::nullopt;
  }

 private:
  static OdHatchPatternFile read() {
    const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/draftoniso.pat");
    try {
      return OdHatchPatternFile::read(odpath::fromPlatform(path));
    } catch (const OdFileError&) {
      return {}; // without the file there are no patterns to show
    }
  }
  std::optional<OdHatchPatternFile> m_file;
};

bool isTerminal(std::FILE* stream) {
#ifdef _WIN32
  return _isatty(_fileno(stream)) != 0;
#else
  return isatty(fileno(stream)) != 0;
#endif
}

int run(const QStringList& arguments) {
  QTextStream out(stdout);
  QTextStream err(stderr);
  tpal::Console console{out, err, isTerminal(stderr)};
  return tpal::runTool(arguments, console);
}

} // namespace

int main(int argc, char** argv) {
  if (!tpal::makesPictures(QStringList(argv + 1, argv + argc))) {
    const QCoreApplication application(argc, argv);
    return run(QCoreApplication::arguments().mid(1));
  }
  const drafton::OffscreenApplication application(argc, argv);
  tpal::ConsoleHost::instance().setPreviews(kvMake<drafton::PreviewService>(Patterns()).get());
  tpal::ConsoleHost::instance().setPreviewMaker([]() -> KVPtr<IHostPreviewService> {
    drafton::OffscreenApplication::prepareThread();
    return kvMake<drafton::PreviewService>(Patterns()).get();
  });
  tpal::ConsoleHost::instance().setIcons(kvMake<drafton::IconService>().get());
  return run(QCoreApplication::arguments().mid(1));
}
