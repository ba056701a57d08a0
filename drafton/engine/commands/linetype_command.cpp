// LINETYPE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/property_prompts.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/document.h"
#include "drafton/engine/support_files.h"
#include "drafton/engine/translator.h"
#include "drawing/patterns/linetype_file.h"

namespace drafton {
namespace {

constexpr QStringView kDefaultFile = u"draftoniso.lin";

OdDbLinetypeTablePtr linetypes(const CommandContext& context) {
  return context.database().getLinetypeTableId().openAs<OdDbLinetypeTable>();
}

Task<void> listLinetypes(CommandContext& context) {
  const Answer<OdString> patterns = co_await context.input().string(
      {.text = u"Enter linetype name(s) to list", .defaultValue = u"*"});
  const auto table = linetypes(context);
  const QStringList names = recordNames(*table, patterns.value);
  for (const OdString& name : names) {
    const OdDbLinetypeTableRecordPtr linetype = table->getAt(name).openObject();
    context.print(QStringLiteral("\"%1\"  %2").arg(name, linetype->comments()));
  }
  if (names.isEmpty())
    context.print(translated(u"No line type fits \"%1\".").arg(patterns.value.left(60)));
}

/// A name for a line type that the drawing lacks; empty for Enter.
Task<OdString> askNewName(CommandContext& context) {
  for (;;) {
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter name of linetype to create", .allowEmpty = true});
    if (name.isEmpty()) co_return OdString();
    if (const OdString fault = recordNameFault(name.value); !fault.isEmpty())
      context.print(
          translated(u"\"%1\" is no name for a line type: %2.").arg(name.value.left(60), fault));
    else if (linetypes(context)->has(name.value))
      context.print(translated(u"There is a line type \"%1\" already.").arg(name.value));
    else
      co_return name.value;
  }
}

/// The line type that a text of a file makes; empty, and a message, if it makes none.
std::optional<OdLinetypeDefinition> definitionFrom(CommandContext& context, const OdString& name,
                                                   const OdString& description,
                                                   const OdString& pattern) {
  const OdString text = QStringLiteral("*%1,%2\nA,%3\n").arg(name, description, pattern);
  const OdLinetypeFile file = OdLinetypeFile::parse(text.toUtf8());
  if (file.linetypes().size() == 1 && file.errors().isEmpty() &&
      !file.linetypes().front().dashes.empty())
    return file.linetypes().front();
  context.print(file.errors().isEmpty()
                    ? translated(u"A pattern consists of lengths with commas between them.")
                    : file.errors().front());
  return std::nullopt;
}

Task<void> createLinetype(CommandContext& context) {
  CommandInput& input = context.input();
  const OdString name = co_await askNewName(context);
  if (name.isEmpty()) co_return;
  const Answer<OdString> description =
      co_await input.string({.text = u"Descriptive text", .allowBlanks = true, .allowEmpty = true});
  for (;;) {
    const Answer<OdString> pattern = co_await input.string(
        {.text = u"Enter linetype pattern: A", .allowBlanks = true, .allowEmpty = true});
    if (pattern.isEmpty()) co_return;
    if (const auto definition = definitionFrom(context, name, description.value, pattern.value)) {
      definition->addTo(context.database());
      co_return;
    }
  }
}

/// A file of line types; null for Enter on nothing readable.
Task<std::optional<OdLinetypeFile>> askFile(CommandContext& context) {
  for (;;) {
    const Answer<OdString> name =
        co_await context.input().string({.text = u"Enter name of linetype file",
                                         .keywords = u"Cancel",
                                         .allowBlanks = true,
                                         .defaultValue = kDefaultFile});
    if (name.is(u"Cancel")) co_return std::nullopt;
    const OdString path =
        findSupportFile(context.engine(), &context.document(), name.value, QStringLiteral("lin"));
    if (path.isEmpty()) {
      context.print(translated(u"There is no file \"%1\".").arg(name.value.left(200)));
      continue;
    }
    try {
      OdLinetypeFile file = OdLinetypeFile::read(path);
      for (const OdString& error : file.errors()) context.print(error);
      co_return file;
    } catch (const OdFileError& error) {
      context.print(OdString::fromUtf8(error.what()));
    }
  }
}

/// True if a line type that is there is to be replaced.
Task<bool> askReload(CommandContext& context, const OdString& name) {
  const OdString question = translated(u"Linetype \"%1\" is already loaded. Reload it?").arg(name);
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No", .defaultValue = u"Yes"});
  co_return answer.is(u"Yes");
}

void copyPattern(OdDbLinetypeTableRecord& to, const OdDbLinetypeTableRecord& from) {
  to.setComments(from.comments());
  to.setPatternLength(from.patternLength());
  to.setNumDashes(0);
  to.setNumDashes(from.numDashes());
  for (int i = 0; i < from.numDashes(); ++i) {
    to.setDashLengthAt(i, from.dashLengthAt(i));
    to.setShapeStyleAt(i, from.shapeStyleAt(i));
    to.setShapeScaleAt(i, from.shapeScaleAt(i));
    to.setShapeRotationAt(i, from.shapeRotationAt(i));
    to.setShapeOffsetAt(i, from.shapeOffsetAt(i));
    to.setShapeIsUcsOrientedAt(i, from.shapeIsUcsOrientedAt(i));
    to.setShapeIsUprightAt(i, from.shapeIsUprightAt(i));
    to.setShapeNumberAt(i, from.shapeNumberAt(i));
    to.setTextAt(i, from.textAt(i));
  }
}

/// The record that is there takes the pattern of the definition, so that what refers to it stays.
void reload(OdDbDatabase& database, const OdLinetypeDefinition& definition, OdDbObjectId there) {
  OdLinetypeDefinition fresh = definition;
  // The table holds each name once.
  fresh.name += QStringLiteral("$reload");
  const auto made = fresh.addTo(database).openAs<OdDbLinetypeTableRecord>(OdDb::kForWrite);
  copyPattern(*there.openAs<OdDbLinetypeTableRecord>(OdDb::kForWrite), *made);
  made->erase();
}

Task<void> loadLinetypes(CommandContext& context) {
  const Answer<OdString> patterns = co_await context.input().string(
      {.text = u"Enter linetype(s) to load", .allowBlanks = true, .allowEmpty = true});
  if (patterns.isEmpty()) co_return;
  const std::optional<OdLinetypeFile> file = co_await askFile(context);
  if (!file) co_return;
  int found = 0;
  for (const OdLinetypeDefinition& definition : file->linetypes()) {
    if (!matchesWildcard(definition.name, patterns.value)) continue;
    ++found;
    const OdDbObjectId there = linetypes(context)->getAt(definition.name);
    if (there.isNull()) {
      definition.addTo(context.database());
      context.print(translated(u"Linetype \"%1\" loaded.").arg(definition.name));
    } else if (co_await askReload(context, definition.name)) {
      reload(context.database(), definition, there);
    }
  }
  if (found == 0)
    context.print(translated(u"The file has no line type \"%1\".").arg(patterns.value.left(60)));
}

Task<void> setLinetype(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const OdDbObjectId now = database.currentLinetype();
  const OdDbObjectId chosen = co_await askLinetype(context, u"Specify linetype name", now, true);
  if (chosen != now) database.setCurrentLinetype(chosen);
}

} // namespace

Task<void> linetype(CommandContext& context) {
  for (;;) {
    context.print(translated(u"Current line type: \"%1\"")
                      .arg(recordName(context.database().currentLinetype())));
    const Answer<OdString> option = co_await context.input().keyword(
        {.text = u"Enter an option", .keywords = u"? Create Load Set", .allowEmpty = true});
    if (option.isEmpty()) co_return;
    if (option.is(u"?")) co_await listLinetypes(context);
    if (option.is(u"Create")) co_await createLinetype(context);
    if (option.is(u"Load")) co_await loadLinetypes(context);
    if (option.is(u"Set")) co_await setLinetype(context);
  }
}

} // namespace drafton
