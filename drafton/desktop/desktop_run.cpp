#include "drafton/desktop/desktop_run.h"

#include "drafton/desktop/desktop_options.h"
#include "drafton/desktop/main_window.h"
#include "drafton/program/program_setup.h"
#include "drafton/render/text_shapes.h"
#include "frame/file_path.h"

#include <QApplication>
#include <QTimer>

namespace drafton {
int runDesktop(int& argc, char** argv) {
  QApplication application(argc, argv);
  TextShapes::install();
  QApplication::setApplicationName(QStringLiteral("Drafton"));
  QApplication::setApplicationVersion(QStringLiteral(DRAFTON_VERSION));
  const DesktopOptions options = parseDesktopArguments(QApplication::arguments().mid(1));

  EngineOptions engineOptions;
  engineOptions.settingsFile = options.profile.isEmpty() ? defaultProfile() : options.profile;
  engineOptions.programFolder = odpath::fromPlatform(QApplication::applicationDirPath());
  Desktop desktop(std::move(engineOptions));
  Engine& engine = desktop.engine();
  if (options.catalogs)
    engine.application().overrideSetting(QStringLiteral("ToolPaletteDir"), *options.catalogs);
  offerPictures(engine);

  UserDialogs dialogs;
  MainWindow window(desktop, dialogs);
  loadToolPalettes(engine);
  window.show();
  for (const OdString& argument : options.unknown)
    engine.print(translated(u"The option %1 is not known.").arg(argument));
  // With the event loop running, since a file that cannot be opened is told in a dialog.
  QTimer::singleShot(0, &window, [&] {
    for (const OdString& drawing : options.drawings) window.files().openFile(drawing);
    if (!desktop.document()) window.files().newDrawing();
    engine.runStartupCommands();
    desktop.input().takeUp();
  });
  return QApplication::exec();
}

} // namespace drafton
