// How entities keep what few of them have. Not for use outside of the library.
#pragma once

#include "drawing/entities/entity.h"
#include "drawing/object_extras.h"

namespace oddb {

/// What an entity has that keeps no extras.
inline const OdDbObjectExtras kNoExtras;

} // namespace oddb

template <class M>
void OdDbEntity::setExtra(M OdDbObjectExtras::*member, const M& value) {
  if (!m_extras) {
    if (value == oddb::kNoExtras.*member) return;
    m_extras = std::make_unique<OdDbObjectExtras>();
  }
  (*m_extras).*member = value;
}
