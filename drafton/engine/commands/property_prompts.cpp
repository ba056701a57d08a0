#include "drafton/engine/commands/property_prompts.h"

#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drafton/engine/variable_table.h"
#include "drawing/database.h"

namespace drafton {
namespace {

constexpr int kThickest = OdDb::kLnWt211;
constexpr int kClearest = 90; ///< percent

bool fits(const OdCmColor& color, ColorKinds kinds) {
  return !color.isNone() &&
         (kinds == ColorKinds::kAll || !(color.isByLayer() || color.isByBlock()));
}

Task<OdCmColor> askTrueColor(CommandContext& context) {
  for (;;) {
    const Answer<OdString> text =
        co_await context.input().string({.text = u"Enter Red,Green,Blue"});
    const std::optional<OdCmColor> color = colorFromValue(OdVariant(text.value));
    if (color && color->isByColor()) co_return *color;
    context.print(translated(u"Three numbers from 0 to 255 with commas between them are needed."));
  }
}

/// A colour under the names of a book. Books are not at hand, so its parts are asked for as well.
Task<OdCmColor> askBookColor(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdString> book =
      co_await input.string({.text = u"Enter color book name", .allowBlanks = true});
  const Answer<OdString> name =
      co_await input.string({.text = u"Enter color name", .allowBlanks = true});
  OdCmColor color = co_await askTrueColor(context);
  color.setNames(name.value, book.value);
  co_return color;
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

std::optional<OdDb::LineWeight> lineWeightFrom(OdString text) {
  if (text.endsWith(QLatin1String("mm"), Qt::CaseInsensitive)) text.chop(2);
  const std::optional<double> width = parseReal(text.trimmed());
  if (!width || *width < 0 || *width > kThickest / 100.0) return std::nullopt;
  return nearestLineWeight(*width);
}

void printLinetypes(CommandContext& context) {
  const auto table = context.database().getLinetypeTableId().openAs<OdDbLinetypeTable>();
  for (auto at = table->newIterator(); !at->done(); at->step())
    if (const OdDbLinetypeTableRecordPtr linetype = at->getRecord())
      context.print(QStringLiteral("\"%1\"  %2").arg(linetype->getName(), linetype->comments()));
}

OdDbDictionaryPtr plotStyles(const OdDbDatabase& database) {
  return database.getPlotStyleNameDictionaryId().openObject();
}

void printPlotStyles(CommandContext& context) {
  context.print(QStringLiteral("ByLayer\nByBlock"));
  if (const OdDbDictionaryPtr styles = plotStyles(context.database()))
    for (const OdDbDictionary::Entry& entry : styles->entries()) context.print(entry.name);
}

std::optional<PlotStyle> plotStyleFrom(const OdDbDatabase& database, const OdString& name) {
  const auto is = [&](QLatin1String word) { return name.compare(word, Qt::CaseInsensitive) == 0; };
  if (is(QLatin1String("ByLayer"))) return PlotStyle{OdDb::kPlotStyleNameByLayer, {}};
  if (is(QLatin1String("ByBlock"))) return PlotStyle{OdDb::kPlotStyleNameByBlock, {}};
  if (const OdDbDictionaryPtr styles = plotStyles(database))
    for (const OdDbDictionary::Entry& entry : styles->entries())
      if (name.compare(entry.name, Qt::CaseInsensitive) == 0)
        return PlotStyle{OdDb::kPlotStyleNameById, entry.id};
  return std::nullopt;
}

} // namespace

Task<std::optional<OdCmColor>> askColor(CommandContext& context, const char16_t* question,
                                        std::optional<OdCmColor> now, ColorKinds kinds) {
  const OdString shown = now ? shownColor(*now) : kVaries.toString();
  for (;;) {
    const Answer<OdString> text = co_await context.input().string(
        {.text = question, .keywords = u"Truecolor COlorbook", .defaultValue = QStringView(shown)});
    if (text.is(u"Truecolor")) co_return co_await askTrueColor(context);
    if (text.is(u"COlorbook")) co_return co_await askBookColor(context);
    if (text.value == shown) co_return now;
    const std::optional<OdCmColor> color = colorFromValue(OdVariant(text.value));
    if (color && fits(*color, kinds)) co_return color;
    context.print(
        translated(u"A color is needed: a name, a number from 1 to 255, or red,green,blue."));
  }
}

Task<OdCmColor> askOwnColor(CommandContext& context, const char16_t* question) {
  for (;;) {
    const Answer<OdString> text =
        co_await context.input().string({.text = question, .keywords = u"Truecolor COlorbook"});
    if (text.is(u"Truecolor")) co_return co_await askTrueColor(context);
    if (text.is(u"COlorbook")) co_return co_await askBookColor(context);
    const std::optional<OdCmColor> color = colorFromValue(OdVariant(text.value));
    // Nobody is there whom 0 or 256 could be taken from.
    if (color && fits(*color, ColorKinds::kOwn)) co_return *color;
    context.print(
        translated(u"A color is needed: a name, a number from 1 to 255, or red,green,blue."));
  }
}

Task<OdDbObjectId> askLinetype(CommandContext& context, const char16_t* question,
                               std::optional<OdDbObjectId> now, bool allowsLogical) {
  const OdDbDatabase& database = context.database();
  const OdString shown = now ? recordName(*now) : kVaries.toString();
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = question, .keywords = u"?", .defaultValue = QStringView(shown)});
    if (name.is(u"?")) {
      printLinetypes(context);
      continue;
    }
    if (name.value == shown) co_return now.value_or(OdDbObjectId());
    const auto table = database.getLinetypeTableId().openAs<OdDbLinetypeTable>();
    const OdDbObjectId found = table->getAt(name.value);
    if (found.isNull())
      context.print(translated(u"There is no line type \"%1\".").arg(name.value.left(60)));
    else if (!allowsLogical &&
             (found == database.getLinetypeByLayerId() || found == database.getLinetypeByBlockId()))
      context.print(translated(u"A layer cannot have the line type \"%1\".").arg(name.value));
    else if (const OdString fault = recordUseFault(*found.openAs<OdDbSymbolTableRecord>());
             !fault.isEmpty())
      context.print(fault);
    else
      co_return found;
  }
}

