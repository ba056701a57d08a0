// Work of modules that is done while nobody waits for anything.
#pragma once

#include "host/idle.h"

#include <QElapsedTimer>
#include <QTimer>

#include <deque>

namespace drafton {

/// Does pieces of work in each turn of the event loop in which nothing else is to be done, for a
/// few milliseconds, so that neither a key nor a frame waits for long. Without work it sleeps.
class IdleWork : public CKVUnknownImpl<IHostIdle> {
 public:
  IdleWork();

  void add(IHostIdleWork* work) override;
  void remove(IHostIdleWork* work) override;

 private:
  void doSome();
  void doPiece();

  std::deque<IHostIdleWork*> m_works; // the next first
  QTimer m_timer;
  bool m_isRested = false;
  bool m_isWorking = false;
};

} // namespace drafton
