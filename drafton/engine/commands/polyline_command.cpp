// PLINE.

#include "drafton/engine/commands/arc_prompts.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/polyline_arcs.h"
#include "drafton/engine/commands/polyline_draft.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

/// The keywords of one state of the prompt.
struct PromptState {
  bool inArcs;
  bool hasPieces; ///< of arcs one is enough to close, of lines it takes two
  const char16_t* keywords;
};

constexpr PromptState kPromptStates[] = {
    {false, false, u"Arc Halfwidth Length Undo Width"},
    {false, true, u"Arc Close Halfwidth Length Undo Width"},
    {true, false, u"Angle CEnter Direction Halfwidth Line Radius Second Undo Width"},
    {true, true, u"Angle CEnter CLose Direction Halfwidth Line Radius Second Undo Width"},
};

QStringView keywordsFor(bool inArcs, std::size_t pieces) {
  const bool hasPieces = pieces >= (inArcs ? 1U : 2U);
  for (const PromptState& state : kPromptStates)
    if (state.inArcs == inArcs && state.hasPieces == hasPieces) return state.keywords;
  return {};
}

/// Asks for the widths of the next piece; of their halves for Halfwidth.
Task<void> askWidths(CommandContext& context, PolylineDraft& draft, bool asHalves) {
  CommandInput& input = context.input();
  const double factor = asHalves ? 2 : 1;
  const QStringView startText =
      asHalves ? u"Specify starting half-width" : u"Specify starting width";
  const QStringView endText = asHalves ? u"Specify ending half-width" : u"Specify ending width";
  const OdGePoint3d from = draft.end();
  const double now = draft.widths().start / factor;
  const Answer<double> start = co_await input.distance(
      {.text = startText, .base = from, .defaultValue = now, .range = NumberRange::kNotNegative});
  const Answer<double> end = co_await input.distance({.text = endText,
                                                      .base = from,
                                                      .defaultValue = start.value,
                                                      .range = NumberRange::kNotNegative});
  draft.setWidths({start.value * factor, end.value * factor});
  context.database().setSysVar(QStringLiteral("PLINEWID"), end.value * factor);
}

Task<void> askLength(CommandContext& context, PolylineDraft& draft) {
  const OdGePoint3d from = draft.end();
  const Answer<double> length = co_await context.input().distance(
      {.text = u"Specify length of line", .base = from, .range = NumberRange::kNotZero});
  draft.add({from, pointAlong(from, draft.direction(), length.value), 0});
}

/// The next piece to a point; none for an arc that cannot be.
std::optional<ArcPath> pieceTo(const OdGePoint3d& to, const PolylineDraft& draft, bool asArc) {
  if (!asArc) return ArcPath{draft.end(), to, 0};
  return arcByDirection(draft.end(), to, draft.direction());
}

void add(CommandContext& context, PolylineDraft& draft, const std::optional<ArcPath>& path) {
  if (path)
    draft.add(*path);
  else
    printNoArc(context);
}

Task<Answer<OdGePoint3d>> askNextPoint(CommandContext& context, const PolylineDraft& draft,
                                       bool inArcs) {
  context.setLastPoint(draft.end());
  const auto nextPiece = [&](const OdGePoint3d& to) -> PreviewShapes {
    const std::optional<ArcPath> path = pieceTo(to, draft, inArcs);
    return path ? PreviewShapes{draft.shown(*path)} : PreviewShapes();
  };
  co_return co_await context.input().point(
      {.text = inArcs ? u"Specify endpoint of arc" : u"Specify next point",
       .keywords = keywordsFor(inArcs, draft.pieces()),
       .base = draft.end(),
       .allowEmpty = true,
       .preview = nextPiece});
}

} // namespace

Task<void> polyline(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify start point"});
  const double width = context.database().sysVarReal("PLINEWID");
  context.print(translated(u"Current line-width is %1").arg(shownReal(width)));

  PolylineDraft draft(context.database(), first.value, {width, width});
  for (bool inArcs = false;;) {
    const Answer<OdGePoint3d> next = co_await askNextPoint(context, draft, inArcs);
    if (next.isEmpty()) co_return;
    if (next.isValue()) {
      add(context, draft, pieceTo(next.value, draft, inArcs));
    } else if (next.is(u"Close")) {
      draft.close(0);
      co_return;
    } else if (next.is(u"CLose")) {
      if (const auto path = pieceTo(draft.start(), draft, true)) {
        draft.close(path->bulge);
        co_return;
      }
      printNoArc(context);
    } else if (next.is(u"Arc") || next.is(u"Line")) {
      inArcs = next.is(u"Arc");
    } else if (next.is(u"Width") || next.is(u"Halfwidth")) {
      co_await askWidths(context, draft, next.is(u"Halfwidth"));
    } else if (next.is(u"Length")) {
      co_await askLength(context, draft);
    } else if (next.is(u"Undo")) {
      if (!draft.takeBack()) context.print(translated(u"All segments already undone."));
    } else if (const PolylineArcOption* option = findPolylineArcOption(next.keyword)) {
      const std::optional<ArcPath> path = co_await option->ask(context, draft.end());
      add(context, draft, path);
    }
  }
}

} // namespace drafton
