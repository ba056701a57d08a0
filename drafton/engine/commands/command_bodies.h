// The bodies of the commands that draw, edit and show; drawing_commands.cpp gives them their names.
#pragma once

#include "drafton/engine/native_command.h"

namespace drafton {

Task<void> line(CommandContext& context);
Task<void> polyline(CommandContext& context);
Task<void> circle(CommandContext& context);
Task<void> arc(CommandContext& context);
Task<void> rectangle(CommandContext& context);
Task<void> text(CommandContext& context);
Task<void> defineAttribute(CommandContext& context);
Task<void> erase(CommandContext& context);
Task<void> move(CommandContext& context);
Task<void> copy(CommandContext& context);
Task<void> rotate(CommandContext& context);
Task<void> scale(CommandContext& context);
Task<void> mirror(CommandContext& context);
Task<void> trim(CommandContext& context);
Task<void> extend(CommandContext& context);
Task<void> stretch(CommandContext& context);
Task<void> array(CommandContext& context);
Task<void> breakCurve(CommandContext& context);
Task<void> join(CommandContext& context);
Task<void> fillet(CommandContext& context);
Task<void> chamfer(CommandContext& context);
Task<void> explode(CommandContext& context);
Task<void> offset(CommandContext& context);
Task<void> multilineText(CommandContext& context);
Task<void> editText(CommandContext& context);
Task<void> linetype(CommandContext& context);
Task<void> textStyle(CommandContext& context);
Task<void> select(CommandContext& context);
Task<void> quickSelect(CommandContext& context);
Task<void> changeProperties(CommandContext& context);
Task<void> matchProperties(CommandContext& context);
Task<void> currentColor(CommandContext& context);
Task<void> currentLineWeight(CommandContext& context);
Task<void> polygon(CommandContext& context);
Task<void> donut(CommandContext& context);
Task<void> ellipse(CommandContext& context);
Task<void> spline(CommandContext& context);
Task<void> leader(CommandContext& context);
Task<void> linearDimension(CommandContext& context);
Task<void> alignedDimension(CommandContext& context);
Task<void> continueDimension(CommandContext& context);
Task<void> baselineDimension(CommandContext& context);
Task<void> angularDimension(CommandContext& context);
Task<void> radiusDimension(CommandContext& context);
Task<void> diameterDimension(CommandContext& context);
Task<void> dimensionStyle(CommandContext& context);
Task<void> addSelected(CommandContext& context);
Task<void> point(CommandContext& context);
Task<void> distance(CommandContext& context);
Task<void> area(CommandContext& context);
Task<void> undoSteps(CommandContext& context);
Task<void> undoLast(CommandContext& context);
Task<void> redo(CommandContext& context);
Task<void> zoom(CommandContext& context);
Task<void> setVariable(CommandContext& context);
Task<void> layer(CommandContext& context);
Task<void> boundaryHatch(CommandContext& context);
Task<void> fastHatch(CommandContext& context);
Task<void> fastGradient(CommandContext& context);
Task<void> boundary(CommandContext& context);

} // namespace drafton
