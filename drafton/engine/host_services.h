// What Drafton gives to modules.
#pragma once

#include "host/command.h"
#include "host/messages.h"
#include "host/services.h"

#include <map>

namespace drafton {

class Engine;

/// The services object of the running engine. It and what it gives by accessors live as long as the
/// engine; its count never deletes it.
class HostServices : public IHostServices {
 public:
  explicit HostServices(Engine& engine)
    : m_engine(engine) {}

  /// Messages, the command service, the command menu, the hatch settings, the settings, and what
  /// the program offers.
  bool queryInterface(KVInterfaceId id, void** out) override;
  unsigned long addRef() override { return ++m_refs; }
  unsigned long release() override { return --m_refs; }

  /// Adds a service that the engine itself does not have, as pictures or windows. `object` is the
  /// interface `id`.
  void offer(KVInterfaceId id, KVPtr<IKVUnknown> object);

  IHostDocumentManager* documentManager() override;
  IHostEditorEvents* editorEvents() override;
  HostEdCompletion::Registry* completionRegistry() override;

 private:
  Engine& m_engine;
  std::map<KVInterfaceId, KVPtr<IKVUnknown>> m_offered;
  unsigned long m_refs = 1;
};

/// Prints through the running engine; silent without one.
class HostMessages : public CKVUnknownImpl<IHostMessages> {
 public:
  void print(const OdString& text) override;
  void messageBox(const OdString& text, const OdString& caption) override;
  /// The prompt is remembered in the settings' section "Prompts" when it was ticked, and not shown
  /// again.
  bool messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                              const OdString& caption, unsigned style) override;
};

/// Finds commands in the running engine.
class CommandService : public CKVUnknownImpl<IHostCommandService> {
 public:
  KVPtr<IHostCommand> findCommand(const OdString& name) override;
};

} // namespace drafton
