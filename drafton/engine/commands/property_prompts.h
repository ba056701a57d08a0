// Asking for the values of properties.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/task.h"
#include "drawing/color.h"
#include "drawing/enums.h"
#include "drawing/object_id.h"
#include "drawing/transparency.h"

#include <optional>

namespace drafton {

// Each asks until the answer can be used. `now` is what Enter gives; without it the values of what
// is to be changed vary, and Enter gives nothing. The questions must outlive the prompt: they are
// literals.

/// The text that stands for different values.
constexpr QStringView kVaries = u"varies";

enum class ColorKinds {
  kAll,
  kOwn, ///< not by layer and not by block
};
/// A name, an index, "r,g,b", Truecolor or COlorbook.
Task<std::optional<OdCmColor>> askColor(CommandContext& context, const char16_t* question,
                                        std::optional<OdCmColor> now, ColorKinds kinds);
/// A colour without a default: Enter is refused.
Task<OdCmColor> askOwnColor(CommandContext& context, const char16_t* question);

/// A line type of the drawing; `?` lists them. `allowsLogical`: also ByLayer and ByBlock.
Task<OdDbObjectId> askLinetype(CommandContext& context, const char16_t* question,
                               std::optional<OdDbObjectId> now, bool allowsLogical);

/// Millimetres, or Default; `allowsLogical`: also ByLayer and ByBlock.
Task<std::optional<OdDb::LineWeight>> askLineWeight(CommandContext& context,
                                                    const char16_t* question,
                                                    std::optional<OdDb::LineWeight> now,
                                                    bool allowsLogical);

/// 0 to 90 percent, ByLayer or ByBlock.
Task<std::optional<OdCmTransparency>> askTransparency(CommandContext& context,
                                                      const char16_t* question,
                                                      std::optional<OdCmTransparency> now);

struct PlotStyle {
  OdDb::PlotStyleNameType type = OdDb::kPlotStyleNameByLayer;
  OdDbObjectId id;
  bool operator==(const PlotStyle&) const = default;
};
/// A plot style of the drawing by name, ByLayer or ByBlock; `?` lists them.
Task<std::optional<PlotStyle>> askPlotStyle(CommandContext& context, const char16_t* question,
                                            std::optional<PlotStyle> now);

} // namespace drafton
