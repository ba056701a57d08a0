#include "drafton/engine/commands/text_place_prompt.h"

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/commands/text_style_prompt.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

/// The height that the current style prescribes; 0 if texts choose their own.
double fixedHeight(const OdDbDatabase& database) {
  const OdDbTextStyleTableRecordPtr style = database.currentTextStyle().openObject();
  return style ? style->textSize() : 0;
}

Task<OdGePoint3d> askSecondPoint(CommandContext& context, OdGePoint3d first) {
  for (;;) {
    const Answer<OdGePoint3d> second = co_await context.input().point(
        {.text = u"Specify second endpoint of text baseline", .base = first});
    if (second.value.x != first.x || second.value.y != first.y) co_return second.value;
    context.print(translated(u"The two points must differ."));
  }
}

/// Asks for the place of the first line; none if it goes below the latest text.
Task<std::optional<TextLayout>> askPlace(CommandContext& context) {
  CommandInput& input = context.input();
  TextLayout layout;
  layout.justification = &textJustifications().front();
  bool isChosen = false;
  for (;;) {
    const QStringView question = layout.justification->question;
    const QStringView keywords = isChosen ? QStringView() : QStringView(u"Justify Style");
    const bool mayContinue = !isChosen;
    const Answer<OdGePoint3d> start =
        co_await input.point({.text = question, .keywords = keywords, .allowEmpty = mayContinue});
    if (start.isEmpty()) co_return std::nullopt;
    if (start.is(u"Style")) {
      co_await askCurrentTextStyle(context);
    } else if (start.is(u"Justify")) {
      const OdString modes = textJustificationKeywords();
      const Answer<OdString> mode =
          co_await input.keyword({.text = u"Enter an option", .keywords = modes});
      layout.justification = &textJustification(mode.keyword);
      isChosen = true;
    } else {
      layout.point = start.value;
      break;
    }
  }
  if (layout.justification->hasTwoPoints()) {
    const OdGePoint3d second = co_await askSecondPoint(context, layout.point);
    layout.secondPoint = second;
    layout.rotation = directionOf(layout.point, second);
  }
  co_return layout;
}

Task<void> askSize(CommandContext& context, TextLayout& layout) {
  CommandInput& input = context.input();
  OdDbDatabase& database = context.database();
  const bool isAligned = layout.justification->horizontal == OdDb::kTextAlign;
  if (const double fixed = fixedHeight(database); fixed > 0) {
    layout.height = fixed;
  } else if (!isAligned) {
    const double last = database.sysVarReal("TEXTSIZE");
    const Answer<double> height = co_await input.distance({.text = u"Specify height",
                                                           .base = layout.point,
                                                           .defaultValue = last,
                                                           .range = NumberRange::kPositive});
    layout.height = height.value;
    database.setSysVar(QStringLiteral("TEXTSIZE"), height.value);
  }
  if (layout.justification->hasTwoPoints()) co_return;
  double& last = DrawingSession::of(context).textRotation;
  const Answer<double> rotation = co_await input.angle(
      {.text = u"Specify rotation angle of text", .base = layout.point, .defaultValue = last});
  layout.rotation = rotation.value;
  last = rotation.value;
}

} // namespace

Task<TextLayout> askTextLayout(CommandContext& context, const OdRxClass* kind,
                               QStringView nothingBelow) {
  const OdDbDatabase& database = context.database();
  context.print(translated(u"Current text style: \"%1\"  Text height: %2")
                    .arg(recordName(database.currentTextStyle()),
                         shownReal(database.sysVarReal("TEXTSIZE"))));
  for (;;) {
    std::optional<TextLayout> layout = co_await askPlace(context);
    if (layout) {
      co_await askSize(context, *layout);
    } else {
      layout = layoutBelowLast(database, kind);
    }
    if (layout) co_return *layout;
    context.print(translated(nothingBelow));
  }
}

} // namespace drafton
