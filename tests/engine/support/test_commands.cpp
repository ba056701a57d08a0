#include "engine/support/test_commands.h"

#include "drafton/engine/engine.h"
#include "drawing/entities/line.h"

using namespace drafton;

namespace {

template <class T>
void tell(CommandContext& context, const Answer<T>& answer, const OdString& value) {
  const OdString text = answer.isValue()   ? value
                        : answer.isEmpty() ? QStringLiteral("nothing")
                                           : QStringLiteral("option ") + answer.keyword;
  context.print(QStringLiteral("got ") + text);
}

Task<> askPoint(CommandContext& context) {
  const OdGePoint3d base{10, 0, 0};
  const Answer<OdGePoint3d> answer = co_await context.input().point(
      {.text = u"Point", .keywords = u"Close Undo", .base = base, .allowEmpty = true});
  const OdGePoint3d& p = answer.value;
  tell(context, answer,
       QStringLiteral("%1 %2 %3").arg(shownReal(p.x), shownReal(p.y), shownReal(p.z)));
}

Task<> askDistance(CommandContext& context) {
  const Answer<double> answer = co_await context.input().distance(
      {.text = u"Distance", .defaultValue = 10.0, .range = NumberRange::kPositive});
  tell(context, answer, shownReal(answer.value));
}

Task<> askAngle(CommandContext& context) {
  const Answer<double> answer =
      co_await context.input().angle({.text = u"Angle", .defaultValue = kOdaPi / 2});
  tell(context, answer, shownAngle(answer.value));
}

Task<> askInteger(CommandContext& context) {
  const Answer<int> answer =
      co_await context.input().integer({.text = u"Count", .range = NumberRange::kNotNegative});
  tell(context, answer, OdString::number(answer.value));
}

Task<> askReal(CommandContext& context) {
  const Answer<double> answer = co_await context.input().real(
      {.text = u"Factor", .keywords = u"Reference", .range = NumberRange::kNotZero});
  tell(context, answer, shownReal(answer.value));
}

Task<> askText(CommandContext& context) {
  const Answer<OdString> answer =
      co_await context.input().string({.text = u"Name", .allowEmpty = true});
  tell(context, answer, u'<' + answer.value + u'>');
}

Task<> askWords(CommandContext& context) {
  const Answer<OdString> answer = co_await context.input().string(
      {.text = u"Text", .allowBlanks = true, .defaultValue = QStringView(u"some words")});
  tell(context, answer, u'<' + answer.value + u'>');
}

Task<> askKeyword(CommandContext& context) {
  const Answer<OdString> answer = co_await context.input().keyword(
      {.text = u"Choose", .keywords = u"Red Green Blue", .defaultValue = u"Green"});
  tell(context, answer, {});
}

void drawLine(CommandContext& context, const OdGePoint3d& from, const OdGePoint3d& to) {
  const auto line = odrxMake<OdDbLine>(from, to);
  context.database()
      .getModelSpaceId()
      .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
      ->appendOdDbEntity(line);
}

Task<> draw(CommandContext& context) {
  const Answer<OdGePoint3d> first = co_await context.input().point({.text = u"From"});
  for (OdGePoint3d from = first.value;;) {
    const Answer<OdGePoint3d> next =
        co_await context.input().point({.text = u"To", .base = from, .allowEmpty = true});
    if (next.isEmpty()) co_return;
    drawLine(context, from, next.value);
    from = next.value;
  }
}

Task<> fail(CommandContext& context) {
  drawLine(context, {}, {1, 1, 0});
  throw CommandFailure(QStringLiteral("this command always fails"));
  co_return;
}

Task<> nest(CommandContext& context) {
  drawLine(context, {}, {5, 5, 0});
  const bool done = context.run(QStringLiteral("DRAW"));
  context.print(done ? QStringLiteral("inner ended") : QStringLiteral("inner did not end"));
  co_return;
}

/// Runs a command that does not end, between two lines of its own.
Task<> nestInner(CommandContext& context, QStringView inner) {
  drawLine(context, {}, {5, 5, 0});
  const bool done = context.run(inner.toString());
  context.print(done ? QStringLiteral("inner ended") : QStringLiteral("inner did not end"));
  drawLine(context, {}, {6, 6, 0});
  co_return;
}
Task<> nestFailing(CommandContext& context) { return nestInner(context, u"FAIL"); }
Task<> nestRefusing(CommandContext& context) { return nestInner(context, u"REFUSE"); }

Task<> outDraw(CommandContext& context) {
  context.run(QStringLiteral("DRAW"));
  co_return;
}

Task<> refuse(CommandContext& context) {
  drawLine(context, {}, {1, 1, 0});
  throw CommandCancelled();
  co_return;
}

Task<> word(CommandContext& context) {
  OdVariant value;
  if (context.parameters()) context.parameters()->value(QStringLiteral("word"), value);
  context.print(QStringLiteral("word: ") + value.toString());
  co_return;
}

constexpr NativeCommand kCommands[] = {
    {u"ASKPOINT", kOrdinary, askPoint},
    {u"ASKDISTANCE", kOrdinary, askDistance},
    {u"ASKANGLE", kOrdinary, askAngle},
    {u"ASKINTEGER", kOrdinary, askInteger},
    {u"ASKREAL", kOrdinary, askReal},
    {u"ASKTEXT", kOrdinary, askText},
    {u"ASKWORDS", kOrdinary, askWords},
    {u"ASKKEYWORD", kOrdinary, askKeyword},
    {u"DRAW", kOrdinary, draw},
    {u"FAIL", kOrdinary, fail},
    {u"NEST", kOrdinary, nest},
    {u"NESTFAIL", kOrdinary, nestFailing},
    {u"REFUSE", kOrdinary, refuse},
    {u"NESTREFUSE", kOrdinary, nestRefusing},
    {u"OUTSIDE", kNoUndoStep, nestFailing},
    {u"OUTDRAW", kNoUndoStep, outDraw},
    {u"WORD", kOrdinary, word},
};

} // namespace

std::span<const NativeCommand> testCommands() { return kCommands; }
