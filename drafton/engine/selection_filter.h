// Which entities a choice takes at all.
#pragma once

#include "drawing/entities/entity.h"

#include <optional>

namespace drafton {

/// What entities must be like to be chosen. A condition that is not set lets everything pass.
struct SelectionFilter {
  /// Patterns for the names of kinds, as in files ("LINE", "LWPOLYLINE"), of classes ("OdDbLine"),
  /// or of the commands that draw them ("PLINE", "HATCH").
  OdString types;
  OdString layers;    ///< patterns
  OdString linetypes; ///< patterns, "ByLayer" for those that have none of their own
  std::optional<OdCmColor> color;

  bool isSet() const;
  bool accepts(const OdDbEntity& entity) const;
  /// The conditions as they are shown: "Type=LINE  Layer=W*".
  OdString shown() const;
};

} // namespace drafton
