// LAYER: listing, making and renaming layers, and choosing the current one.

#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

OdString linetypeName(const OdDbLayerTableRecord& layer) {
  const OdDbLinetypeTableRecordPtr linetype = layer.linetypeObjectId().openObject();
  return linetype ? linetype->getName() : QStringLiteral("Continuous");
}

struct StateWord {
  bool (OdDbLayerTableRecord::*test)() const;
  const char16_t* word;
};

constexpr StateWord kStateWords[] = {
    {&OdDbLayerTableRecord::isOff, u"off"},
    {&OdDbLayerTableRecord::isFrozen, u"frozen"},
    {&OdDbLayerTableRecord::isLocked, u"locked"},
};

OdString stateOf(const OdDbLayerTableRecord& layer) {
  QStringList words;
  for (const StateWord& row : kStateWords)
    if ((layer.*row.test)()) words << translated(row.word);
  if (!layer.isPlottable()) words << translated(u"not plotted");
  return words.isEmpty() ? translated(u"on") : words.join(QStringLiteral(", "));
}

void printLayer(CommandContext& context, const OdDbLayerTableRecord& layer) {
  OdString line = QStringLiteral("\"%1\"  %2  %3  %4  %5")
                      .arg(layer.getName(), stateOf(layer), shownColor(layer.color()),
                           linetypeName(layer), shownLineWeight(layer.lineWeight()));
  if (const OdString text = layer.description(); !text.isEmpty())
    line += QStringLiteral("  ") + text;
  context.print(line);
}

/// True if layers may get the name; if not, tells why.
bool checkName(CommandContext& context, const OdString& name) {
  const OdString fault = recordNameFault(name);
  if (fault.isEmpty()) return true;
  context.print(translated(u"\"%1\" is no name for a layer: %2.").arg(name.left(60), fault));
  return false;
}

bool checkCanBeCurrent(CommandContext& context, const OdDbLayerTableRecord& layer) {
  if (const OdString fault = recordUseFault(layer); !fault.isEmpty()) {
    context.print(fault);
    return false;
  }
  if (!layer.isFrozen()) return true;
  context.print(
      translated(u"Layer \"%1\" is frozen and cannot be made current.").arg(layer.getName()));
  return false;
}

/// Why a layer keeps its name; empty if it can be renamed.
OdString renamingFault(const LayerSet& layers, const OdDbLayerTableRecord& layer) {
  if (layer.objectId() == layers.database().getLayerZeroId())
    return translated(u"Layer \"0\" cannot be renamed.");
  if (layer.isDependent())
    return translated(u"Layer \"%1\" belongs to an external reference and cannot be renamed.")
        .arg(layer.getName());
  return {};
}

/// A layer that can be renamed; null for Enter.
Task<OdDbLayerTableRecordPtr> askLayerToRename(CommandContext& context) {
  const LayerSet layers(context.database());
  for (;;) {
    const Answer<OdString> name =
        co_await context.input().string({.text = u"Enter old layer name", .allowEmpty = true});
    if (name.isEmpty()) co_return OdDbLayerTableRecordPtr();
    const OdDbLayerTableRecordPtr layer = layers.find(name.value, OdDb::kForWrite);
    const OdString fault = layer
                               ? renamingFault(layers, *layer)
                               : translated(u"There is no layer \"%1\".").arg(name.value.left(60));
    if (fault.isEmpty()) co_return layer;
    context.print(fault);
  }
}

} // namespace

Task<void> listLayers(CommandContext& context) {
  const Answer<OdString> list = co_await context.input().string(
      {.text = u"Enter layer name(s) to list", .defaultValue = u"*"});
  const LayerSet layers(context.database());
  context.print(translated(u"Current layer: \"%1\"").arg(layers.currentName()));
  const LayerSet::Match match = layers.matching(list.value);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) printLayer(context, *layer);
  if (match.layers.empty())
    context.print(translated(u"No layer fits \"%1\".").arg(list.value.left(60)));
}

Task<void> makeLayer(CommandContext& context) {
  LayerSet layers(context.database());
  const OdString current = layers.currentName();
  for (;;) {
    const Answer<OdString> answer =
        co_await context.input().string({.text = u"Enter name for new layer (becomes current)",
                                         .defaultValue = QStringView(current)});
    const OdString name = answer.value.trimmed();
    if (const OdDbLayerTableRecordPtr layer = layers.find(name)) {
      if (!checkCanBeCurrent(context, *layer)) continue;
      layers.setCurrent(layer->objectId());
      co_return;
    }
    if (!checkName(context, name)) continue;
    layers.setCurrent(layers.add(name));
    co_return;
  }
}

Task<void> setCurrentLayer(CommandContext& context) {
  LayerSet layers(context.database());
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter layer name to make current", .allowEmpty = true});
    if (name.isEmpty()) co_return;
    const OdDbLayerTableRecordPtr layer = layers.find(name.value);
    if (!layer) {
      context.print(translated(u"There is no layer \"%1\".").arg(name.value.left(60)));
      continue;
    }
    if (!checkCanBeCurrent(context, *layer)) continue;
    layers.setCurrent(layer->objectId());
    co_return;
  }
}

Task<void> newLayers(CommandContext& context) {
  LayerSet layers(context.database());
  for (;;) {
    const Answer<OdString> list = co_await context.input().string(
        {.text = u"Enter name list for new layer(s)", .allowEmpty = true});
    if (list.isEmpty()) co_return;
    int made = 0;
    for (const OdString& name : namesInList(list.value)) {
      if (!checkName(context, name)) continue;
      if (layers.find(name)) {
        context.print(translated(u"Layer \"%1\" already exists.").arg(name));
        continue;
      }
      layers.add(name);
      ++made;
    }
    if (made > 0) co_return;
  }
}

Task<void> renameLayer(CommandContext& context) {
  const LayerSet layers(context.database());
  const OdDbLayerTableRecordPtr layer = co_await askLayerToRename(context);
  if (!layer) co_return;
  for (;;) {
    const Answer<OdString> answer =
        co_await context.input().string({.text = u"Enter new layer name", .allowEmpty = true});
    if (answer.isEmpty()) co_return;
    const OdString name = answer.value.trimmed();
    if (!checkName(context, name)) continue;
    if (const OdDbLayerTableRecordPtr other = layers.find(name); other && other != layer) {
      context.print(translated(u"Layer \"%1\" already exists.").arg(name));
      continue;
    }
    layer->setName(name);
    co_return;
  }
}

} // namespace drafton
