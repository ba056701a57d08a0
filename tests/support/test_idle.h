// Idle time that a test gives out by hand.
#pragma once

#include "host/idle.h"

#include <algorithm>
#include <vector>

namespace testhost {

/// Does pieces when it is told to, and never by itself.
class TestIdle : public CKVUnknownImpl<IHostIdle> {
 public:
  std::vector<IHostIdleWork*> works;

  void add(IHostIdleWork* work) override {
    if (std::find(works.begin(), works.end(), work) == works.end()) works.push_back(work);
  }
  void remove(IHostIdleWork* work) override { std::erase(works, work); }

  /// One piece of the first work; false if there is none.
  bool doPiece() {
    if (works.empty()) return false;
    IHostIdleWork* const work = works.front();
    if (!work->doPiece()) remove(work);
    return true;
  }
  void doAll() {
    while (doPiece()) {
    }
  }
};

} // namespace testhost
