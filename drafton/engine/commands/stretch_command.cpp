// STRETCH.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/displacement.h"
#include "drafton/engine/document.h"
#include "drafton/engine/grips.h"
#include "drafton/engine/selection_picker.h"
#include "drafton/engine/translator.h"

namespace drafton {
namespace {

bool isInside(const FlatBox& box, const OdGePoint3d& point) {
  return box.contains(OdGePoint2d{point.x, point.y});
}

/// True if an entity without corners goes along: by its centre or insertion point, or else if it
/// lies inside.
bool goesAlong(const OdDbEntity& entity, const std::vector<Grip>& grips, const FlatBox& box) {
  if (!grips.empty()) return isInside(box, grips.front().at);
  const FlatBox own = shapeOf(entity, 0).box;
  return !own.isEmpty() && box.contains(own);
}

/// Moves what of an entity lies in the box.
bool stretch(OdDbEntity& entity, const FlatBox& box, const OdGeVector3d& shift) {
  const std::vector<Grip> grips = gripsOf(entity);
  const EntityMover mover = by(OdGeMatrix3d::translation(shift));
  std::vector<Grip> inside;
  std::size_t corners = 0;
  for (const Grip& grip : grips) {
    if (!grip.isCorner) continue;
    ++corners;
    if (isInside(box, grip.at)) inside.push_back(grip);
  }
  if (corners == 0) return !goesAlong(entity, grips, box) || mover(entity);
  if (inside.size() == corners) return mover(entity);
  for (const Grip& grip : inside)
    if (!moveGrip(entity, grip.number, grip.at + shift)) return false;
  return true;
}

/// The box around what is to move.
Task<SelectionRegion> askBox(CommandContext& context) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first corner of a box around what is to move",
                            .band = RubberBand::kSelection});
  const Answer<OdGePoint3d> second = co_await input.point(
      {.text = u"Specify opposite corner", .base = first.value, .band = RubberBand::kSelection});
  co_return SelectionRegion::window(first.value, second.value);
}

} // namespace

Task<void> stretch(CommandContext& context) {
  const SelectionRegion region = co_await askBox(context);
  const Selection chosen = SelectionPicker(context.document()).meeting(region);
  if (chosen.empty()) throw CommandFailure(translated(u"Nothing was found there."));
  context.print(translated(u"%1 found").arg(chosen.size()));
  const FlatBox box = region.box();
  const MoverOf moverOf = [box](const OdGeVector3d& shift) {
    return [box, shift](OdDbEntity& entity) { return stretch(entity, box, shift); };
  };
  const OdGeVector3d shift = co_await askShift(context, chosen, moverOf);
  moveEntities(context, chosen, moverOf(shift), u"%1 could not be stretched.");
}

} // namespace drafton
