// Values of kept tags. Not for use outside of the library.
#pragma once

#include "drawing/color.h"
#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"

namespace oddb {

/// A number; 0 for what is none or not finite.
inline double realOf(const OdDbKeptTags::Tag& tag) {
  bool ok = false;
  const double value = tag.value.trimmed().toDouble(&ok);
  return ok && std::isfinite(value) ? value : 0;
}

inline int integerOf(const OdDbKeptTags::Tag& tag) { return tag.value.trimmed().toInt(); }

/// The object with a handle; null for none.
inline OdDbObjectId objectOf(const OdDbKeptTags::Tag& tag, const OdDbDatabase& database) {
  const QByteArray text = tag.value.trimmed();
  const auto handle =
      OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
  return handle ? database.getOdDbObjectId(*handle) : OdDbObjectId();
}

/// Takes a part of the point whose x has the code `base`; false if the tag is none.
template <class P>
bool takePart(const OdDbKeptTags::Tag& tag, int base, P& p) {
  double* const parts[] = {&p.x, &p.y, &p.z};
  for (int i = 0; i < 3; ++i) {
    if (tag.code != base + 10 * i) continue;
    *parts[i] = realOf(tag);
    return true;
  }
  return false;
}

/// The tags of one subclass.
inline OdDbKeptTags tagsOf(const OdDbKeptTags& all, const char* subclass) {
  constexpr int kSubclass = 100;
  OdDbKeptTags found;
  bool inside = false;
  for (const OdDbKeptTags::Tag& tag : all.tags) {
    if (tag.code == kSubclass) inside = tag.value.trimmed() == subclass;
    if (inside) found.tags.push_back(tag);
  }
  return found;
}

} // namespace oddb
