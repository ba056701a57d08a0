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

/// Patterns of files, and of the file beside the program. Both are read when the first one is asked
/// for; of the others the last one is kept, as tools of one file often stand together.
class Patterns {
 public:
  std::optional<OdHatchPattern> operator()(const OdString& name, const OdString& file) {
    const OdString path = pathOf(file);
    if (!path.isEmpty() && path != m_path) {
      m_file = read(path);
      m_path = path;
    }
    const OdHatchPattern* found = path.isEmpty() ? nullptr : m_file.find(name);
    if (!found) {
      if (!m_own) m_own = read(pathOf(QStringLiteral("draftoniso.pat")));
      found = m_own->find(name);
    }
    return found ? std::optional(*found) : std::nullopt;
  }

 private:
  /// A file that is there; the program's folder is looked into for those without one.
  static OdString pathOf(const OdString& file) {
    if (file.isEmpty() || !odpath::isRelative(file)) return file;
    return odpath::fromPlatform(QCoreApplication::applicationDirPath()) + u'\\' + file;
  }
  static OdHatchPatternFile read(const OdString& path) {
    try {
      return OdHatchPatternFile::read(path);
    } catch (const OdFileError&) {
      return {}; // without the file there are no patterns to show
    }
  }

  OdString m_path;
  OdHatchPatternFile m_file;
  std::optional<OdHatchPatternFile> m_own;
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
