// MIRROR.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/modified_entities.h"
#include "drafton/engine/commands/previews.h"
#include "drafton/engine/commands/readable_mirror.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/moved_xdata.h"

namespace drafton {
namespace {

/// Texts stay readable unless MIRRTEXT says otherwise.
EntityMover mirrorAt(const OdDbDatabase& database, const OdGePoint3d& point,
                     const OdGeVector3d& line) {
  const OdGeMatrix3d mirroring =
      OdGeMatrix3d::mirroring(point, line.crossProduct(OdGeVector3d::zAxis()));
  const bool mirrorsTexts = database.sysVarInt("MIRRTEXT") != 0;
  return [=](OdDbEntity& entity) {
    if (!(mirrorsTexts ? entity.transformBy(mirroring) : mirrorReadably(entity, mirroring)))
      return false;
    oddb::transformXData(entity, mirroring);
    return true;
  };
}

} // namespace

Task<void> mirror(CommandContext& context) {
  CommandInput& input = context.input();
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  const Answer<OdGePoint3d> first =
      co_await input.point({.text = u"Specify first point of mirror line"});
  OdGeVector3d line;
  const auto mirrored = [&](const OdGePoint3d& to) -> PreviewShapes {
    const OdGeVector3d along{to.x - first.value.x, to.y - first.value.y, 0};
    if (along.isZeroLength()) return {};
    return movedShapes(chosen, mirrorAt(context.database(), first.value, along));
  };
  for (;;) {
    const Answer<OdGePoint3d> second = co_await input.point(
        {.text = u"Specify second point of mirror line", .base = first.value, .preview = mirrored});
    line = second.value - first.value;
    line.z = 0;
    if (!line.isZeroLength()) break;
    context.print(translated(u"The two points must differ."));
  }
  const Answer<OdString> erase = co_await input.keyword(
      {.text = u"Erase source objects?", .keywords = u"Yes No", .defaultValue = u"No"});

  const EntityMover mover = mirrorAt(context.database(), first.value, line);
  if (erase.is(u"Yes"))
    moveEntities(context, chosen, mover, u"%1 could not be mirrored.");
  else
    copyEntities(context, chosen, mover, u"%1 could not be mirrored.");
}

} // namespace drafton
