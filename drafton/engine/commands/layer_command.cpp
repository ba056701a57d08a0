// LAYER.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

struct LayerOption {
  const char16_t* keyword;
  Task<void> (*run)(CommandContext& context);
};

constexpr LayerOption kOptions[] = {
    {u"?", listLayers},
    {u"Make", makeLayer},
    {u"Set", setCurrentLayer},
    {u"New", newLayers},
    {u"Rename", renameLayer},
    {u"ON", turnLayersOn},
    {u"OFF", turnLayersOff},
    {u"Color", colorLayers},
    {u"Ltype", setLayerLinetypes},
    {u"LWeight", setLayerLineWeights},
    {u"Plot", setLayerPlotting},
    {u"Freeze", freezeLayers},
    {u"Thaw", thawLayers},
    {u"LOck", lockLayers},
    {u"Unlock", unlockLayers},
    {u"Description", describeLayers},
};

OdString optionKeywords() {
  QStringList words;
  for (const LayerOption& option : kOptions) words << OdString::fromUtf16(option.keyword);
  return words.join(u' ');
}

} // namespace

Task<LayerSet::Match> askLayers(CommandContext& context, OdString question, bool allowsCurrent) {
  const LayerSet layers(context.database());
  const OdString current = layers.currentName();
  std::optional<QStringView> now;
  if (allowsCurrent) now = QStringView(current);
  for (;;) {
    const Answer<OdString> list = co_await context.input().string(
        {.text = QStringView(question), .defaultValue = now, .allowEmpty = true});
    LayerSet::Match match = layers.matching(list.value);
    for (const OdString& name : match.unknown)
      context.print(translated(u"There is no layer \"%1\".").arg(name.left(60)));
    if (list.isEmpty() || !match.layers.empty()) co_return match;
    if (match.unknown.isEmpty()) context.print(translated(u"The name of a layer is needed."));
  }
}

Task<void> layer(CommandContext& context) {
  const OdString keywords = optionKeywords();
  context.print(
      translated(u"Current layer: \"%1\"").arg(LayerSet(context.database()).currentName()));
  for (;;) {
    const Answer<OdString> answer = co_await context.input().keyword(
        {.text = u"Enter an option", .keywords = QStringView(keywords), .allowEmpty = true});
    if (answer.isEmpty()) co_return;
    for (const LayerOption& option : kOptions)
      if (answer.is(option.keyword)) co_await option.run(context);
  }
}

} // namespace drafton
