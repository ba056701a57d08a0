// SPLINE.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/spline.h"

namespace drafton {
namespace {

struct SplineDraft {
  std::vector<OdGePoint3d> points;
  bool isClosed = false;
};

Task<SplineDraft> askPoints(CommandContext& context) {
  CommandInput& input = context.input();
  SplineDraft draft;
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify first point"});
  draft.points.push_back(first.value);
  for (;;) {
    const bool canClose = draft.points.size() >= 3, canEnd = draft.points.size() >= 2;
    const QStringView keywords = canClose ? u"Close Undo" : u"Undo";
    const Answer<OdGePoint3d> next = co_await input.point({.text = u"Specify next point",
                                                           .keywords = keywords,
                                                           .base = draft.points.back(),
                                                           .allowEmpty = canEnd});
    if (next.isEmpty()) co_return draft;
    if (next.is(u"Close")) {
      draft.points.push_back(draft.points.front());
      draft.isClosed = true;
      co_return draft;
    }
    if (next.isValue()) {
      if (next.value == draft.points.back())
        context.print(translated(u"The two points must differ."));
      else
        draft.points.push_back(next.value);
    } else if (draft.points.size() > 1) {
      draft.points.pop_back();
    } else {
      context.print(translated(u"There is nothing to undo."));
    }
    context.setLastPoint(draft.points.back());
  }
}

/// A direction towards or away from an end; without length if the curve is to find its own.
Task<OdGeVector3d> askTangent(CommandContext& context, const char16_t* question, OdGePoint3d end) {
  const Answer<OdGePoint3d> answer =
      co_await context.input().point({.text = question, .base = end, .enterText = u"natural"});
  co_return answer.isValue() ? (answer.value - end).normal() : OdGeVector3d();
}

} // namespace

Task<void> spline(CommandContext& context) {
  const SplineDraft draft = co_await askPoints(context);
  const OdGePoint3d start = draft.points.front(), end = draft.points.back();
  OdGeVector3d startTangent, endTangent;
  if (draft.isClosed) {
    startTangent = co_await askTangent(context, u"Specify tangent", start);
    endTangent = startTangent;
  } else {
    // At the start the point lies where the curve would have come from.
    const OdGeVector3d back = co_await askTangent(context, u"Specify start tangent", start);
    startTangent = -back;
    endTangent = co_await askTangent(context, u"Specify end tangent", end);
  }
  const OdDbSplinePtr made = odrxMake<OdDbSpline>(draft.points, startTangent, endTangent);
  addNewEntity(context.database(), *made);
  context.setLastPoint(end);
}

} // namespace drafton
