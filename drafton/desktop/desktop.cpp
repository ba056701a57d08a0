#include "drafton/desktop/desktop.h"

#include <QCoreApplication>
#include <QPointer>

namespace drafton {
namespace {

const QStringList kSection{QStringLiteral("Desktop")};

/// Commands that nobody wants again by pressing Enter: they would close what was just opened.
constexpr const char16_t* kNotRepeated[] = {u"Exit", u"CloseDocument", u"ToolPalettes"};

bool isRepeated(const OdString& name) {
  return !name.startsWith(QLatin1String("__")) &&
         std::ranges::none_of(kNotRepeated, [&](const char16_t* other) {
           return name.compare(QStringView(other), Qt::CaseInsensitive) == 0;
         });
}

} // namespace

/// Turns the editor's events into signals.
class Desktop::Events : public HostEditorReactor {
 public:
  void setDesktop(Desktop* desktop) { m_desktop = desktop; }

  void commandWillStart(const OdString& name) override {
    if (!m_desktop->m_engine->currentProcessor().runsUsersCommand() || !isRepeated(name)) return;
    m_desktop->m_lastCommand = name;
    m_desktop->m_lastAction.reset();
  }
  void sysVarChanged(OdDbDatabase*, const OdString& name) override {
    Q_EMIT m_desktop->variableChanged(name);
  }
  void documentActivated(IHostDocument* document) override {
    Q_EMIT m_desktop->documentActivated(static_cast<Document*>(document));
  }
  void documentToBeDestroyed(IHostDocument* document) override {
    Q_EMIT m_desktop->documentClosing(static_cast<Document*>(document));
  }

 private:
  Desktop* m_desktop = nullptr;
};

class Desktop::Repetition : public CKVUnknownImpl<IHostRepetition> {
 public:
  explicit Repetition(Desktop& desktop)
    : m_desktop(&desktop) {}
  void userRan(IHostRepeatable* action) override {
    if (m_desktop) m_desktop->m_lastAction = action;
  }

 private:
  QPointer<Desktop> m_desktop;
};

Desktop::Desktop(EngineOptions options)
  : m_engine(std::make_unique<Engine>(std::move(options), m_console, &m_input))
  , m_events(odrxMake<Events>()) {
  m_events->setDesktop(this);
  m_engine->events().addReactor(m_events.get());
  m_engine->services().offer(IHostRepetition::kId, kvMake<Repetition>(*this).get());
  m_input.setEngine(m_engine.get());
  connect(&m_input, &EventInput::settled, this, &Desktop::settled);
}

Desktop::~Desktop() {
  m_input.stop();
  // Its code goes with its module.
  m_lastAction.reset();
  m_engine->events().removeReactor(m_events.get());
  m_input.setEngine(nullptr);
  m_engine.reset();
}

OdDbDatabase* Desktop::database() {
  Document* const current = document();
  return current ? current->database() : nullptr;
}

bool Desktop::putBehind(QObject& receiver, const QInputEvent& event) {
  m_input.collect();
  if (!m_input.isQueued()) return false;
  // Where a command waits on the stack the engine goes on once this event is done. What is typed
  // queues up behind what was sent; a click would still answer what was asked before.
  const bool isWaiting = m_input.isWaiting();
  const bool isLater = !isWaiting || event.type() != QEvent::KeyPress;
  // The engine may come to a command that waits in an event loop of its own.
  const QPointer<QObject> alive(&receiver);
  if (isLater) QCoreApplication::postEvent(&receiver, event.clone());
  m_input.takeUp();
  if (!isWaiting && alive) QCoreApplication::sendPostedEvents(alive, event.type());
  return isLater;
}

void Desktop::type(const OdString& text, KeyQueue::Giver giver) {
  m_input.collect();
  Q_EMIT aboutToTake();
  m_engine->type(text, giver);
  m_input.takeUp();
}

void Desktop::runMacro(const OdString& macro) {
  m_input.collect();
  Q_EMIT aboutToTake();
  OdString text = macro;
  // With nothing to cancel it would take away what is chosen.
  while (!isBusy() && !m_input.isQueued() && text.startsWith(QLatin1String("^C")))
    text.remove(0, 2);
  m_engine->currentProcessor().typeMacro(text);
  m_input.takeUp();
}

void Desktop::repeat() {
  // It may be replaced while it runs.
  if (const KVPtr<IHostRepeatable> action = m_lastAction)
    action->repeat();
  else if (!m_lastCommand.isEmpty())
    type(m_lastCommand + u'\n');
}

void Desktop::cancel() { type(QStringLiteral("^C")); }

bool Desktop::click(const OdGePoint3d& point) {
  Q_EMIT aboutToTake();
  if (!m_engine->currentProcessor().givePoint(point)) return false;
  m_input.takeUp();
  return true;
}

bool Desktop::giveText(const OdString& text) {
  Q_EMIT aboutToTake();
  if (!m_engine->currentProcessor().giveText(text)) return false;
  m_input.takeUp();
  return true;
}

bool Desktop::change(const OdString& step, const std::function<void(OdDbDatabase&)>& change) {
  Document* const current = document();
  if (!current || !current->database()) return false;
  if (isBusy()) {
    m_engine->print(translated(u"A command is running: end it first."));
    return false;
  }
  if (!current->lock(step)) return false;
  try {
    change(*current->database());
  } catch (const OdError& error) {
    m_engine->print(error.description());
  }
  current->unlock();
  Q_EMIT settled();
  return true;
}

OdVariant Desktop::variable(const char* name) {
  OdVariant value;
  if (Document* const current = document())
    current->variables()->get(OdString::fromLatin1(name), value);
  return value;
}

bool Desktop::setVariable(const char* name, const OdVariant& value) {
  Document* const current = document();
  return current && current->variables()->set(OdString::fromLatin1(name), value);
}

OdVariant Desktop::setting(const char* key, const OdVariant& preset) {
  OdVariant value;
  return m_engine->settings().get(kSection, OdString::fromLatin1(key), value) ? value : preset;
}

void Desktop::setSetting(const char* key, const OdVariant& value) {
  m_engine->settings().set(kSection, OdString::fromLatin1(key), value);
}

} // namespace drafton
