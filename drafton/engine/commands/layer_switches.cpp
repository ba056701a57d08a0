// LAYER: what is switched on a layer.

#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// One state of layers: the question, and the setter with its value.
struct LayerSwitch {
  const char16_t* question;
  void (OdDbLayerTableRecord::*set)(bool);
  bool value;
};

constexpr LayerSwitch kOn{u"Enter name list of layer(s) to turn on",
                          &OdDbLayerTableRecord::setIsOff, false};
constexpr LayerSwitch kOff{u"Enter name list of layer(s) to turn off",
                           &OdDbLayerTableRecord::setIsOff, true};
constexpr LayerSwitch kFreeze{u"Enter name list of layer(s) to freeze",
                              &OdDbLayerTableRecord::setIsFrozen, true};
constexpr LayerSwitch kThaw{u"Enter name list of layer(s) to thaw",
                            &OdDbLayerTableRecord::setIsFrozen, false};
constexpr LayerSwitch kLock{u"Enter name list of layer(s) to lock",
                            &OdDbLayerTableRecord::setIsLocked, true};
constexpr LayerSwitch kUnlock{u"Enter name list of layer(s) to unlock",
                              &OdDbLayerTableRecord::setIsLocked, false};

/// Whether a layer may be switched; tells or asks where that is in doubt.
using Permission = Task<bool> (*)(CommandContext& context, OdString name);

Task<bool> refuseFreezing(CommandContext& context, OdString name) {
  context.print(translated(u"Layer \"%1\" is the current layer and cannot be frozen.").arg(name));
  co_return false;
}

Task<bool> confirmTurningOff(CommandContext& context, OdString name) {
  const OdString question =
      translated(u"Layer \"%1\" is the current layer. Really turn it off?").arg(name);
  const Answer<OdString> sure = co_await context.input().keyword(
      {.text = QStringView(question), .keywords = u"Yes No", .defaultValue = u"No"});
  co_return sure.is(u"Yes");
}

/// `forCurrent` is asked about the current layer; null if that one is like the others.
Task<void> switchLayers(CommandContext& context, const LayerSwitch& state, Permission forCurrent) {
  const LayerSet layers(context.database());
  const OdString question = translated(state.question);
  const LayerSet::Match match = co_await askLayers(context, question, false);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) {
    if (forCurrent && layers.isCurrent(*layer)) {
      const OdString name = layer->getName();
      const bool allowed = co_await forCurrent(context, name);
      if (!allowed) continue;
    }
    (layer->*state.set)(state.value);
  }
}

} // namespace

Task<void> turnLayersOn(CommandContext& context) { return switchLayers(context, kOn, nullptr); }
Task<void> turnLayersOff(CommandContext& context) {
  return switchLayers(context, kOff, confirmTurningOff);
}
Task<void> freezeLayers(CommandContext& context) {
  return switchLayers(context, kFreeze, refuseFreezing);
}
Task<void> thawLayers(CommandContext& context) { return switchLayers(context, kThaw, nullptr); }
Task<void> lockLayers(CommandContext& context) { return switchLayers(context, kLock, nullptr); }
Task<void> unlockLayers(CommandContext& context) { return switchLayers(context, kUnlock, nullptr); }

} // namespace drafton
