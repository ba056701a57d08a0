// A place within a step.
#pragma once

#include <cstddef>
#include <cstdint>

/// Where a running step stood; see OdDbDatabase::undoMark(). Nothing in it is for users.
struct OdDbUndoMark {
  std::uint64_t record = 0; ///< 0: nothing was recorded
  std::size_t changes = 0;
  std::uint64_t handseed = 0;
};
