// The engine as the window uses it.
#pragma once

#include "drafton/desktop/desktop_console.h"
#include "drafton/desktop/event_input.h"
#include "drafton/engine/engine.h"
#include "host/repetition.h"

#include <QInputEvent>

namespace drafton {

/// Owns the engine, types into it, and tells the widgets what has happened. Lives as long as the
/// program; the main window comes and goes within it.
class Desktop : public QObject {
  Q_OBJECT

 public:
  explicit Desktop(EngineOptions options);
  ~Desktop() override;

  Engine& engine() { return *m_engine; }
  DesktopConsole& console() { return m_console; }
  EventInput& input() { return m_input; }

  /// The active document, or null.
  Document* document() { return m_engine->documents().current(); }
  /// The drawing of the active document, or null.
  OdDbDatabase* database();
  /// What is asked now; null if nothing is.
  const InputRequest* request() { return m_engine->currentProcessor().request(); }
  /// True while a command runs in the active document.
  bool isBusy() { return m_engine->currentProcessor().isBusy(); }

  /// Lets what was asked before and still waits in the event loop, as what modules put off, go
  /// first. A key or click that comes behind would overtake it: an Esc what it is to end, an answer
  /// its question. True if the event is not to be handled now: the receiver gets it again.
  bool putBehind(QObject& receiver, const QInputEvent& event);
  /// Types as a user does: a blank ends a word, a line break is Enter. What is typed for the
  /// program is not repeated.
  void type(const OdString& text, KeyQueue::Giver giver = KeyQueue::Giver::kUser);
  /// Types a menu's macro into the active document; "^C" cancels.
  void runMacro(const OdString& macro);
  /// Ends what waits, as the user's Esc does.
  void cancel();
  /// Answers the prompt with a point; false if none waits for one.
  bool click(const OdGePoint3d& point);
  /// Answers the prompt with a text that was edited in the drawing; false if none waits for one.
  bool giveText(const OdString& text);
  /// Does something to the active drawing as one undo step of its own, unless a command runs: then
  /// nothing is done, and the command line says so. False if nothing was done.
  bool change(const OdString& step, const std::function<void(OdDbDatabase&)>& change);

  /// A variable of the active document; invalid if there is none.
  OdVariant variable(const char* name);
  bool setVariable(const char* name, const OdVariant& value);
  /// A setting of the desktop; `preset` if it is not set.
  OdVariant setting(const char* key, const OdVariant& preset = {});
  void setSetting(const char* key, const OdVariant& value);

  /// What repeat() runs, as a menu shows it; empty if there is nothing.
  OdString lastRun() const { return m_lastAction ? m_lastAction->name() : m_lastCommand; }
  /// Runs once more what the user ran last: a command, or what a module offered instead.
  void repeat();

 Q_SIGNALS:
  /// Something is about to be typed or clicked.
  void aboutToTake();
  /// The engine has taken up all there was, and waits.
  void settled();
  void documentActivated(drafton::Document* document);
  /// The document is about to go.
  void documentClosing(drafton::Document* document);
  void variableChanged(const QString& name);

 private:
  class Events;
  class Repetition;

  DesktopConsole m_console;
  EventInput m_input;
  std::unique_ptr<Engine> m_engine;
  OdSmartPtr<Events> m_events;
  OdString m_lastCommand;
  KVPtr<IHostRepeatable> m_lastAction; ///< newer than the command
};

} // namespace drafton
