#include "drafton/desktop/desktop_run.h"

#include "drafton/desktop/autosave.h"
#include "drafton/desktop/desktop_options.h"
#include "drafton/desktop/first_run.h"
#include "drafton/desktop/language.h"
#include "drafton/desktop/main_window.h"
#include "drafton/desktop/options_dialog.h"
#include "drafton/previews/quiet_decoders.h"
#include "drafton/program/program_setup.h"
#include "drafton/render/text_shapes.h"
#include "frame/file_path.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace drafton {
namespace {

constexpr int kExitNoDisplay = 4;

/// True if the environment names a display. What is behind the name, Qt finds out.
bool hasDisplay() {
  for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  return false;
}

[[noreturn]] void exitWithoutDisplay() {
  std::fputs("drafton: there is no display to open a window on.\n"
             "'drafton batch' works without one; see 'drafton --help'.\n",
             stderr);
  std::_Exit(kExitNoDisplay);
}

/// Qt ends the process where it cannot reach the display.
void handleStartMessage(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type == QtFatalMsg) exitWithoutDisplay();
  if (type != QtDebugMsg && type != QtInfoMsg)
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

EngineOptions engineOptionsFor(const DesktopOptions& options) {
  EngineOptions result;
  result.settingsFile = options.profile.isEmpty() ? defaultProfile() : options.profile;
  result.programFolder = odpath::fromPlatform(QApplication::applicationDirPath());
  return result;
}

/// Puts the catalogs that were asked for in force; without any, brings the samples at the first
/// start. Gives the drawing to begin with, if there is one.
OdString chooseCatalogs(Desktop& desktop, const DesktopOptions& options) {
  if (!options.catalogs) return bringSamples(desktop, QApplication::applicationDirPath());
  desktop.engine().application().overrideSetting(QStringLiteral("ToolPaletteDir"),
                                                 *options.catalogs);
  return {};
}

/// Opens the drawings that were named, or the first one, or else a new one.
void openDrawings(MainWindow& window, Desktop& desktop, QStringList drawings,
                  const OdString& firstDrawing) {
  if (drawings.isEmpty() && !firstDrawing.isEmpty()) drawings << firstDrawing;
  for (const OdString& drawing : drawings) window.files().openFile(drawing);
  if (!desktop.document()) window.files().newDrawing();
}

} // namespace

int runDesktop(int& argc, char** argv) {
  if (!hasDisplay()) exitWithoutDisplay();
  const QtMessageHandler usual = qInstallMessageHandler(handleStartMessage);
  QApplication application(argc, argv);
  qInstallMessageHandler(usual);
  quietDecoders();
  TextShapes::install();
  QApplication::setApplicationName(QStringLiteral("Drafton"));
  QApplication::setApplicationVersion(QStringLiteral(DRAFTON_VERSION));
  const DesktopOptions options = parseDesktopArguments(QApplication::arguments().mid(1));

  Desktop desktop(engineOptionsFor(options));
  Engine& engine = desktop.engine();
  const OdString firstDrawing = chooseCatalogs(desktop, options);
  offerPictures(engine);
  // What people save by hand carries a picture, for palettes and lists of files.
  engine.sessionValues()[QStringLiteral("RASTERPREVIEW")] = std::int32_t{1};

  applyTheme(choiceOption(desktop, "Theme"));
  loadLanguage(QApplication::applicationDirPath(), choiceOption(desktop, "Language"));
  UserDialogs dialogs;
  MainWindow window(desktop, dialogs);
  loadToolPalettes(engine);
  Autosave autosave(desktop,
                    odpath::toPlatform(engine.application().userDataFolder()) +
                        QLatin1String("/recovery"),
                    &window);
  autosave.setInterval(numberOption(desktop, "AutosaveMinutes"));
  window.show();
  for (const OdString& argument : options.unknown)
    engine.print(translated(u"The option %1 is not known.").arg(argument));
  // With the event loop running, since a file that cannot be opened is told in a dialog.
  QTimer::singleShot(0, &window, [&] {
    recover(autosave, dialogs);
    openDrawings(window, desktop, options.drawings, firstDrawing);
    engine.runStartupCommands();
    desktop.input().takeUp();
  });
  return QApplication::exec();
}

} // namespace drafton
