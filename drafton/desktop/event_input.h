// The command line's input where there is an event loop.
#pragma once

#include "drafton/engine/console.h"

#include <QEventLoop>
#include <QObject>

#include <vector>

namespace drafton {

class Engine;

/// Lets the engine go on whenever something was typed or clicked. Commands of modules that ask
/// synchronously wait in a local event loop, so that the window stays alive.
class EventInput : public QObject, public InputSource {
  Q_OBJECT

 public:
  void setEngine(Engine* engine) { m_engine = engine; }

  /// Has the engine take up what was typed: at once, or by ending the wait of what is on the stack.
  void takeUp();
  /// Has modules type what they have put off, and the engine not yet take it up.
  void collect();
  /// True if something was sent that the engine has not begun to take up.
  bool isQueued() const { return m_isQueued; }
  /// True while a command waits on the stack: the program cannot end yet.
  bool isWaiting() const { return !m_loops.empty(); }
  /// No more input will come: whatever waits is cancelled.
  void stop();

  bool waitForInput() override;
  void inputQueued() override;

 Q_SIGNALS:
  /// The engine has done all that it can and waits for the user.
  void settled();

 private:
  Engine* m_engine = nullptr;
  std::vector<QEventLoop*> m_loops; // innermost last
  bool m_isStopped = false;
  bool m_isQueued = false;
  bool m_isCollecting = false;
};

} // namespace drafton
