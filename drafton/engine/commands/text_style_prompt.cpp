#include "drafton/engine/commands/text_style_prompt.h"

#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"

namespace drafton {
namespace {

void printStyles(CommandContext& context) {
  context.print(translated(u"Text styles:"));
  const auto styles = context.database().getTextStyleTableId().openAs<OdDbTextStyleTable>();
  for (auto at = styles->newIterator(); !at->done(); at->step()) {
    const OdDbTextStyleTableRecordPtr style = at->getRecord();
    if (style && !style->isShapeFile())
      context.print(translated(u"  %1  Font: %2  Height: %3")
                        .arg(style->getName(), style->fileName(), shownReal(style->textSize())));
  }
}

} // namespace

Task<void> askCurrentTextStyle(CommandContext& context) {
  for (;;) {
    const OdString current = recordName(context.database().currentTextStyle());
    const Answer<OdString> name = co_await context.input().string(
        {.text = u"Enter style name", .keywords = u"?", .defaultValue = QStringView(current)});
    if (name.is(u"?")) {
      printStyles(context);
      continue;
    }
    const auto styles = context.database().getTextStyleTableId().openAs<OdDbTextStyleTable>();
    const OdDbTextStyleTableRecordPtr style = styles->getAt(name.value).openObject();
    const bool isStyle = style && !style->isShapeFile();
    const OdString fault = isStyle ? recordUseFault(*style)
                                   : translated(u"There is no text style \"%1\".").arg(name.value);
    if (fault.isEmpty()) {
      context.database().setCurrentTextStyle(style->objectId());
      co_return;
    }
    context.print(fault);
  }
}

} // namespace drafton
