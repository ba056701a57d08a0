#include "drafton/batch/batch_run.h"

#include "drafton/batch/batch_console.h"
#include "drafton/batch/batch_message_boxes.h"
#include "drafton/batch/script_source.h"
#include "drafton/program/program_setup.h"
#include "drafton/render/image_cache.h"
#include "frame/file_path.h"

#include <QFile>
#include <QFileInfo>

namespace drafton {
namespace {

void printTo(std::FILE* file, const OdString& text) {
  const QByteArray bytes = text.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), file);
}

/// One run from its options to its exit code.
class BatchRun {
 public:
  BatchRun(const BatchOptions& options, const OdString& programFolder)
    : m_options(options)
    , m_programFolder(programFolder) {}

  int run();

 private:
  OdString openScript();
  int runScript(Engine& engine, ScriptSource& script);
  bool openDrawing(Engine& engine);
  bool saveDrawing(Engine& engine);
  bool drawPicture(Engine& engine);
  int failLine(const OdString& failure);
  int failWith(int code, const OdString& text);

  BatchOptions m_options;
  OdString m_programFolder;
  BatchConsole m_console{stdout};
  QFile m_script;
};

int BatchRun::failWith(int code, const OdString& text) {
  // What was shown before the failure stands before it, wherever both go.
  m_console.flush();
  printTo(stderr, QLatin1String("drafton: ") + text + u'\n');
  return code;
}

/// What is wrong with the script; empty once it is open.
OdString BatchRun::openScript() {
  bool isOpen = false;
  if (m_options.script.isEmpty() || m_options.script == QLatin1String("-")) {
    isOpen = m_script.open(stdin, QIODevice::ReadOnly);
  } else {
    if (QFileInfo(m_options.script).isDir()) return translated(u"it is a folder");
    m_script.setFileName(m_options.script);
    isOpen = m_script.open(QIODevice::ReadOnly);
  }
  return isOpen ? OdString() : m_script.errorString();
}

bool BatchRun::openDrawing(Engine& engine) {
  if (m_options.drawing.isEmpty()) {
    engine.documents().newDocument();
    return true;
  }
  try {
    engine.documents().open(odpath::fromPlatform(QFileInfo(m_options.drawing).absoluteFilePath()));
    return true;
  } catch (const OdFileError& error) {
    failWith(kExitDrawing,
             translated(u"%1 cannot be opened: %2").arg(m_options.drawing, error.reason()));
    return false;
  }
}

bool BatchRun::saveDrawing(Engine& engine) {
  Document* const document = engine.documents().current();
  if (!document) {
    failWith(kExitDrawing, translated(u"%1 is not saved: no drawing is open").arg(m_options.out));
    return false;
  }
  const OdString path = odpath::fromPlatform(QFileInfo(m_options.out).absoluteFilePath());
  if (const QStringList lost = document->lostBySaving(); !lost.isEmpty()) {
    failWith(kExitDrawing,
             translated(u"%1 is not saved: %2 holds content that Drafton cannot write (%3). The "
                        u"command SaveAs saves without it.")
                 .arg(m_options.out, document->name(), lost.join(QStringLiteral(", "))));
    return false;
  }
  if (odpath::samePlace(path, document->path()) && document->database()->isFileChangedByOthers() &&
      QFileInfo::exists(m_options.out)) {
    failWith(kExitDrawing,
             translated(u"%1 is not saved: another program has changed it since it was opened")
                 .arg(m_options.out));
    return false;
  }
  if (!m_options.dxfVersion.isEmpty())
    document->variables()->set(QStringLiteral("DXFVERSION"), m_options.dxfVersion);
  try {
    document->save(path);
  } catch (const OdFileError& error) {
    failWith(kExitDrawing, translated(u"%1 is not saved: %2").arg(m_options.out, error.reason()));
    return false;
  }
  return true;
}

bool BatchRun::drawPicture(Engine& engine) {
  const PictureRequest& request = *m_options.picture;
  const auto fail = [&](const OdString& reason) {
    failWith(kExitDrawing, translated(u"%1 is not drawn: %2").arg(request.file, reason));
    return false;
  };
  Document* const document = engine.documents().current();
  if (!document) return fail(translated(u"no drawing is open"));
  try {
    writePicture(*document->database(), request);
  } catch (const OdFileError& error) {
    return fail(error.reason());
  } catch (const OdError& error) {
    return fail(error.description());
  }
  // The drawing is there all the same.
  for (const OdString& file : ImageCache::instance().takeUnshown())
    failWith(kExitOk,
             translated(u"%1 is no picture that can be shown; its name stands in its place")
                 .arg(odpath::toPlatform(file)));
  return true;
}

int BatchRun::runScript(Engine& engine, ScriptSource& script) {
  while (!script.isEnded() && !engine.isExiting() && script.waitForInput()) engine.run();
  for (const auto& document : engine.documents().documents())
    if (!script.isEnded()) script.missInput(document->processor());
  engine.cancelAll();
  if (script.isEnded()) return failLine(script.failure());
  return script.hasFailed() ? kExitScriptFailed : kExitOk;
}

/// Tells of a line of the script.
int BatchRun::failLine(const OdString& failure) {
  const OdString name = m_options.script.isEmpty() ? QStringLiteral("script") : m_options.script;
  return failWith(kExitScriptFailed, name + QLatin1String(", ") + failure);
}

int BatchRun::run() {
  if (const OdString fault = openScript(); !fault.isEmpty())
    return failWith(kExitScriptFailed,
                    translated(u"%1 cannot be read: %2").arg(m_options.script, fault));
  ScriptSource script(m_script);
  EngineOptions options;
  options.settingsFile = m_options.profile.isEmpty() ? defaultProfile() : m_options.profile;
  options.programFolder = m_programFolder;
  Engine engine(std::move(options), m_console, &script);
  script.setEngine(engine);
  if (m_options.keepsGoing)
    script.keepGoing([this](const OdString& failure) { failLine(failure); });
  if (m_options.catalogs)
    engine.application().overrideSetting(QStringLiteral("ToolPaletteDir"), *m_options.catalogs);
  offerPictures(engine);
  engine.services().offer(IHostMessageBoxes::kId, kvMake<BatchMessageBoxes>(m_console).get());
  if (!openDrawing(engine)) return kExitDrawing;
  loadToolPalettes(engine);
  engine.runStartupCommands();
  m_console.setTroubleHandler([&](const OdString& text) { script.fail(text); });
  const int code = runScript(engine, script);
  m_console.setTroubleHandler({});
  if (script.isEnded()) return code;
  if (!m_options.out.isEmpty() && !saveDrawing(engine)) return kExitDrawing;
  if (m_options.picture && !drawPicture(engine)) return kExitDrawing;
  return code;
}

} // namespace

int runProgram(const QStringList& arguments, const OdString& programFolder) {
  const BatchArguments parsed = parseArguments(arguments);
  switch (parsed.wish) {
  case BatchArguments::Wish::kHelp:
    printTo(stdout, helpText());
    return kExitOk;
  case BatchArguments::Wish::kVersion:
    printTo(stdout, QStringLiteral("drafton " DRAFTON_VERSION "\n"));
    return kExitOk;
  case BatchArguments::Wish::kWrong:
    printTo(stderr, QStringLiteral("drafton: %1\nTry 'drafton --help'.\n").arg(parsed.error));
    return kExitUsage;
  case BatchArguments::Wish::kRun:
    break;
  }
  return BatchRun(parsed.options, programFolder).run();
}

} // namespace drafton
