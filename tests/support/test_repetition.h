// What the host repeats, for tests.
#pragma once

#include "host/repetition.h"

namespace testhost {

/// Remembers what the user ran last.
class TestRepetition : public CKVUnknownImpl<IHostRepetition> {
 public:
  KVPtr<IHostRepeatable> last;

  void userRan(IHostRepeatable* action) override { last = action; }
};

} // namespace testhost
