// What has to be known of a drawing before it is read.
#pragma once

#include "drawing/dxf/source.h"
#include "drawing/enums.h"

#include <string>

namespace oddxf {

struct Start {
  OdDb::DwgVersion version = OdDb::kR12;
  std::string codePage;       ///< of $DWGCODEPAGE; empty if the file does not tell
  std::uint64_t handseed = 1; ///< above all handles that objects of the file have
  bool hasHandles = false;    ///< objects of old files may have none

  /// True for drawings of R12 and before, which have no subclasses.
  bool isPlain() const { return version == OdDb::kR12; }
};

/// Looks through a source of its own. `name` is for messages. Raises OdFileError if this is no
/// drawing, or one of a version that nobody knows.
Start lookAhead(OdDbDxfSource& source, const OdString& name);

/// No handle of a file may be higher, since new objects need theirs behind it.
constexpr std::uint64_t kHighestHandle = ~std::uint64_t{0} >> 8;

} // namespace oddxf
