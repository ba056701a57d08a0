// ATTDEF.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/text_place_prompt.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/attribute_definition.h"

namespace drafton {
namespace {

/// The modes of new attributes, as bits: those of the definition, and the locked position.
constexpr QLatin1String kModes("AFLAGS");

struct AttributeMode {
  const char16_t* keyword;
  const char16_t* shown; ///< with its state as %1
  int bit;
};

constexpr int kLockPosition = 16;
constexpr AttributeMode kAttributeModes[] = {
    {u"Invisible", u"Invisible=%1", OdDbAttributeText::kInvisible},
    {u"Constant", u"Constant=%1", OdDbAttributeText::kConstant},
    {u"Verify", u"Verify=%1", OdDbAttributeText::kVerifiable},
    {u"Preset", u"Preset=%1", OdDbAttributeText::kPreset},
    {u"Lock", u"Lock position=%1", kLockPosition},
};

OdString shownModes(int modes) {
  QStringList parts;
  for (const AttributeMode& row : kAttributeModes)
    parts << translated(row.shown).arg(QChar(modes & row.bit ? u'Y' : u'N'));
  return translated(u"Current attribute modes:  %1").arg(parts.join(QStringLiteral("  ")));
}

/// The modes that the user has switched to; they count for the next attribute too.
Task<int> askModes(CommandContext& context) {
  OdVariant kept;
  context.variables().get(kModes, kept);
  int modes = kept.toInt32();
  for (;;) {
    context.print(shownModes(modes));
    const Answer<OdString> answer =
        co_await context.input().keyword({.text = u"Enter a mode to change",
                                          .keywords = u"Invisible Constant Verify Preset Lock",
                                          .allowEmpty = true});
    if (answer.isEmpty()) break;
    for (const AttributeMode& row : kAttributeModes)
      if (answer.is(row.keyword)) modes ^= row.bit;
  }
  context.variables().set(kModes, modes);
  co_return modes;
}

Task<OdString> askTag(CommandContext& context) {
  for (;;) {
    const Answer<OdString> tag =
        co_await context.input().string({.text = u"Enter attribute tag name", .allowEmpty = true});
    if (tag.value.contains(u' '))
      context.print(translated(u"A tag cannot have blanks."));
    else if (tag.value.isEmpty())
      context.print(translated(u"A tag is needed."));
    else
      co_return tag.value.toUpper();
  }
}

/// Anything, also nothing.
Task<OdString> askWords(CommandContext& context, QStringView question) {
  const Answer<OdString> words =
      co_await context.input().string({.text = question, .allowBlanks = true, .allowEmpty = true});
  co_return words.value;
}

} // namespace

Task<void> defineAttribute(CommandContext& context) {
  OdDbDatabase& database = context.database();
  const auto definition = odrxMake<OdDbAttributeDefinition>();
  const int modes = co_await askModes(context);
  definition->setInvisible(modes & OdDbAttributeText::kInvisible);
  definition->setConstant(modes & OdDbAttributeText::kConstant);
  definition->setVerifiable(modes & OdDbAttributeText::kVerifiable);
  definition->setPreset(modes & OdDbAttributeText::kPreset);
  definition->setLockPositionInBlock(modes & kLockPosition);

  const OdString tag = co_await askTag(context);
  definition->setTag(tag);
  if (definition->isConstant()) {
    const OdString value = co_await askWords(context, u"Enter constant attribute value");
    definition->setTextString(value);
  } else {
    const OdString prompt = co_await askWords(context, u"Enter attribute prompt");
    definition->setPrompt(prompt);
    const OdString value = co_await askWords(context, u"Enter default attribute value");
    definition->setTextString(value);
  }
  TextLayout layout = co_await askTextLayout(context, OdDbAttributeDefinition::desc(),
                                             u"There is no attribute to go on from.");
  layOutText(database, layout, *definition);
  addToCurrentSpace(database, *definition);
  context.setLastPoint(layout.point);
}

} // namespace drafton