Task<std::optional<OdDb::LineWeight>> askLineWeight(CommandContext& context,
                                                    const char16_t* question,
                                                    std::optional<OdDb::LineWeight> now,
                                                    bool allowsLogical) {
  const OdString shown = now ? shownLineWeight(*now) : kVaries.toString();
  const QStringView keywords = allowsLogical ? u"ByLayer ByBlock Default" : u"Default";
  for (;;) {
    const Answer<OdString> text = co_await context.input().string(
        {.text = question, .keywords = keywords, .defaultValue = QStringView(shown)});
    if (text.is(u"ByLayer")) co_return OdDb::kLnWtByLayer;
    if (text.is(u"ByBlock")) co_return OdDb::kLnWtByBlock;
    if (text.is(u"Default")) co_return OdDb::kLnWtByLwDefault;
    if (text.value == shown) co_return now;
    if (const std::optional<OdDb::LineWeight> weight = lineWeightFrom(text.value)) co_return weight;
    context.print(translated(u"A width from 0.0 to 2.11 millimetres or Default is needed."));
  }
}

Task<std::optional<OdCmTransparency>> askTransparency(CommandContext& context,
                                                      const char16_t* question,
                                                      std::optional<OdCmTransparency> now) {
  const OdString shown = now ? shownTransparency(*now) : kVaries.toString();
  for (;;) {
    const Answer<OdString> text = co_await context.input().string(
        {.text = question, .keywords = u"ByLayer ByBlock", .defaultValue = QStringView(shown)});
    if (text.is(u"ByLayer")) co_return OdCmTransparency();
    if (text.is(u"ByBlock")) co_return OdCmTransparency(OdCmTransparency::kByBlock);
    if (text.value == shown) co_return now;
    if (const std::optional<int> percent = parseInteger(text.value);
        percent && *percent >= 0 && *percent <= kClearest)
      co_return OdCmTransparency::fromPercent(*percent);
    context.print(translated(u"A whole number from 0 to 90, ByLayer or ByBlock is needed."));
  }
}

Task<std::optional<PlotStyle>> askPlotStyle(CommandContext& context, const char16_t* question,
                                            std::optional<PlotStyle> now) {
  const OdString shown = now ? shownPlotStyle(now->type, now->id) : kVaries.toString();
  for (;;) {
    const Answer<OdString> name =
        co_await context.input().string({.text = question,
                                         .keywords = u"?",
                                         .allowBlanks = true,
                                         .defaultValue = QStringView(shown)});
    if (name.is(u"?")) {
      printPlotStyles(context);
      continue;
    }
    if (name.value == shown) co_return now;
    if (const std::optional<PlotStyle> style = plotStyleFrom(context.database(), name.value))
      co_return style;
    context.print(translated(u"There is no plot style \"%1\".").arg(name.value.left(60)));
  }
}

} // namespace drafton
