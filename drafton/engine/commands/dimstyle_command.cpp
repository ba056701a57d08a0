// DIMSTYLE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/dimension_overrides.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

OdDbDimStyleTablePtr styles(const CommandContext& context, OdDb::OpenMode mode = OdDb::kForRead) {
  return context.database().getDimStyleTableId().openAs<OdDbDimStyleTable>(mode);
}

void print(CommandContext& context, const std::vector<DimensionVariable>& variables) {
  for (const DimensionVariable& variable : variables)
    context.print(variable.name.leftJustified(16) + u' ' + shownVariable(variable.value));
}

/// The current style and what was set beside it.
void printCurrent(CommandContext& context) {
  const OdDbDatabase& database = context.database();
  context.print(
      translated(u"Current dimension style: %1").arg(recordName(database.currentDimStyle())));
  const std::vector<DimensionVariable> overrides = dimensionOverrides(database);
  if (overrides.empty()) return;
  context.print(translated(u"Current dimension overrides:"));
  print(context, overrides);
}

Task<void> listStyles(CommandContext& context) {
  const Answer<OdString> patterns = co_await context.input().string(
      {.text = u"Enter dimension style(s) to list", .defaultValue = u"*"});
  const QStringList names = recordNames(*styles(context), patterns.value);
  context.print(translated(u"Dimension styles:"));
  for (const OdString& name : names) context.print(QStringLiteral("  ") + name);
}

/// A style by its name, or that of a chosen dimension; `?` lists the names. Null for Enter.
Task<OdDbObjectId> askStyle(CommandContext& context) {
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter a dimension style name", .keywords = u"? Select", .allowEmpty = true});
    if (name.isEmpty()) co_return OdDbObjectId();
    if (name.is(u"?")) {
      co_await listStyles(context);
    } else if (name.is(u"Select")) {
      const PickedEntity picked = co_await selectEntity(context, u"Select dimension");
      const OdDbObjectPtr object = picked.id.openObject();
      if (const auto* const dimension = odrxCast<OdDbDimension>(object.get()))
        co_return dimension->dimensionStyle();
      context.print(translated(u"No dimension was selected."));
    } else if (const OdDbObjectId style = styles(context)->getAt(name.value); !style.isNull()) {
      co_return style;
    } else {
      context.print(translated(u"There is no dimension style \"%1\".").arg(name.value.left(60)));
    }
  }
}

/// A name under which the variables can be saved; empty for Enter.
Task<OdString> askNameToSave(CommandContext& context) {
  CommandInput& input = context.input();
  for (;;) {
    const Answer<OdString> name = co_await input.string(
        {.text = u"Enter name for new dimension style", .keywords = u"?", .allowEmpty = true});
    if (name.isEmpty()) co_return OdString();
    if (name.is(u"?")) {
      co_await listStyles(context);
      continue;
    }
    if (const OdString fault = recordNameFault(name.value); !fault.isEmpty()) {
      context.print(translated(u"\"%1\" is no name for a dimension style: %2.")
                        .arg(name.value.left(60), fault));
      continue;
    }
    if (!styles(context)->has(name.value)) co_return name.value;
    const Answer<OdString> redefines =
        co_await input.keyword({.text = u"That name is already in use, redefine it?",
                                .keywords = u"Yes No",
                                .defaultValue = u"No"});
    if (redefines.is(u"Yes")) co_return name.value;
  }
}

/// Dimensions show their style at once.
void redrawDimensions(OdDbDatabase& database, OdDbObjectId style) {
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (auto block = blocks->newIterator(); !block->done(); block->step()) {
    const OdDbBlockTableRecordPtr record = block->getRecord();
    for (auto at = record->newIterator(); !at->done(); at->step()) {
      const OdDbEntityPtr entity = at->entity();
      auto* const dimension = odrxCast<OdDbDimension>(entity.get());
      if (!dimension || dimension->dimensionStyle() != style) continue;
      dimension->upgradeOpen();
      dimension->recomputeDimBlock();
    }
  }
}

Task<void> saveStyle(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const OdString name = co_await askNameToSave(context);
  if (name.isEmpty()) co_return;
  const auto table = styles(context, OdDb::kForWrite);
  OdDbDimStyleTableRecordPtr style = table->getAt(name).openObject(OdDb::kForWrite);
  const bool isNew = !style;
  if (isNew) {
    style = odrxMake<OdDbDimStyleTableRecord>();
    style->setName(name);
    table->add(style);
  }
  for (const DimensionVariable& variable : dimensionVariables(database))
    style->setVariable(variable.name, variable.value);
  database.setCurrentDimStyle(style->objectId());
  if (!isNew) redrawDimensions(database, style->objectId());
}

Task<void> restoreStyle(CommandContext& context) {
  const OdDbObjectId style = co_await askStyle(context);
  if (style.isNull()) co_return;
  if (const OdString fault = recordUseFault(*style.openAs<OdDbSymbolTableRecord>());
      !fault.isEmpty())
    throw CommandFailure(fault);
  context.database().setCurrentDimStyle(style);
  context.database().setDimstyleData(style);
}

Task<void> listVariables(CommandContext& context) {
  const OdDbObjectId id = co_await askStyle(context);
  if (id.isNull()) co_return;
  const OdDbDimStyleTableRecordPtr style = id.openObject();
  std::vector<DimensionVariable> variables;
  for (const OdDbDimVarInfo& row : oddbDimVars())
    if (const auto value = style->variable(QLatin1String(row.name)))
      variables.push_back({QLatin1String(row.name), *value});
  context.print(translated(u"Variables of dimension style %1:").arg(style->getName()));
  print(context, variables);
}

Task<void> applyStyle(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  int others = 0;
  for (const OdDbObjectId& id : chosen) {
    const OdDbObjectPtr object = id.safeOpenObject(OdDb::kForWrite);
    if (auto* const dimension = odrxCast<OdDbDimension>(object.get()))
      takeCurrentDimensionStyle(context.database(), *dimension);
    else if (auto* const leader = odrxCast<OdDbLeader>(object.get()))
      takeCurrentDimensionStyle(context.database(), *leader);
    else
      ++others;
  }
  if (others > 0) context.print(translated(u"%1 are no dimensions.").arg(others));
}

} // namespace

Task<void> dimensionStyle(CommandContext& context) {
  printCurrent(context);
  const Answer<OdString> option =
      co_await context.input().keyword({.text = u"Enter a dimension style option",
                                        .keywords = u"Save Restore STatus Variables Apply ?",
                                        .defaultValue = u"Restore"});
  if (option.is(u"Save")) co_await saveStyle(context);
  if (option.is(u"Restore")) co_await restoreStyle(context);
  if (option.is(u"STatus")) print(context, dimensionVariables(context.database()));
  if (option.is(u"Variables")) co_await listVariables(context);
  if (option.is(u"Apply")) co_await applyStyle(context);
  if (option.is(u"?")) co_await listStyles(context);
}

} // namespace drafton
