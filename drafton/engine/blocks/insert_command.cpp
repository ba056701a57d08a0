// INSERT, and the insertion that modules ask for.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/blocks/drawing_units.h"
#include "drafton/engine/blocks/parameter_set.h"
#include "drafton/engine/blocks/place_prompts.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

/// The block that was inserted or made last.
constexpr QLatin1String kLastBlock("INSNAME");

Task<OdString> askBlockName(CommandContext& context) {
  OdVariant kept;
  context.variables().get(kLastBlock, kept);
  const OdString last = kept.toString();
  const std::optional<QStringView> shown =
      last.isEmpty() ? std::nullopt : std::optional<QStringView>(last);
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter block name", .keywords = u"?", .defaultValue = shown});
    if (!name.is(u"?")) co_return name.value;
    const Answer<OdString> patterns =
        co_await context.input().string({.text = u"Enter block(s) to list", .defaultValue = u"*"});
    listBlocks(context, patterns.value);
  }
}

void showUnits(CommandContext& context, OdDbObjectId block) {
  const auto record = block.openAs<OdDbBlockTableRecord>();
  const OdString units = unitName(record->blockInsertUnits());
  context.print(translated(u"Units: %1   Conversion: %2")
                    .arg(units, shownReal(blockUnitFactor(context.database(), block))));
}

} // namespace

Task<void> insertBlock(CommandContext& context) {
  OdString name = co_await askBlockName(context);
  // A star asks for the pieces; these take one scale only.
  const bool explode = name.startsWith(u'*');
  if (explode) name = name.mid(1);
  const OdDbObjectId block = blockFor(context, name);
  showUnits(context, block);
  BlockPlace place = co_await askBlockPlace(context, block, explode);
  place.explode = explode;
  co_await placeBlock(context, block, place);
  context.variables().set(kLastBlock, recordName(block));
}

Task<void> insertBlockByName(CommandContext& context) {
  if (!context.parameters()) {
    co_await insertBlock(context);
    co_return;
  }
  const ParameterSet set(*context.parameters());
  const double scale = set.number(u"BC_SCALE", 1);
  if (scale == 0 || !std::isfinite(scale))
    throw CommandFailure(translated(u"A block cannot be inserted at the scale %1.").arg(scale));
  const OdDbObjectId block = blockFor(context, set.text(u"name"));
  BlockPlace place;
  place.scale = {scale, scale, scale};
  place.rotation = set.number(u"BC_ROTATE_ANGLE", 0);
  place.explode = set.flag(u"BC_IS_EXPLODE");
  const bool asksRotation = set.flag(u"BC_ASK_ROTATION");
  place = co_await askPointAndRotation(context, block, place, asksRotation);
  co_await placeBlock(context, block, place);
}

} // namespace drafton
