#include "support/test_host.h"

#include "frame/dynamic_library.h"
#include "host/exports.h"

namespace testhost {
namespace {

class TestCommandFactory : public CKVUnknownImpl<ICmdFactory> {
 public:
  TestCommandFactory() { ++host().liveFactories; }
  ~TestCommandFactory() override { --host().liveFactories; }

  void registerCommand(const OdString& name, CmdCreator creator, const OdString& group,
                       unsigned flags) override {
    host().commands[name] = {name, group, flags, creator, nullptr};
  }
  void registerFunction(const OdString& group, const OdString& name, unsigned flags,
                        CmdFunction function) override {
    host().commands[name] = {name, group, flags, nullptr, function};
  }
};

void* servicesObject() { return static_cast<IHostServices*>(&host()); }

} // namespace

TestHost& TestHost::instance() {
  // Never deleted: modules may still look at it while the program ends.
  static TestHost* const only = new TestHost;
  return *only;
}

TestHost::TestHost() {
  OdRxClass* const base = newOdRxClass(QStringLiteral("OdEditorReactor"), OdRxObject::desc());
  newOdRxClass(QStringLiteral("HostEditorReactor"), base);
}

void TestHost::reset() {
  m_offered.clear();
  m_off.clear();
  documents.closeAll();
  events.reactors.clear();
  events.onAdd = events.onRemove = nullptr;
  completion.sources.clear();
  completion.onRegister = completion.onRemove = nullptr;
  application.reactors.clear();
  application.settings.clear();
  application.userFolder.clear();
  application.store = kvMake<TestProfile>();
  messages.printed.clear();
  messages.boxes.clear();
  messages.tick = false;
  commandService.runs.clear();
  commandService.known = {QStringLiteral("InsertBlock"), QStringLiteral("XATTACH"),
                          QStringLiteral("INSERTRASTER")};
  menu.entries.clear();
  icons.images.clear();
  previews.reset();
  hatch.values.clear();
  clipboard.formats.clear();
  clipboard.contents.clear();
  selection.chosen.clear();
  customPatterns.clear();
  unsaved.clear();
  translations.clear();
  routeMap.clear();
  log.clear();
}

bool TestHost::runCommand(const OdString& name) {
  const auto at = commands.constFind(name);
  if (at == commands.constEnd()) return false;
  const RegisteredCommand command = *at;
  if (command.function) command.function();
  if (command.creator) KVPtr<ICmdProcess>::attach(command.creator())->Run();
  return true;
}

bool TestHost::queryInterface(KVInterfaceId id, void** out) {
  *out = nullptr;
  if (isOff(id)) return false;
  if (const auto offer = m_offered.find(id); offer != m_offered.end()) {
    offer->second.owner->addRef();
    *out = offer->second.asInterface;
    return true;
  }
  // A service is given as the interface that was asked for: the void pointer must be exactly that.
  const auto give = [&]<class T>(T* service) {
    if (id != T::kId) return false;
    service->addRef();
    *out = service;
    return true;
  };
  return give(static_cast<IHostServices*>(this)) || give(static_cast<IHostMessages*>(&messages)) ||
         give(static_cast<IHostCommandService*>(&commandService)) ||
         give(static_cast<IHostCommandMenu*>(&menu)) ||
         give(static_cast<IHostIconService*>(&icons)) ||
         give(static_cast<IHostPreviewService*>(&previews)) ||
         give(static_cast<IHostHatchSettings*>(&hatch)) ||
         give(static_cast<IHostClipboard*>(&clipboard)) ||
         give(static_cast<IHostSelection*>(&selection));
}

IHostDocumentManager* TestHost::documentManager() {
  return isOff(kDocumentManager) ? nullptr : &documents;
}

IHostEditorEvents* TestHost::editorEvents() { return isOff(kEditorEvents) ? nullptr : &events; }

HostEdCompletion::Registry* TestHost::completionRegistry() {
  return isOff(kCompletionRegistry) ? nullptr : &completion;
}

} // namespace testhost

// What a host's executable exports (see host/exports.h).
using testhost::host;

#if defined(_WIN32)
#define TEST_HOST_EXPORT extern "C" __declspec(dllexport)
#else
#define TEST_HOST_EXPORT extern "C" __attribute__((visibility("default")))
#endif

TEST_HOST_EXPORT OdModuleHandle GetMainDllInstance() {
  return host().isOff(testhost::kMainModule) ? nullptr : oddynlib::mainExecutable();
}

// No name: the executable itself is the main module.
TEST_HOST_EXPORT const char16_t* GetMainDllNameW() { return nullptr; }

TEST_HOST_EXPORT hostexport::HostObjectGetter get_host_funcptr(int index) {
  if (index != hostexport::kServicesIndex || host().isOff(testhost::kServices)) return nullptr;
  return &testhost::servicesObject;
}

TEST_HOST_EXPORT void new_ICmdFactory(ICmdFactory** factory) {
  *factory = host().isOff(testhost::kCommandFactory) ? nullptr : new testhost::TestCommandFactory;
}

TEST_HOST_EXPORT void new_MemParam(IMemParam** parameters) {
  *parameters = host().isOff(testhost::kParameterSets) ? nullptr : new testhost::TestMemParam;
}

TEST_HOST_EXPORT IHostApplication* GetApp() {
  return host().isOff(testhost::kApplication) ? nullptr : &host().application;
}

TEST_HOST_EXPORT bool Supp_Translate(const OdString& text, OdString& out) {
  const auto at = host().translations.constFind(text);
  if (at == host().translations.constEnd()) return false;
  out = *at;
  return true;
}

TEST_HOST_EXPORT bool hostGetCmdRouteMap(OdString& out) {
  out = host().routeMap;
  return !out.isEmpty();
}

TEST_HOST_EXPORT bool hostGetCustomPatternFileName(const OdString& pattern, OdString& out) {
  out = host().customPatterns.value(pattern);
  return !out.isEmpty();
}

TEST_HOST_EXPORT bool isObjectSaved(IHostDocument* document) {
  return !document->path().isEmpty() && !host().unsaved.contains(document);
}
