// LAYER: colour, line type, line weight, plotting and description.

#include "drafton/engine/commands/layer_options.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drafton/engine/variable_table.h"

namespace drafton {
namespace {

constexpr const char16_t* kColorNames[] = {u"red",  u"yellow",  u"green", u"cyan",
                                           u"blue", u"magenta", u"white"};

constexpr int kThickest = OdDb::kLnWt211;
constexpr qsizetype kLongestDescription = 255;

/// A colour that layers can have; none for texts that are no such colour.
std::optional<OdCmColor> layerColorFrom(const OdString& text) {
  const std::optional<OdCmColor> color = colorFromValue(OdVariant(text));
  // A layer has nobody to take its colour from.
  if (!color || color->isByLayer() || color->isByBlock() || color->isNone()) return std::nullopt;
  return color;
}

Task<OdCmColor> askTrueColor(CommandContext& context) {
  for (;;) {
    const Answer<OdString> text =
        co_await context.input().string({.text = u"Enter Red,Green,Blue"});
    const std::optional<OdCmColor> color = layerColorFrom(text.value);
    if (color && color->isByColor()) co_return *color;
    context.print(translated(u"Three numbers from 0 to 255 with commas between them are needed."));
  }
}

Task<OdCmColor> askColor(CommandContext& context) {
  const KeywordList keywords(u"Truecolor");
  for (;;) {
    const Answer<OdString> text =
        co_await context.input().string({.text = u"New color (or Truecolor)"});
    if (const std::optional<OdCmColor> color = layerColorFrom(text.value)) co_return *color;
    if (keywords.match(text.value)) co_return co_await askTrueColor(context);
    context.print(
        translated(u"A color is needed: a name, a number from 1 to 255, or red,green,blue."));
  }
}

void printLinetypes(CommandContext& context) {
  const auto table = context.database().getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (auto at = table->newIterator(); !at->done(); at->step())
    if (const OdDbLinetypeTableRecordPtr linetype = at->getRecord())
      context.print(QStringLiteral("\"%1\"  %2").arg(linetype->getName(), linetype->comments()));
}

Task<OdDbObjectId> askLinetype(CommandContext& context) {
  const OdDbDatabase& database = context.database();
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter loaded linetype name or ?", .defaultValue = u"Continuous"});
    if (name.value == QLatin1String("?")) {
      printLinetypes(context);
      continue;
    }
    const auto table = database.getLinetypeTableId().openAs<OdDbLinetypeTable>();
    const OdDbObjectId found = table->getAt(name.value);
    if (found.isNull())
      context.print(translated(u"There is no line type \"%1\".").arg(name.value.left(60)));
    else if (found == database.getLinetypeByLayerId() || found == database.getLinetypeByBlockId())
      context.print(translated(u"A layer cannot have the line type \"%1\".").arg(name.value));
    else
      co_return found;
  }
}

/// The width that drawings know next to a number of millimetres.
OdDb::LineWeight nearestLineWeight(double millimetres) {
  int best = 0;
  for (int weight = 0; weight <= kThickest; ++weight)
    if (OdDb::isValidLineWeight(weight) &&
        std::abs(weight - millimetres * 100) < std::abs(best - millimetres * 100))
      best = weight;
  return static_cast<OdDb::LineWeight>(best);
}

Task<OdDb::LineWeight> askLineWeight(CommandContext& context) {
  const KeywordList keywords(u"Default");
  for (;;) {
    const Answer<OdString> text = co_await context.input().string(
        {.text = u"Enter lineweight (0.0mm - 2.11mm)", .defaultValue = u"Default"});
    if (keywords.match(text.value)) co_return OdDb::kLnWtByLwDefault;
    OdString number = text.value;
    if (number.endsWith(QLatin1String("mm"), Qt::CaseInsensitive)) number.chop(2);
    const std::optional<double> width = parseReal(number.trimmed());
    if (width && *width >= 0 && *width <= kThickest / 100.0) co_return nearestLineWeight(*width);
    context.print(translated(u"A width from 0.0 to 2.11 millimetres or Default is needed."));
  }
}

} // namespace

OdString shownLayerColor(const OdCmColor& color) {
  if (color.isByColor())
    return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
  const std::size_t index = color.colorIndex();
  if (index >= 1 && index <= std::size(kColorNames))
    return QStringLiteral("%1 (%2)").arg(index).arg(translated(kColorNames[index - 1]));
  return OdString::number(index);
}

OdString shownLineWeight(OdDb::LineWeight weight) {
  if (weight < 0) return translated(u"Default");
  return QStringLiteral("%1mm").arg(OdString::number(int{weight} / 100.0, 'f', 2));
}

Task<void> colorLayers(CommandContext& context) {
  const OdCmColor color = co_await askColor(context);
  const OdString question =
      translated(u"Enter name list of layer(s) for color %1").arg(shownLayerColor(color));
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setColor(color);
}

Task<void> setLayerLinetypes(CommandContext& context) {
  const OdDbObjectId linetype = co_await askLinetype(context);
  const OdDbLinetypeTableRecordPtr record = linetype.openObject();
  const OdString question =
      translated(u"Enter name list of layer(s) for linetype \"%1\"").arg(record->getName());
  const LayerSet::Match match = co_await askLayers(context, question, true);
  for (const OdDbLayerTableRecordPtr& layer : match.layers) layer->setLinetypeObjectId(linetype);
}

Task<void> setLayerLineWeights(CommandContext& context) {
  const OdDb::LineWeight weight = co_await askLineWeight(context);
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
