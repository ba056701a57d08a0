// RECTANG.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/drawing_session.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"

namespace drafton {
namespace {

// Each option of the first prompt asks for the modes that it stands for.

Task<void> askChamfer(CommandContext& context, RectangleModes& modes) {
  CommandInput& input = context.input();
  const Answer<double> first =
      co_await input.distance({.text = u"Specify first chamfer distance for rectangles",
                               .defaultValue = modes.chamferBefore,
                               .range = NumberRange::kNotNegative});
  const Answer<double> second =
      co_await input.distance({.text = u"Specify second chamfer distance for rectangles",
                               .defaultValue = first.value,
                               .range = NumberRange::kNotNegative});
  modes.chamferBefore = first.value;
  modes.chamferBehind = second.value;
  modes.fillet = 0;
}

Task<void> askElevation(CommandContext& context, RectangleModes& modes) {
  const Answer<double> elevation = co_await context.input().distance(
      {.text = u"Specify the elevation for rectangles", .defaultValue = modes.elevation});
  modes.elevation = elevation.value;
}

Task<void> askFillet(CommandContext& context, RectangleModes& modes) {
  const Answer<double> radius =
      co_await context.input().distance({.text = u"Specify fillet radius for rectangles",
                                         .defaultValue = modes.fillet,
                                         .range = NumberRange::kNotNegative});
  modes.fillet = radius.value;
  modes.chamferBefore = modes.chamferBehind = 0;
}

Task<void> askThickness(CommandContext& context, RectangleModes& modes) {
  const Answer<double> thickness = co_await context.input().distance(
      {.text = u"Specify thickness for rectangles", .defaultValue = modes.thickness});
  modes.thickness = thickness.value;
}

Task<void> askWidth(CommandContext& context, RectangleModes& modes) {
  const Answer<double> width =
      co_await context.input().distance({.text = u"Specify line width for rectangles",
                                         .defaultValue = modes.width,
                                         .range = NumberRange::kNotNegative});
  modes.width = width.value;
}

struct ModeOption {
  const char16_t* keyword;
  Task<void> (*ask)(CommandContext& context, RectangleModes& modes);
};

constexpr ModeOption kModeOptions[] = {
    {u"Chamfer", askChamfer},     {u"Elevation", askElevation}, {u"Fillet", askFillet},
    {u"Thickness", askThickness}, {u"Width", askWidth},
};

struct ShownMode {
  const char16_t* text;
  double RectangleModes::*value;
};

constexpr ShownMode kShownModes[] = {
    {u"Elevation=%1", &RectangleModes::elevation},
    {u"Fillet=%1", &RectangleModes::fillet},
    {u"Thickness=%1", &RectangleModes::thickness},
    {u"Width=%1", &RectangleModes::width},
};

void printModes(const CommandContext& context, const RectangleModes& modes) {
  QStringList shown;
  if (modes.chamferBefore != 0 || modes.chamferBehind != 0)
    shown << translated(u"Chamfer=%1 x %2")
                 .arg(shownReal(modes.chamferBefore), shownReal(modes.chamferBehind));
  for (const ShownMode& row : kShownModes)
    if (const double value = modes.*row.value; value != 0)
      shown << translated(row.text).arg(shownReal(value));
  if (modes.rotation != 0) shown << translated(u"Rotation=%1").arg(shownAngle(modes.rotation));
  if (shown.isEmpty()) return;
  context.print(translated(u"Current rectangle modes: %1").arg(shown.join(u"  ")));
}

Task<OdGePoint3d> askFirstCorner(CommandContext& context, RectangleModes& modes) {
  for (;;) {
    const Answer<OdGePoint3d> corner =
        co_await context.input().point({.text = u"Specify first corner point",
                                        .keywords = u"Chamfer Elevation Fillet Thickness Width"});
    if (corner.isValue()) co_return corner.value;
    for (const ModeOption& option : kModeOptions)
      if (corner.is(option.keyword)) co_await option.ask(context, modes);
  }
}

Task<void> askRotation(CommandContext& context, RectangleModes& modes, OdGePoint3d corner) {
  CommandInput& input = context.input();
  const Answer<double> angle = co_await input.angle({.text = u"Specify rotation angle",
                                                     .keywords = u"Pick",
                                                     .base = corner,
                                                     .defaultValue = modes.rotation});
  if (angle.isValue()) {
    modes.rotation = angle.value;
    co_return;
  }
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify first point"});
  const Answer<double> picked =
      co_await input.angle({.text = u"Specify second point", .base = first.value});
  modes.rotation = picked.value;
}

Task<RectangleSides> askArea(CommandContext& context, RectangleModes modes) {
  CommandInput& input = context.input();
  DrawingSession& session = DrawingSession::of(context);
  const Answer<double> area =
      co_await input.real({.text = u"Enter area of rectangle in current units",
                           .defaultValue = session.rectangleArea,
                           .range = NumberRange::kPositive});
  const Answer<OdString> basis =
      co_await input.keyword({.text = u"Calculate rectangle dimensions based on",
                              .keywords = u"Length Width",
                              .defaultValue = u"Length"});
  const bool byLength = basis.is(u"Length");
  const QStringView question = byLength ? u"Enter rectangle length" : u"Enter rectangle width";
  const double last = byLength ? session.rectangleLength : session.rectangleWidth;
  const Answer<double> side = co_await input.distance(
      {.text = question, .defaultValue = last, .range = NumberRange::kPositive});
  const double other = sideForArea(area.value, side.value, modes);
  session.rectangleArea = area.value;
  co_return byLength ? RectangleSides{side.value, other} : RectangleSides{other, side.value};
}

Task<RectangleSides> askDimensions(CommandContext& context) {
  CommandInput& input = context.input();
  DrawingSession& session = DrawingSession::of(context);
  const Answer<double> length = co_await input.distance({.text = u"Specify length for rectangles",
                                                         .defaultValue = session.rectangleLength,
                                                         .range = NumberRange::kPositive});
  const Answer<double> width = co_await input.distance({.text = u"Specify width for rectangles",
                                                        .defaultValue = session.rectangleWidth,
                                                        .range = NumberRange::kPositive});
  co_return RectangleSides{length.value, width.value};
}

OdDbPolylinePtr outlineOf(CommandContext& context, const OdGePoint3d& corner,
                          const RectangleSides& sides, const RectangleModes& modes) {
  const OdDbPolylinePtr outline = odrxMake<OdDbPolyline>();
  for (const OdDbPolyline::Vertex& vertex : rectangleOutline(corner, sides, modes))
    outline->addVertexAt(outline->numVerts(), vertex.point, vertex.bulge);
  outline->setClosed(true);
  outline->setPlinegen(context.database().sysVarInt("PLINEGEN") != 0);
  outline->setConstantWidth(modes.width);
  outline->setElevation(modes.elevation != 0 ? modes.elevation : corner.z);
  outline->setThickness(modes.thickness != 0 ? modes.thickness
                                             : context.database().sysVarReal("THICKNESS"));
  return outline;
}

/// The other corner; where the sides are known, only the quarter that it lies in counts.
Task<RectangleSides> askSides(CommandContext& context, RectangleModes& modes, OdGePoint3d corner) {
  CommandInput& input = context.input();
  DrawingSession& session = DrawingSession::of(context);
  std::optional<RectangleSides> known;
  // Where the sides are known, the other corner says where they lie.
  const auto sidesTo = [&](const OdGePoint3d& to) {
    const RectangleSides sides = sidesBetween(corner, to, modes.rotation);
    return known ? RectangleSides{std::copysign(known->length, sides.length),
                                  std::copysign(known->width, sides.width)}
                 : sides;
  };
  const auto shown = [&](const OdGePoint3d& to) -> PreviewShapes {
    const RectangleSides sides = sidesTo(to);
    if (sides.length == 0 || sides.width == 0) return {};
    return newShape(context.database(), outlineOf(context, corner, sides, modes));
  };
  for (;;) {
    const Answer<OdGePoint3d> other = co_await input.point({.text = u"Specify other corner point",
                                                            .keywords = u"Area Dimensions Rotation",
                                                            .base = corner,
                                                            .band = RubberBand::kBox,
                                                            .preview = shown});
    if (other.is(u"Rotation")) {
      co_await askRotation(context, modes, corner);
      continue;
    }
    if (other.is(u"Area")) co_return co_await askArea(context, modes);
    if (other.is(u"Dimensions")) {
      known = co_await askDimensions(context);
      session.rectangleLength = known->length;
      session.rectangleWidth = known->width;
      continue;
    }
    const RectangleSides sides = sidesTo(other.value);
    if (sides.length != 0 && sides.width != 0) co_return sides;
    context.print(translated(u"The corners must differ in both directions."));
  }
}

} // namespace

Task<void> rectangle(CommandContext& context) {
  DrawingSession& session = DrawingSession::of(context);
  RectangleModes modes = session.rectangle;
  printModes(context, modes);
  const OdGePoint3d corner = co_await askFirstCorner(context, modes);
  const RectangleSides sides = co_await askSides(context, modes, corner);

  const OdDbPolylinePtr outline = outlineOf(context, corner, sides, modes);
  addNewEntity(context.database(), *outline);
  session.rectangle = modes;
  context.setLastPoint(corner);
}

} // namespace drafton
