// A host in memory for tests: every service records what it is asked and can be switched off.
//
// The library `test_host` exports the functions of host/exports.h. Linked whole into a test program
// it stands where a real host's executable stands; nothing else has to be installed.
#pragma once

#include "support/print_text.h"
#include "support/test_host_services.h"

#include <QSet>

#include <map>

namespace testhost {

/// Names of what can be switched off besides the interfaces, which go by their kId.
inline constexpr std::string_view kMainModule = "main module";
inline constexpr std::string_view kServices = "services";
inline constexpr std::string_view kDocumentManager = "document manager";
inline constexpr std::string_view kEditorEvents = "editor events";
inline constexpr std::string_view kCompletionRegistry = "completion registry";
inline constexpr std::string_view kApplication = "application";
inline constexpr std::string_view kProfile = "profile";
inline constexpr std::string_view kCommandFactory = "command factory";
inline constexpr std::string_view kParameterSets = "parameter sets";

/// The one host of a test program. Its classes OdEditorReactor and HostEditorReactor are registered
/// from its first use on.
class TestHost : public IHostServices {
 public:
  /// The host. Kept for the life of the program.
  static TestHost& instance();
  TestHost(const TestHost&) = delete;
  TestHost& operator=(const TestHost&) = delete;

  /// Puts everything back to the state of a fresh host: no documents, no settings, all services on.
  /// Static registrations of commands survive, as they are made but once in a process.
  void reset();
  /// Forgets the registered commands as well.
  void forgetCommands() { commands.clear(); }

  /// Switches a service off, or on again: one of the names above, or the kId of an interface.
  void switchOff(std::string_view service) {
    m_off.insert(QByteArray(service.data(), static_cast<qsizetype>(service.size())));
  }
  void switchOn(std::string_view service) {
    m_off.remove(QByteArray(service.data(), static_cast<qsizetype>(service.size())));
  }
  bool isOff(std::string_view service) const {
    return m_off.contains(QByteArray(service.data(), static_cast<qsizetype>(service.size())));
  }

  /// What happened, in one order over all services: "lock A.dxf EXECUTETOOL 4 1", "unlock A.dxf",
  /// "send A.dxf ^C", "print ...", "box ...", "run XATTACH", "set A.dxf ATTREQ=1",
  /// "addReactor TcEditorReactor", "registerSource tools", "removeSource tools".
  QStringList log;

  TestDocumentManager documents;
  TestEditorEvents events;
  TestCompletionRegistry completion;
  TestApplication application;
  TestMessages messages;
  TestCommandService commandService;
  TestCommandMenu menu;
  TestIconService icons;
  TestPreviewService previews;
  TestHatchSettings hatch;
  TestClipboard clipboard;
  TestSelection selection;

  /// Adds a service that is not among those above, until reset().
  template <class T>
  void offer(T* service) {
    m_offered[T::kId] = {KVPtr<IKVUnknown>(service), service};
  }

  /// Registered commands by name; registering a name anew replaces it.
  QMap<OdString, RegisteredCommand> commands;
  /// Command factories that nobody has released yet.
  int liveFactories = 0;
  /// English text to translation; a text that is not here has none.
  QMap<OdString, OdString> translations;
  /// The stored path of the command route map; empty: the host has none.
  OdString routeMap;
  /// Hatch patterns of the user's own, with their files.
  QMap<OdString, OdString> customPatterns;
  /// Documents whose drawings were changed since they were saved.
  QSet<const IHostDocument*> unsaved;

  /// Runs a registered command once, as the host's command line does: function or command object.
  /// False if there is no such command.
  bool runCommand(const OdString& name);

  bool queryInterface(KVInterfaceId id, void** out) override;
  unsigned long addRef() override { return 1; }
  unsigned long release() override { return 1; }
  IHostDocumentManager* documentManager() override;
  IHostEditorEvents* editorEvents() override;
  HostEdCompletion::Registry* completionRegistry() override;

 private:
  TestHost();

  struct Offer {
    KVPtr<IKVUnknown> owner;
    void* asInterface = nullptr;
  };
  std::map<KVInterfaceId, Offer> m_offered;
  QSet<QByteArray> m_off;
};

inline TestHost& host() { return TestHost::instance(); }

} // namespace testhost
