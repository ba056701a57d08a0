// How hatches are made: what the variables and the hatch settings of the program say.
#pragma once

#include "drafton/engine/boundary/boundary_loop.h"
#include "drafton/engine/command_context.h"
#include "drawing/color.h"
#include "drawing/patterns/hatch_pattern.h"

#include <array>

namespace drafton {

/// What fills the area of a hatch.
struct HatchFill {
  /// The first three are the numbers of the hatch setting "hatch_type".
  enum class Kind { kPredefined = 0, kUserDefined = 1, kCustom = 2, kSolid, kGradient };

  Kind kind = Kind::kPredefined;
  // Patterns.
  OdString name; ///< HPNAME
  OdString file; ///< the setting "hatch_pattern_file"; may be empty
  double angle = 0, scale = 1, spacing = 1;
  bool isDouble = false;
  // Gradients.
  int gradient = 1; ///< GFNAME, from 1
  double gradientAngle = 0;
  bool isCentered = true;
  std::array<OdCmColor, 2> gradientColors;

  bool isPattern() const { return kind <= Kind::kCustom; }
};

struct HatchOptions {
  HatchFill fill;
  OdCmColor color; ///< HPCOLOR
  IslandStyle style = IslandStyle::kOuter;
  double gap = 0;
  bool isAssociative = true;
};

/// The options as variables and settings have them.
HatchOptions hatchOptions(const CommandContext& context);
/// As hatchOptions(), for a gradient.
HatchOptions gradientOptions(const CommandContext& context);
/// Keeps options for the next hatch.
void keepOptions(const CommandContext& context, const HatchOptions& options);

/// The names of the nine gradients in the order of GFNAME, as hatches have them.
extern const std::array<QStringView, 9> kGradientNames;

/// Raises CommandFailure, with what is wrong with its file, if there is no pattern of the fill's
/// name; tells what of a file of the user's own could not be understood.
void checkPattern(const CommandContext& context, const HatchFill& fill);
/// The pattern that a fill draws with, at scale 1 and angle 0; without lines for solid ones and
/// gradients. Raises CommandFailure if there is no pattern of the name.
OdHatchPattern patternOf(const CommandContext& context, const HatchFill& fill);

} // namespace drafton
