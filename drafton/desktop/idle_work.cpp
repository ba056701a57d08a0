#include "drafton/desktop/idle_work.h"

#include <algorithm>

namespace drafton {

/// How long one turn may take, in nanoseconds.
static constexpr qint64 kTurn = 5'000'000;
/// How long new work waits once events are handled, in milliseconds. It often comes with a window,
/// which is painted first.
static constexpr int kFirstRest = 50;

IdleWork::IdleWork() {
  QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { doSome(); });
}

void IdleWork::add(IHostIdleWork* work) {
  if (!work || std::find(m_works.begin(), m_works.end(), work) != m_works.end()) return;
  m_works.push_back(work);
  if (m_timer.isActive()) return;
  m_isRested = false;
  m_timer.start(0);
}

void IdleWork::remove(IHostIdleWork* work) {
  std::erase(m_works, work);
  if (m_works.empty()) m_timer.stop();
}

void IdleWork::doSome() {
  // A piece that waits in an event loop of its own is not done twice at a time.
  if (m_isWorking) return;
  if (!m_isRested) {
    m_isRested = true;
    m_timer.setInterval(kFirstRest);
    return;
  }
  const KVPtr<IHostIdle> held(this);
  m_isWorking = true;
  // A timer without an interval fires when all other events have had their turn.
  if (m_timer.interval() > 0) m_timer.setInterval(0);
  QElapsedTimer clock;
  clock.start();
  qint64 longest = 0;
  // None is begun that would not fit, going by those before it.
  while (!m_works.empty() && clock.nsecsElapsed() + longest < kTurn) {
    const qint64 before = clock.nsecsElapsed();
    doPiece();
    longest = std::max(longest, clock.nsecsElapsed() - before);
  }
  m_isWorking = false;
}

void IdleWork::doPiece() {
  IHostIdleWork* const work = m_works.front();
  const bool isMoreLeft = work->doPiece();
  // It may have been removed meanwhile, and others added.
  const auto at = std::find(m_works.begin(), m_works.end(), work);
  if (at == m_works.end()) return;
  m_works.erase(at);
  if (isMoreLeft)
    m_works.push_back(work);
  else if (m_works.empty())
    m_timer.stop();
}

} // namespace drafton
