#include "drafton/engine/blocks/block_placing.h"

#include "drafton/engine/blocks/block_source.h"
#include "drafton/engine/blocks/drawing_units.h"
#include "drafton/engine/commands/exploded_pieces.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

/// One text that the user is asked for.
struct Wanted {
  std::size_t index; ///< among the attributes
  OdString question, value;
  bool isVerified;
};

/// What the block's definitions want to know, in their order.
std::vector<Wanted> wantedValues(OdDbObjectId block) {
  std::vector<Wanted> wanted;
  std::size_t index = 0;
  const auto record = block.openAs<OdDbBlockTableRecord>();
  for (auto at = record->newIterator(); !at->done(); at->step()) {
    const OdDbEntityPtr entity = at->entity();
    const auto* const definition = odrxCast<OdDbAttributeDefinition>(entity);
    if (!definition || definition->isConstant()) continue;
    const std::size_t own = index++;
    if (definition->isPreset()) continue;
    const OdString prompt = definition->prompt();
    wanted.push_back({own, prompt.isEmpty() ? definition->tag() : prompt, definition->textString(),
                      definition->isVerifiable()});
  }
  return wanted;
}

Task<void> askValue(CommandContext& context, Wanted& wanted) {
  const OdString question = wanted.question, now = wanted.value;
  const std::optional<QStringView> shown =
      now.isEmpty() ? std::nullopt : std::optional<QStringView>(now);
  const Answer<OdString> answer = co_await context.input().string(
      {.text = question, .allowBlanks = true, .defaultValue = shown, .allowEmpty = true});
  wanted.value = answer.value;
}

Task<std::vector<Wanted>> askAttributes(CommandContext& context, OdDbObjectId block) {
  std::vector<Wanted> wanted;
  OdVariant asks;
  if (context.variables().get(QStringLiteral("ATTREQ"), asks) && asks.toInt32() != 0)
    wanted = wantedValues(block);
  if (wanted.empty()) co_return wanted;
  context.print(translated(u"Enter attribute values"));
  for (Wanted& row : wanted) co_await askValue(context, row);
  if (std::ranges::any_of(wanted, &Wanted::isVerified)) {
    context.print(translated(u"Verify attribute values"));
    for (Wanted& row : wanted)
      if (row.isVerified) co_await askValue(context, row);
  }
  co_return wanted;
}

/// Several attributes can have one tag, so they are told apart by their order.
void fillAttributes(OdDbBlockReference& insert, const std::vector<Wanted>& values) {
  const std::vector<OdDbAttributePtr> attributes = insert.attributes(OdDb::kForWrite);
  for (const Wanted& row : values) {
    const OdDbAttributePtr& attribute = attributes.at(row.index);
    attribute->setTextString(row.value);
    attribute->adjustAlignment();
  }
}

void addPieces(CommandContext& context, const OdDbBlockReference& insert) {
  std::vector<OdDbEntityPtr> pieces;
  if (!insert.explode(pieces)) {
    const OdString fault = explodingFault(insert);
    throw CommandFailure(
        fault.isEmpty() ? translated(u"Block \"%1\" cannot be exploded.").arg(insert.blockName())
                        : fault);
  }
  const OdDbObjectId space = context.database().getCurrentSpaceId();
  appendPieces(*space.openAs<OdDbBlockTableRecord>(OdDb::kForWrite), insert, pieces);
}

} // namespace

double blockUnitFactor(const OdDbDatabase& database, OdDbObjectId block) {
  const auto record = block.openAs<OdDbBlockTableRecord>();
  return unitFactor(record->blockInsertUnits(), static_cast<int>(database.sysVarInt("INSUNITS")));
}

Task<void> placeBlock(CommandContext& context, OdDbObjectId block, BlockPlace place) {
  OdDbDatabase& database = context.database();
  if (blockContains(block, database.getCurrentSpaceId()))
    throw CommandFailure(translated(u"A block cannot be inserted into itself."));
  const double factor = blockUnitFactor(database, block);
  const auto insert = odrxMake<OdDbBlockReference>(block, place.point);
  insert->setScaleFactors(
      {place.scale.sx * factor, place.scale.sy * factor, place.scale.sz * factor});
  insert->setRotation(place.rotation);
  insert->setDatabaseDefaults(database);
  const bool isReference = block.openAs<OdDbBlockTableRecord>()->isFromExternalReference();
  if (place.explode && !isReference) {
    addPieces(context, *insert);
  } else {
    // It is seen where it stands while its values are asked for.
    addToCurrentSpace(database, *insert);
    insert->appendAttributesFromBlock();
    const std::vector<Wanted> values = co_await askAttributes(context, block);
    fillAttributes(*insert, values);
  }
  context.setLastPoint(place.point);
}

} // namespace drafton
