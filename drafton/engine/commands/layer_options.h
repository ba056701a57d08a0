// The options of LAYER.
#pragma once

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/layer_set.h"
#include "drafton/engine/task.h"

namespace drafton {

// Each option asks what it needs and does its work. Input that it cannot use is told, and asked
// again. They stand by their kind (layer_switches.cpp, layer_values.cpp, layer_naming.cpp).

Task<void> listLayers(CommandContext& context);
Task<void> makeLayer(CommandContext& context);
Task<void> setCurrentLayer(CommandContext& context);
Task<void> newLayers(CommandContext& context);
Task<void> renameLayer(CommandContext& context);

Task<void> turnLayersOn(CommandContext& context);
Task<void> turnLayersOff(CommandContext& context);
Task<void> freezeLayers(CommandContext& context);
Task<void> thawLayers(CommandContext& context);
Task<void> lockLayers(CommandContext& context);
Task<void> unlockLayers(CommandContext& context);

Task<void> colorLayers(CommandContext& context);
Task<void> setLayerLinetypes(CommandContext& context);
Task<void> setLayerLineWeights(CommandContext& context);
Task<void> setLayerPlotting(CommandContext& context);
Task<void> describeLayers(CommandContext& context);

/// Asks for a list of names and patterns until some layer fits; names without a layer are told.
/// Enter gives the current layer if `allowsCurrent`, else no layer.
Task<LayerSet::Match> askLayers(CommandContext& context, OdString question, bool allowsCurrent);

} // namespace drafton
