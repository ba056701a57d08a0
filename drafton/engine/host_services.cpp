#include "drafton/engine/host_services.h"

#include "drafton/engine/command_menu.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/hatch_settings.h"
#include "drafton/engine/host_selection.h"

namespace drafton {
namespace {

/// A command by name. It is looked up anew at each run, since its module may have gone.
class HostCommand : public CKVUnknownImpl<IHostCommand> {
 public:
  explicit HostCommand(OdString name)
    : m_name(std::move(name)) {}
  bool run(IMemParam* parameters) override {
    Engine* const engine = Engine::current();
    return engine && engine->currentProcessor().run(m_name, parameters);
  }

 private:
  OdString m_name;
};

/// Gives the reference of `object` away.
template <class T>
void* handOver(KVPtr<T> object) {
  T* const raw = object.get();
  raw->addRef();
  return raw;
}

struct ServiceRow {
  KVInterfaceId id;
  void* (*make)(Engine& engine);
};

constexpr ServiceRow kServices[] = {
    {IHostMessages::kId,
     [](Engine&) { return handOver<IHostMessages>(kvMake<HostMessages>().get()); }},
    {IHostCommandService::kId,
     [](Engine&) { return handOver<IHostCommandService>(kvMake<CommandService>().get()); }},
    {IHostCommandMenu::kId,
     [](Engine&) { return handOver<IHostCommandMenu>(kvMake<CommandMenu>().get()); }},
    {IHostSelection::kId,
     [](Engine&) { return handOver<IHostSelection>(kvMake<HostSelection>().get()); }},
    {IHostHatchSettings::kId,
     [](Engine& engine) { return handOver<IHostHatchSettings>(engine.hatchSettings()); }},
    {IProfile::kId,
     [](Engine& engine) { return handOver<IProfile>(engine.application().profile()); }},
};

const OdString kAnswers = QStringLiteral("Prompts");

} // namespace

bool HostServices::queryInterface(KVInterfaceId id, void** out) {
  *out = nullptr;
  if (id == IHostServices::kId || id == IKVUnknown::kId) {
    *out = static_cast<IHostServices*>(this);
    addRef();
    return true;
  }
  for (const ServiceRow& row : kServices)
    if (row.id == id) {
      *out = row.make(m_engine);
      return *out != nullptr;
    }
  if (const auto offered = m_offered.find(id); offered != m_offered.end())
    return offered->second->queryInterface(id, out);
  return false;
}

void HostServices::offer(KVInterfaceId id, KVPtr<IKVUnknown> object) {
  m_offered[id] = std::move(object);
}

IHostDocumentManager* HostServices::documentManager() { return &m_engine.documents(); }
IHostEditorEvents* HostServices::editorEvents() { return &m_engine.events(); }
HostEdCompletion::Registry* HostServices::completionRegistry() { return &m_engine.completion(); }

void HostMessages::print(const OdString& text) {
  if (Engine* const engine = Engine::current()) engine->console().print(text);
}

void HostMessages::messageBox(const OdString& text, const OdString& caption) {
  if (Engine* const engine = Engine::current()) engine->console().messageBox(text, caption);
}

bool HostMessages::messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                                          const OdString& caption, unsigned) {
  Engine* const engine = Engine::current();
  if (!engine) return false;
  OdVariant answer;
  if (engine->settings().get({kAnswers}, identifier, answer) && answer.toBool()) return true;
  const bool ticked = engine->console().messageBoxWithCheckBox(text, caption);
  if (ticked) engine->settings().set({kAnswers}, identifier, true);
  return ticked;
}

KVPtr<IHostCommand> CommandService::findCommand(const OdString& name) {
  Engine* const engine = Engine::current();
  const RegisteredCommandPtr found = engine ? engine->commands().find(name) : nullptr;
  if (!found) return nullptr;
  const KVPtr<HostCommand> command = kvMake<HostCommand>(found->name);
  return command.get();
}

} // namespace drafton
