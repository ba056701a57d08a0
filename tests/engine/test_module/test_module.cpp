// A module that uses what a host offers in the way that modules do: commands are registered while
// the library is being loaded, the rest when the module starts.
#include "frame/dynamic_library.h"
#include "frame/error.h"
#include "host/application.h"
#include "host/command.h"
#include "host/completion.h"
#include "host/document.h"
#include "host/editor_reactor.h"
#include "host/exports.h"
#include "host/messages.h"
#include "host/services.h"
#include "host/user_input.h"

#ifndef MODULE_VERSION_MAJOR
#define MODULE_VERSION_MAJOR 4
#endif

namespace {

template <class F>
F hostFunction(const char* name) {
  return oddynlib::function<F>(oddynlib::mainExecutable(), name);
}

IHostServices* services() {
  const auto lead = hostFunction<hostexport::GetHostFuncPtr>(hostexport::kGetHostFuncPtr);
  return static_cast<IHostServices*>(lead(hostexport::kServicesIndex)());
}

void print(const OdString& text) { kvQuery<IHostMessages>(services())->print(u'\n' + text); }

/// Asks for two texts and tells them.
void askTexts() {
  IHostUserInput* const input = services()->documentManager()->curDocument()->userInput();
  OdString plain, blanks;
  if (input->getString(0, QStringLiteral("Module asks: "), plain) != IHostUserInput::Result::kValue)
    return print(QStringLiteral("module saw a cancel"));
  input->getString(7, OdString(), blanks);
  print(QStringLiteral("module got '%1' and '%2'").arg(plain, blanks));
}

/// Runs the host's command that was typed, with a parameter set.
void runNested() {
  IHostUserInput* const input = services()->documentManager()->curDocument()->userInput();
  OdString name;
  input->getString(0, QStringLiteral("Which command: "), name);
  const KVPtr<IHostCommandService> service = kvQuery<IHostCommandService>(services());
  const KVPtr<IHostCommand> command = service->findCommand(name);
  if (!command) return print(QStringLiteral("no such command"));
  KVPtr<IMemParam> parameters;
  hostFunction<hostexport::NewMemParam>(hostexport::kNewMemParam)(parameters.out());
  parameters->setValue(QStringLiteral("word"), QStringLiteral("from the module"));
  const bool done = command->run(parameters.get());
  print(done ? QStringLiteral("nested run ended") : QStringLiteral("nested run did not end"));
}

void failCommand() { throw OdError(eInvalidInput, QStringLiteral("the module does not like it")); }

/// Counts its runs in the name of the document that it was given.
class Greeting : public CKVUnknownImpl<ICmdProcess> {
 public:
  int Run() override {
    IHostDocument* const document = m_context ? m_context->document() : nullptr;
    print(QStringLiteral("greetings to %1")
              .arg(document ? document->name() : QStringLiteral("nobody")));
    return 0;
  }
  void cancel() override {}
  void finish() override {}
  int state() override { return 1; }
  IRunContext* context() override { return m_context.get(); }
  void setContext(IRunContext* context) override { m_context = context; }

 private:
  KVPtr<IRunContext> m_context;
};

ICmdProcess* makeGreeting() { return new Greeting; }

struct StaticCommands {
  StaticCommands() {
    KVPtr<ICmdFactory> factory;
    hostFunction<hostexport::NewCmdFactory>(hostexport::kNewCmdFactory)(factory.out());
    if (!factory) return;
    const OdString group = QStringLiteral("HOST");
    factory->registerFunction(group, QStringLiteral("AskTexts"), 0, &askTexts);
    factory->registerFunction(group, QStringLiteral("__runnested"), 0, &runNested);
    factory->registerFunction(group, QStringLiteral("FailInModule"), 0, &failCommand);
    factory->registerCommand(QStringLiteral("Greet"), &makeGreeting, group, 0);
  }
};
const StaticCommands g_commands;

class Reactor : public HostEditorReactor {
 public:
  void commandEnded(const OdString& name) override {
    if (name == QLatin1String("Greet")) print(QStringLiteral("module heard %1").arg(name));
  }
};

class SettingReactor : public CKVUnknownImpl<IPropReactor> {
 public:
  void onPropertyChanged(const OdString& setting) override {
    OdString value;
    hostFunction<hostexport::GetApp>(hostexport::kGetApp)()->setting(setting, value);
    print(QStringLiteral("module sees %1 = %2").arg(setting, value));
  }
};

class TestModule : public OdRxModule {
 public:
  explicit TestModule(OdModuleHandle handle)
    : OdRxModule(handle) {}
  OdString moduleName() const override { return QStringLiteral("engine_test_module"); }

  void initApp() override {
    m_reactor = odrxMake<Reactor>();
    services()->editorEvents()->addReactor(m_reactor);
    const KVPtr<SettingReactor> watcher = kvMake<SettingReactor>();
    hostFunction<hostexport::GetApp>(hostexport::kGetApp)()->addPropReactor(
        QStringLiteral("ToolPaletteDir"), watcher.get());
    services()->completionRegistry()->registerSource(
        QStringLiteral("tools"), [](const HostEdCompletion::Callback& offer) {
          auto entry = std::make_shared<HostEdCompletion::Entry>();
          entry->text = QStringLiteral("Hello");
          entry->displayText = QStringLiteral("TOOL:Hello");
          entry->action = std::make_shared<HostEdCompletion::CallFunction>([] {
            services()->documentManager()->curDocument()->commandInput()->sendText(
                QStringLiteral("^C^C_Greet "));
          });
          offer(entry);
        });
#ifdef MODULE_FAILS
    throw OdError(eInvalidInput, QStringLiteral("the module does not start today"));
#endif
  }
  // Reactor, watcher and source are left behind on purpose: the host must let go of them.
  void uninitApp() override { m_reactor = nullptr; }

 private:
  OdSmartPtr<Reactor> m_reactor;
};

} // namespace

extern "C" {

Q_DECL_EXPORT void odrxCreateModuleObject(OdModuleHandle handle, OdRxModule** module) {
  static auto* const made = new TestModule(handle);
  *module = made;
}

Q_DECL_EXPORT void odrxGetAPIVersion(unsigned* major, unsigned* majorMinor, unsigned* minor,
                                     unsigned* buildMinor) {
  *major = MODULE_VERSION_MAJOR;
  *majorMinor = 3;
  *minor = 1;
  *buildMinor = 0;
}

} // extern "C"
