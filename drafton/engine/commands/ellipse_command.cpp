// ELLIPSE.

#include "drafton/engine/commands/arc_path.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drawing/entities/ellipse.h"

namespace drafton {
namespace {

/// Turned further than this about its axis a circle is seen from its edge.
constexpr double kSteepest = 89.4 * kOdaPi / 180;
constexpr double kThinnest = 1e-6;

/// An ellipse by a half axis and the length of the other one.
struct EllipseDraft {
  OdGePoint3d center;
  OdGeVector3d axis;
  double other = 0;

  bool isSwapped() const { return other > axis.length(); }
  OdGeVector3d major() const {
    return isSwapped() ? OdGeVector3d::zAxis().crossProduct(axis.normal()) * other : axis;
  }
  double ratio() const {
    const double length = axis.length();
    return isSwapped() ? length / other : other / length;
  }
  /// The parameter on the way that an angle from the first axis gives.
  double paramAt(double angle) const {
    const double fromMajor = isSwapped() ? angle - kOdaPi / 2 : angle;
    return odgeNormalAngle(std::atan2(std::sin(fromMajor), ratio() * std::cos(fromMajor)));
  }
  /// The parameter from one that is counted from the first axis.
  double paramFrom(double param) const {
    return odgeNormalAngle(isSwapped() ? param - kOdaPi / 2 : param);
  }
};

/// A point that differs from another one in the plane.
Task<OdGePoint3d> askOtherPoint(CommandContext& context, const char16_t* question,
                                OdGePoint3d from) {
  for (;;) {
    const Answer<OdGePoint3d> answer =
        co_await context.input().point({.text = question, .base = from});
    if (answer.value.x != from.x || answer.value.y != from.y) co_return answer.value;
    context.print(translated(u"The two points must differ."));
  }
}

/// The ellipse as a circle that is turned about its axis.
Task<void> askTurn(CommandContext& context, EllipseDraft& draft) {
  for (;;) {
    const Answer<double> turn = co_await context.input().angle(
        {.text = u"Specify rotation around major axis", .base = draft.center});
    if (turn.value >= 0 && turn.value <= kSteepest) {
      draft.other = draft.axis.length() * std::cos(turn.value);
      co_return;
    }
    context.print(translated(u"An angle between 0 and 89.4 is needed."));
  }
}

Task<void> askOtherAxis(CommandContext& context, EllipseDraft& draft) {
  CommandInput& input = context.input();
  for (;;) {
    const Answer<double> distance =
        co_await input.distance({.text = u"Specify distance to other axis",
                                 .keywords = u"Rotation",
                                 .base = draft.center,
                                 .range = NumberRange::kPositive});
    if (distance.is(u"Rotation")) {
      co_await askTurn(context, draft);
      co_return;
    }
    draft.other = distance.value;
    if (draft.ratio() >= kThinnest) co_return;
    context.print(translated(u"The ellipse would be too thin."));
  }
}

/// One end of an elliptical arc as a parameter. Typed angles count from the first axis; a point
/// gives its direction. Nothing for the included angle.
Task<std::optional<double>> askEnd(CommandContext& context, const EllipseDraft& draft, bool isStart,
                                   bool& byParameter) {
  const double first = directionOf({}, OdGePoint3d() + draft.axis);
  for (;;) {
    const QStringView question =
        byParameter ? isStart ? u"Specify start parameter" : u"Specify end parameter"
        : isStart   ? u"Specify start angle"
                    : u"Specify end angle";
    const QStringView keywords = byParameter ? isStart ? u"Angle" : u"Angle Included"
                                 : isStart   ? u"Parameter"
                                             : u"Parameter Included";
    const Answer<OdGePoint3d> answer = co_await context.input().point(
        {.text = question, .keywords = keywords, .base = draft.center, .allowText = true});
    if (answer.is(u"Included")) co_return std::nullopt;
    if (answer.is(u"Parameter") || answer.is(u"Angle")) {
      byParameter = answer.is(u"Parameter");
      continue;
    }
    const std::optional<double> angle =
        answer.isText() ? parseAngle(answer.text) : directionOf(draft.center, answer.value) - first;
    if (angle) co_return byParameter ? draft.paramFrom(*angle) : draft.paramAt(*angle);
    context.print(translated(u"Invalid angle: degrees or a point are needed."));
  }
}

/// The parameters of both ends, the second one above the first.
Task<std::pair<double, double>> askEnds(CommandContext& context, const EllipseDraft& draft) {
  bool byParameter = false;
  const std::optional<double> answer = co_await askEnd(context, draft, true, byParameter);
  const double start = *answer;
  std::optional<double> end = co_await askEnd(context, draft, false, byParameter);
  if (!end) {
    const Answer<double> included = co_await context.input().angle(
        {.text = u"Specify included angle for arc", .defaultValue = kOdaPi});
    end = odgeNormalAngle(start + included.value);
  }
  // An arc that ends where it begins goes all around.
  co_return std::pair(start, *end > start ? *end : *end + 2 * kOdaPi);
}

Task<EllipseDraft> askByCenter(CommandContext& context) {
  EllipseDraft draft;
  const Answer<OdGePoint3d> center =
      co_await context.input().point({.text = u"Specify center of ellipse"});
  draft.center = center.value;
  const OdGePoint3d end =
      co_await askOtherPoint(context, u"Specify endpoint of axis", draft.center);
  draft.axis = {end.x - draft.center.x, end.y - draft.center.y, 0};
  co_return draft;
}

Task<EllipseDraft> askByAxis(CommandContext& context, OdGePoint3d first) {
  const OdGePoint3d second =
      co_await askOtherPoint(context, u"Specify other endpoint of axis", first);
  EllipseDraft draft;
  draft.center = {first.x / 2 + second.x / 2, first.y / 2 + second.y / 2, first.z};
  // Angles count from the end that was given first.
  draft.axis = {first.x - draft.center.x, first.y - draft.center.y, 0};
  co_return draft;
}

} // namespace

Task<void> ellipse(CommandContext& context) {
  CommandInput& input = context.input();
  Answer<OdGePoint3d> first = co_await input.point(
      {.text = u"Specify axis endpoint of ellipse", .keywords = u"Arc Center"});
  const bool isArc = first.is(u"Arc");
  if (isArc)
    first = co_await input.point(
        {.text = u"Specify axis endpoint of elliptical arc", .keywords = u"Center"});
  EllipseDraft draft;
  if (first.isValue())
    draft = co_await askByAxis(context, first.value);
  else
    draft = co_await askByCenter(context);
  co_await askOtherAxis(context, draft);
  std::pair<double, double> ends(0, 2 * kOdaPi);
  if (isArc) ends = co_await askEnds(context, draft);
  const OdDbEllipsePtr made = odrxMake<OdDbEllipse>(
      draft.center, OdGeVector3d::zAxis(), draft.major(), draft.ratio(), ends.first, ends.second);
  addNewEntity(context.database(), *made);
}

} // namespace drafton
