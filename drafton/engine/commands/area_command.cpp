// AREA.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/measured_values.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/hatch.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

/// Around corners, as they lie from above.
OdDbPolylinePtr around(const std::vector<OdGePoint3d>& corners) {
  const OdDbPolylinePtr polyline = odrxMake<OdDbPolyline>();
  for (const OdGePoint3d& corner : corners)
    polyline->addVertexAt(polyline->numVerts(), {corner.x, corner.y});
  polyline->setClosed(true);
  return polyline;
}

void tell(CommandContext& context, const OdDbCurve& curve) {
  const OdDbDatabase& database = context.database();
  if (!std::isfinite(curve.getArea()) || !std::isfinite(curve.length()))
    return context.print(translated(u"The area is too large to calculate with."));
  const char16_t* const text =
      curve.isClosed() ? u"Area = %1, perimeter = %2" : u"Area = %1, length = %2";
  context.print(translated(text).arg(shownArea(database, curve.getArea()),
                                     shownLengthWithUnit(database, curve.length())));
}

/// False, and nothing told, for what encloses nothing.
bool tellObject(CommandContext& context, OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  if (const auto* const hatch = odrxCast<OdDbHatch>(object.get())) {
    context.print(translated(u"Area = %1").arg(shownArea(context.database(), hatch->getArea())));
    return true;
  }
  const auto* const curve = odrxCast<OdDbCurve>(object.get());
  if (!curve || !curve->hasShape() || !(curve->getArea() > 0)) return false;
  tell(context, *curve);
  return true;
}

Task<void> measureObject(CommandContext& context) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select object to measure");
    if (picked.id.isNull() || tellObject(context, picked.id)) co_return;
    context.print(translated(u"The object encloses no area."));
  }
}

} // namespace

Task<void> area(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first = co_await input.point(
      {.text = u"Specify first corner", .keywords = u"Object", .enterText = u"Object"});
  if (first.is(u"Object")) {
    co_await measureObject(context);
    co_return;
  }
  std::vector<OdGePoint3d> corners(1, first.value);
  const auto shown = [&corners](const OdGePoint3d& at) {
    std::vector<OdGePoint3d> all = corners;
    all.push_back(at);
    PreviewShapes shapes;
    shapes.push_back(around(all));
    return shapes;
  };
  for (;;) {
    const Answer<OdGePoint3d> next = co_await input.point({.text = u"Specify next corner",
                                                           .keywords = u"Undo",
                                                           .base = corners.back(),
                                                           .allowEmpty = true,
                                                           .preview = shown});
    if (next.isEmpty()) break;
    if (next.isValue())
      corners.push_back(next.value);
    else if (corners.size() > 1)
      corners.pop_back();
    else
      context.print(translated(u"There is nothing to undo."));
  }
  if (corners.size() < 3)
    context.print(translated(u"An area needs three corners."));
  else
    tell(context, *around(corners));
}

} // namespace drafton
