// STYLE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/font_names.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/database.h"

namespace drafton {
namespace {

constexpr double kSteepest = 85 * kOdaPi / 180;
constexpr double kNarrowest = 0.01, kWidest = 100;

OdDbTextStyleTablePtr styles(const CommandContext& context, OdDb::OpenMode mode = OdDb::kForRead) {
  return context.database().getTextStyleTableId().openAs<OdDbTextStyleTable>(mode);
}

void listStyles(CommandContext& context, const OdString& patterns) {
  const auto table = styles(context);
  context.print(translated(u"Text styles:"));
  for (const OdString& name : recordNames(*table, patterns)) {
    const OdDbTextStyleTableRecordPtr style = table->getAt(name).openObject();
    if (style->isShapeFile()) continue;
    context.print(translated(u"  %1  Font: %2  Height: %3  Width factor: %4  Obliquing angle: %5")
                      .arg(name, shownFont(*style), shownReal(style->textSize()),
                           shownReal(style->xScale()), shownAngle(style->obliquingAngle())));
  }
}

/// The style to make or to change, open for writing.
Task<OdDbTextStyleTableRecordPtr> askStyle(CommandContext& context) {
  CommandInput& input = context.input();
  const OdString current = recordName(context.database().currentTextStyle());
  for (;;) {
    const Answer<OdString> name = co_await input.string({.text = u"Enter name of text style",
                                                         .keywords = u"?",
                                                         .defaultValue = QStringView(current)});
    if (name.is(u"?")) {
      const Answer<OdString> patterns =
          co_await input.string({.text = u"Enter text style(s) to list", .defaultValue = u"*"});
      listStyles(context, patterns.value);
      continue;
    }
    const OdDbTextStyleTableRecordPtr there =
        styles(context)->getAt(name.value).openObject(OdDb::kForWrite);
    if (const OdString fault = there ? recordUseFault(*there) : OdString(); !fault.isEmpty()) {
      context.print(fault);
      continue;
    }
    if (there && !there->isShapeFile()) {
      context.print(translated(u"Existing style."));
      co_return there;
    }
    const OdString fault =
        there ? translated(u"it stands for a shape file") : recordNameFault(name.value);
    if (!fault.isEmpty()) {
      context.print(
          translated(u"\"%1\" is no name for a text style: %2.").arg(name.value.left(60), fault));
      continue;
    }
    context.print(translated(u"New style."));
    const OdDbTextStyleTableRecordPtr made = odrxMake<OdDbTextStyleTableRecord>();
    made->setName(name.value);
    styles(context, OdDb::kForWrite)->add(made);
    co_return made;
  }
}

Task<void> askFont(CommandContext& context, OdDbTextStyleTableRecordPtr style) {
  const OdString now = shownFont(*style);
  for (;;) {
    const Answer<OdString> font =
        co_await context.input().string({.text = u"Specify full font name or font filename",
                                         .allowBlanks = true,
                                         .defaultValue = QStringView(now)});
    if (font.value == now) co_return;
    if (const OdString fault = setFont(*style, font.value); fault.isEmpty())
      co_return;
    else
      context.print(fault);
  }
}

/// A number within limits.
Task<double> askReal(CommandContext& context, const char16_t* question, double now, double min,
                     double max) {
  for (;;) {
    const Answer<double> answer =
        co_await context.input().real({.text = question, .defaultValue = now});
    if (answer.value >= min && answer.value <= max) co_return answer.value;
    context.print(
        translated(u"A number between %1 and %2 is needed.").arg(shownReal(min), shownReal(max)));
  }
}

Task<double> askObliquing(CommandContext& context, double now) {
  for (;;) {
    const Answer<double> answer =
        co_await context.input().angle({.text = u"Specify obliquing angle", .defaultValue = now});
    const double angle = answer.value > kOdaPi ? answer.value - 2 * kOdaPi : answer.value;
    if (std::abs(angle) <= kSteepest + 1e-12) co_return angle;
    context.print(translated(u"An angle between -85 and 85 is needed."));
  }
}

Task<bool> askSwitch(CommandContext& context, const char16_t* question, bool now) {
  const QStringView shown = now ? u"Yes" : u"No";
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = question, .keywords = u"Yes No", .defaultValue = shown});
  co_return answer.is(u"Yes");
}

} // namespace

Task<void> textStyle(CommandContext& context) {
  const OdDbTextStyleTableRecordPtr style = co_await askStyle(context);
  co_await askFont(context, style);
  const Answer<double> height =
      co_await context.input().distance({.text = u"Specify height of text",
                                         .defaultValue = style->textSize(),
                                         .range = NumberRange::kNotNegative});
  style->setTextSize(height.value);
  const double width =
      co_await askReal(context, u"Specify width factor", style->xScale(), kNarrowest, kWidest);
  style->setXScale(width);
  const double oblique = co_await askObliquing(context, style->obliquingAngle());
  style->setObliquingAngle(oblique);
  const bool backwards =
      co_await askSwitch(context, u"Display text backwards?", style->isBackwards());
  style->setIsBackwards(backwards);
  const bool upsideDown =
      co_await askSwitch(context, u"Display text upside-down?", style->isUpsideDown());
  style->setIsUpsideDown(upsideDown);
  // Letters below each other are a matter of shape fonts.
  if (hasShapeFont(*style)) {
    const bool vertical = co_await askSwitch(context, u"Vertical?", style->isVertical());
    style->setIsVertical(vertical);
  }
  context.database().setCurrentTextStyle(style->objectId());
  context.print(translated(u"\"%1\" is now the current text style.").arg(style->getName()));
}

} // namespace drafton
