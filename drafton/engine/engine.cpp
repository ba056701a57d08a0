#include "drafton/engine/engine.h"

#include "drafton/engine/clipboard.h"
#include "drafton/engine/drawing_files.h"
#include "drafton/engine/exports.h"
#include "drafton/engine/hatch_settings.h"
#include "drawing/foreign_drawings.h"
#include "frame/file_path.h"
#include "frame/system_services.h"

#include <QStandardPaths>

namespace drafton {
namespace {

Engine* g_engine = nullptr;

OdString defaultDataFolder() {
  return odpath::fromPlatform(
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
      QLatin1String("/drafton"));
}

std::shared_ptr<SettingsStore> openSettings(const OdString& file) {
  return file.isEmpty() ? std::make_shared<SettingsStore>() : std::make_shared<SettingsStore>(file);
}

/// The reactor classes of a host; modules derive theirs from them by name.
void registerReactorClasses() {
  OdRxClass* const base = newOdRxClass(QStringLiteral("OdEditorReactor"), OdRxObject::desc());
  newOdRxClass(QStringLiteral("HostEditorReactor"), base);
}

void unregisterReactorClasses() {
  deleteOdRxClass(HostEditorReactor::desc());
  deleteOdRxClass(OdEditorReactor::desc());
}

} // namespace

Engine::Engine(EngineOptions options, Console& console, InputSource* input)
  : m_options(std::move(options))
  , m_console(console)
  , m_input(input)
  , m_settings(openSettings(m_options.settingsFile))
  , m_application(m_settings, m_owners,
                  m_options.userDataFolder.isEmpty() ? defaultDataFolder()
                                                     : m_options.userDataFolder)
  , m_hatchSettings(kvMake<HatchSettings>().get()) {
  if (g_engine)
    throw OdError(eNotApplicable, QStringLiteral("There is an engine in this process already"));
  keepHostExports();
  registerReactorClasses();
  g_engine = this;
  oddb::setForeignReader(
      [this](const OdString& path) { return readConvertedDrawing(*this, path); });
  m_commands.add(documentCommands());
  m_commands.add(drawingCommands());
  m_commands.add(blockCommands());
  m_services.offer(IHostClipboard::kId, kvMake<Clipboard>().get());
  if (!m_settings->problem().isEmpty()) print(m_settings->problem());
}

Engine::~Engine() {
  cancelAll();
  while (Document* const document = m_documents.current()) m_documents.close(*document);
  m_documents.buryClosed();
  m_modules.unloadAll();
  if (!m_settings->flush()) print(m_settings->problem());
  oddb::setForeignReader({});
  g_engine = nullptr;
  unregisterReactorClasses();
}

Engine* Engine::current() { return g_engine; }

void Engine::run() {
  if (m_isRunning) return;
  m_isRunning = true;
  while (!m_isExiting && step()) m_documents.buryClosed();
  m_documents.buryClosed();
  m_isRunning = false;
  m_settings->flush();
}

void Engine::cancelAll() {
  // A cancel can close documents through a reactor, so each is looked for again.
  for (std::size_t i = 0; i < m_documents.documents().size(); ++i)
    m_documents.documents()[i]->processor().cancel();
  m_ownProcessor.cancel();
  m_keyboard.clear();
}

CommandProcessor& Engine::currentProcessor() {
  Document* const document = m_documents.current();
  return document ? document->processor() : m_ownProcessor;
}

void Engine::textQueued() {
  if (m_input) m_input->inputQueued();
}

bool Engine::loadModule(const OdString& name) {
  const OdString path = m_options.programFolder + u'\\' + name + QLatin1String(".so");
  OdString reason;
  if (!odrxSystemServices()->fileExists(path))
    reason = translated(u"there is no such file");
  else if (m_modules.load(path, &reason))
    return true;
  print(translated(u"The module %1 is not loaded: %2.").arg(odpath::toPlatform(path), reason));
  return false;
}

void Engine::runStartupCommands() {
  for (const OdString& name : m_settings->keys({QStringLiteral("Startup")})) {
    if (m_commands.find(name))
      currentProcessor().run(name, nullptr);
    else
      print(translated(u"The startup command \"%1\" is not known.").arg(name));
  }
}

OdString Engine::commandRouteMap() const {
  const OdString path = m_options.programFolder + QLatin1String("\\command_routes.xml");
  return odrxSystemServices()->fileExists(path) ? path : OdString();
}

} // namespace drafton
