#include "drafton/desktop/event_input.h"

#include "drafton/engine/engine.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace drafton {

void EventInput::takeUp() {
  m_isQueued = false;
  if (!m_loops.empty()) return m_loops.back()->quit();
  if (!m_engine) return;
  m_engine->run();
  Q_EMIT settled();
}

void EventInput::collect() {
  const QScopedValueRollback collecting(m_isCollecting, true);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
}

void EventInput::stop() {
  m_isStopped = true;
  for (QEventLoop* const loop : m_loops) loop->quit();
}

bool EventInput::waitForInput() {
  if (m_isStopped || !m_engine || m_engine->isExiting()) return false;
  Q_EMIT settled();
  const QScopedValueRollback collecting(m_isCollecting, false);
  // What was to take it up may have come while input was collected.
  if (std::exchange(m_isQueued, false)) inputQueued();
  QEventLoop loop;
  m_loops.push_back(&loop);
  loop.exec();
  m_loops.pop_back();
  // What waits further out may have got its answer meanwhile.
  if (!m_loops.empty()) inputQueued();
  return !m_isStopped && !m_engine->isExiting();
}

void EventInput::inputQueued() {
  if (std::exchange(m_isQueued, true)) return;
  // Whoever collects takes up what has come.
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (!m_isCollecting) takeUp();
      },
      Qt::QueuedConnection);
}

} // namespace drafton
