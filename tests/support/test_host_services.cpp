#include "support/test_host.h"

#include <algorithm>

namespace testhost {
namespace {

// A host that keeps a text makes it its own here, except where a test wants to see that the module
// does so: what a module hands over may otherwise point into the module's memory.
void note(const OdString& line) { host().log << OdString(line.constData(), line.size()); }

template <class V>
bool lookUp(const QMap<OdString, V>& map, const OdString& key, V& out) {
  const auto at = map.constFind(key);
  if (at == map.constEnd()) return false;
  out = *at;
  return true;
}

class TestHostCommand : public CKVUnknownImpl<IHostCommand> {
 public:
  explicit TestHostCommand(OdString name)
    : m_name(std::move(name)) {}

  bool run(IMemParam* parameters) override {
    TestCommandService::Run run{m_name, {}};
    if (parameters) {
      for (const OdString& name : parameters->names()) {
        OdVariant value;
        parameters->value(name, value);
        run.parameters.emplace_back(name, value);
      }
    }
    note(QStringLiteral("run ") + m_name);
    host().commandService.runs.push_back(std::move(run));
    return true;
  }

 private:
  OdString m_name;
};

} // namespace

IHostUserInput::Result TestUserInput::getString(unsigned flags, const OdString& prompt,
                                                OdString& out) {
  prompts.push_back({flags, prompt});
  if (answers.empty()) return Result::kCancelled;
  const auto [result, text] = answers.front();
  answers.pop_front();
  out = text;
  return result;
}

bool TestVariables::get(const OdString& name, OdVariant& out) {
  return lookUp(values, name.toUpper(), out);
}

bool TestVariables::set(const OdString& name, const OdVariant& value) {
  if (!values.contains(name.toUpper())) return false;
  values[name.toUpper()] = value;
  note(QStringLiteral("set %1 %2=%3").arg(m_document, name, value.toString()));
  return true;
}

void TestHatchSettings::set(const OdString& key, const OdVariant& value) {
  values[key] = value;
  note(QStringLiteral("set hatch %1=%2").arg(key, value.toString()));
}

void TestDocument::sendText(const OdString& text) {
  sent << text;
  note(QStringLiteral("send %1 %2").arg(m_name, text));
}

TestDocument& TestDocumentManager::open(const OdString& name) {
  m_documents.push_back(std::make_unique<TestDocument>(name));
  m_current = m_documents.back().get();
  return *m_current;
}

void TestDocumentManager::closeAll() {
  m_current = nullptr;
  m_documents.clear();
  locks.clear();
  locked.clear();
  refuseLocks = false;
}

bool TestDocumentManager::lockDocument(IHostDocument* document, int mode,
                                       const OdString& commandName, void* reserved, int flag) {
  if (refuseLocks) return false;
  locks.push_back({document, mode, commandName, reserved, flag});
  locked.push_back(locks.back());
  note(QStringLiteral("lock %1 %2 %3 %4").arg(document->name(), commandName).arg(mode).arg(flag));
  return true;
}

void TestDocumentManager::unlockDocument(IHostDocument* document) {
  const auto at = std::find_if(locked.rbegin(), locked.rend(),
                               [&](const Lock& lock) { return lock.document == document; });
  note(QStringLiteral("unlock %1%2")
           .arg(document->name(),
                at == locked.rend() ? QStringLiteral(" without a lock") : OdString()));
  if (at != locked.rend()) locked.erase(std::next(at).base());
}

void TestEditorEvents::commandWillStart(const OdString& name) {
  each([&](HostEditorReactor* r) { r->commandWillStart(name); });
}
void TestEditorEvents::commandEnded(const OdString& name) {
  each([&](HostEditorReactor* r) { r->commandEnded(name); });
}
void TestEditorEvents::commandCancelled(const OdString& name) {
  each([&](HostEditorReactor* r) { r->commandCancelled(name); });
}
void TestEditorEvents::commandFailed(const OdString& name) {
  each([&](HostEditorReactor* r) { r->commandFailed(name); });
}
void TestEditorEvents::sysVarChanged(OdDbDatabase* database, const OdString& name) {
  each([&](HostEditorReactor* r) { r->sysVarChanged(database, name); });
}
void TestEditorEvents::documentToBeDestroyed(IHostDocument* document) {
  each([&](HostEditorReactor* r) { r->documentToBeDestroyed(document); });
}

void TestEditorEvents::addReactor(HostEditorReactor* reactor) {
  if (onAdd) onAdd();
  reactors.push_back(reactor);
  note(QStringLiteral("addReactor ") +
       (reactor->isA() ? reactor->isA()->name() : QStringLiteral("(no class)")));
}

void TestEditorEvents::removeReactor(HostEditorReactor* reactor) {
  if (onRemove) onRemove();
  const auto at = std::find(reactors.begin(), reactors.end(), reactor);
  note(at == reactors.end() ? QStringLiteral("removeReactor unknown")
                            : QStringLiteral("removeReactor"));
  if (at != reactors.end()) reactors.erase(at);
}

std::vector<std::shared_ptr<HostEdCompletion::Entry>>
TestCompletionRegistry::offers(const OdString& source) {
  std::vector<std::shared_ptr<HostEdCompletion::Entry>> all;
  if (const HostEdCompletion::Provider provider = sources.value(source))
    provider(
        [&](std::shared_ptr<HostEdCompletion::Entry> entry) { all.push_back(std::move(entry)); });
  return all;
}

void TestCompletionRegistry::registerSource(const OdString& name,
                                            HostEdCompletion::Provider provider) {
  if (provider) {
    if (onRegister) onRegister();
    sources[name] = std::move(provider);
    note(QStringLiteral("registerSource ") + name);
    return;
  }
  if (onRemove) onRemove();
  sources.remove(name);
  note(QStringLiteral("removeSource ") + name);
}

TestProfile* TestProfile::at(const OdString& path) {
  TestProfile* found = this;
  for (const OdString& part : path.split(QLatin1Char('/'))) {
    found = found->sections.value(part).get();
    if (!found) break;
  }
  return found;
}

TestProfile& TestProfile::made(const OdString& path) {
  TestProfile* found = this;
  for (const OdString& part : path.split(QLatin1Char('/'))) {
    found->openSection(part, true);
    found = found->sections.value(part).get();
  }
  return *found;
}

KVPtr<IProfile> TestProfile::openSection(const OdString& name, bool create) {
  if (!sections.contains(name)) {
    if (!create) return nullptr;
    sections[name] = kvMake<TestProfile>();
  }
  return KVPtr<IProfile>(sections[name].get());
}

bool TestProfile::get(const OdString& key, OdVariant& out) { return lookUp(values, key, out); }

void TestApplication::change(const OdString& name, const OdString& value) {
  settings[name] = value;
  const auto all = reactors;
  for (const auto& [setting, reactor] : all)
    if (setting == name) reactor->onPropertyChanged(name);
}

bool TestApplication::setting(const OdString& name, OdString& out) {
  return lookUp(settings, name, out);
}

KVPtr<IProfile> TestApplication::profile() {
  return host().isOff(kProfile) ? nullptr : KVPtr<IProfile>(store.get());
}

void TestApplication::addPropReactor(const OdString& setting, IPropReactor* reactor) {
  reactors.emplace_back(setting, KVPtr<IPropReactor>(reactor));
}

void TestApplication::removePropReactor(const OdString& setting, IPropReactor* reactor) {
  const auto at = std::find_if(reactors.begin(), reactors.end(), [&](const auto& entry) {
    return entry.first == setting && entry.second.get() == reactor;
  });
  if (at != reactors.end()) reactors.erase(at);
}

void TestMessages::print(const OdString& text) {
  printed << text;
  note(QStringLiteral("print ") + text);
}

void TestMessages::messageBox(const OdString& text, const OdString& caption) {
  boxes.push_back({{}, text, caption, 0});
  note(QStringLiteral("box ") + text);
}

bool TestMessages::messageBoxWithCheckBox(const OdString& identifier, const OdString& text,
                                          const OdString& caption, unsigned style) {
  boxes.push_back({identifier, text, caption, style});
  note(QStringLiteral("box ") + text);
  return tick;
}

void TestMemParam::setValue(const OdString& name, const OdVariant& value) {
  for (auto& [key, held] : entries) {
    if (key != name) continue;
    held = value;
    return;
  }
  entries.emplace_back(name, value);
}

bool TestMemParam::value(const OdString& name, OdVariant& out) const {
  for (const auto& [key, held] : entries) {
    if (key != name) continue;
    out = held;
    return true;
  }
  return false;
}

QStringList TestMemParam::names() const {
  QStringList all;
  for (const auto& [key, held] : entries) all << key;
  return all;
}

KVPtr<IHostCommand> TestCommandService::findCommand(const OdString& name) {
  for (const OdString& command : known)
    if (command.compare(name, Qt::CaseInsensitive) == 0) return kvMake<TestHostCommand>(command);
  return nullptr;
}

QImage TestIconService::icon(const OdString& name, int pixels) {
  const QImage image = images.value(name);
  return image.isNull() ? image : image.scaled(pixels, pixels);
}

QImage TestPreviewService::picture(bool isThere, const QString& what, int pixels) {
  asked << QStringLiteral("%1 %2").arg(what).arg(pixels);
  if (!isThere) return {};
  QImage made(pixels, pixels, QImage::Format_ARGB32);
  made.fill(Qt::blue);
  return made;
}

QImage TestPreviewService::renderObjects(std::span<const OdDbObjectId> objects,
                                         const OdGeExtents3d& shown, int pixels) {
  view = shown;
  return picture(canRender, QStringLiteral("objects %1").arg(objects.size()), pixels);
}

QImage TestPreviewService::renderPattern(const OdString& name, const OdString& file, int pixels) {
  const QString from = file.isEmpty() ? QString() : QStringLiteral(" of ") + file;
  return picture(canRender, QStringLiteral("pattern ") + name + from, pixels);
}

QImage TestPreviewService::renderUserPattern(double angle, bool isCrosswise, int pixels) {
  return picture(canRender,
                 QStringLiteral("lines at %1%2")
                     .arg(angle)
                     .arg(isCrosswise ? QStringLiteral(" crossed") : QString()),
                 pixels);
}

QImage TestPreviewService::storedPreview(const OdString& path, int pixels) {
  return picture(hasStoredPreview, QStringLiteral("stored ") + path, pixels);
}

QImage TestPreviewService::fileIcon(const OdString& path, int pixels) {
  return picture(hasFileIcon, QStringLiteral("icon ") + path, pixels);
}

bool TestHatchSettings::get(const OdString& key, OdVariant& out) {
  return lookUp(values, key, out);
}

} // namespace testhost
