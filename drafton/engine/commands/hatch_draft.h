// A hatch while its areas are chosen.
#pragma once

#include "drafton/engine/commands/hatch_areas.h"
#include "drafton/engine/commands/hatch_options.h"

namespace drafton {

/// Shows the areas that are chosen so far as a hatch in the drawing.
class HatchDraft {
 public:
  explicit HatchDraft(const CommandContext& context)
    : m_context(context) {}

  /// Makes the hatch, changes it or takes it away, so that it fills `areas`. Raises CommandFailure
  /// if there is no such pattern.
  void show(const HatchAreas& areas, const HatchOptions& options);

 private:
  const CommandContext& m_context;
  OdDbObjectId m_hatch;
};

} // namespace drafton
