// LAYER: colour, line type, line weight, plotting and description.

#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

constexpr qsizetype kLongestDescription = 255;

} // namespace

Task<void> colorLayers(CommandContext& context) {
  const OdCmColor color = co_await askOwnColor(context, u"New color");
  const OdString question =
      translated(u"Enter name list of layer(s) for color %1").arg(shownColor(color));
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setColor(color);
}

Task<void> setLayerLinetypes(CommandContext& context) {
  const OdDbObjectId continuous = context.database().getLinetypeContinuousId();
  const OdDbObjectId linetype =
      co_await askLinetype(context, u"Enter loaded linetype name", continuous, false);
  const OdDbLinetypeTableRecordPtr record = linetype.openObject();
  const OdString question =
      translated(u"Enter name list of layer(s) for linetype \"%1\"").arg(record->getName());
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setLinetypeObjectId(linetype);
}

Task<void> setLayerLineWeights(CommandContext& context) {
  const std::optional<OdDb::LineWeight> answer = co_await askLineWeight(
      context, u"Enter lineweight (0.0mm - 2.11mm)", OdDb::kLnWtByLwDefault, false);
  const OdDb::LineWeight weight = answer.value_or(OdDb::kLnWtByLwDefault);
  const OdString question =
      translated(u"Enter name list of layer(s) for lineweight %1").arg(shownLineWeight(weight));
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setLineWeight(weight);
}

Task<void> setLayerPlotting(CommandContext& context) {
  const Answer<OdString> choice = co_await context.input().keyword(
      {.text = u"Enter a plotting preference", .keywords = u"Plot No", .defaultValue = u"Plot"});
  const OdString question = translated(u"Enter layer name(s) for this plot preference");
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers)
    layer->setIsPlottable(choice.is(u"Plot"));
}

Task<void> describeLayers(CommandContext& context) {
  OdString text;
  for (;;) {
    const Answer<OdString> answer = co_await context.input().string(
        {.text = u"Enter layer description", .allowBlanks = true, .allowEmpty = true});
    text = answer.value.simplified();
    if (text.size() <= kLongestDescription) break;
    context.print(translated(u"A description has at most %1 characters.").arg(kLongestDescription));
  }
  const OdString question = translated(u"Enter name list of layer(s) for this description");
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setDescription(text);
}

} // namespace drafton
