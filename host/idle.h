// Work that can wait until nobody waits for anything else.
#pragma once

#include "host/unknown.h"

/// Work that is done in pieces.
class IHostIdleWork {
 public:
  /// Does one piece, of a few milliseconds where it can. False once nothing is left to do.
  virtual bool doPiece() = 0;

 protected:
  ~IHostIdleWork() = default;
};

/// Has work done while the event loop has nothing else to do. A host without an event loop offers
/// no such service, and whoever has work does all of it at once.
class IHostIdle : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostIdle";

  /// From the next turn of the event loop on calls pieces of the work, on the thread of the
  /// windows, until one answers false. Several works take turns; one that stands here already is
  /// not added again. The work is not owned, and is removed before it goes.
  virtual void add(IHostIdleWork* work) = 0;
  /// Does nothing for work that is not here.
  virtual void remove(IHostIdleWork* work) = 0;

 protected:
  ~IHostIdle() = default;
};
