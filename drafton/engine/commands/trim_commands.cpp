// TRIM and EXTEND.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/command_steps.h"
#include "drafton/engine/commands/curve_cutting.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {
namespace {

/// Puts what is left of a curve in its place. False if nothing cuts it there.
bool trimAt(OdDbObjectId id, const Selection& edges, const OdGePoint3d& point) {
  const OdDbCurvePtr curve = id.openObject(OdDb::kForWrite);
  const auto pieces = trimmed(*curve, edges, point);
  if (!pieces) return false;
  const auto owner = curve->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  for (const OdDbEntityPtr& piece : *pieces) owner->appendOdDbEntity(piece);
  curve->erase();
  return true;
}

bool extendAt(OdDbObjectId id, const Selection& edges, const OdGePoint3d& point) {
  const OdDbCurvePtr curve = id.openObject(OdDb::kForWrite);
  return extendTo(*curve, edges, point);
}

/// What one of the two commands says and does.
struct Way {
  const char16_t* edges;
  const char16_t* object;
  const char16_t* refusal;
  bool (*change)(OdDbObjectId id, const Selection& edges, const OdGePoint3d& point);
};

constexpr Way kTrim = {u"Select cutting edges; Enter takes everything.", u"Select object to trim",
                       u"The object does not cross a cutting edge there.", trimAt};
constexpr Way kExtend = {u"Select boundary edges; Enter takes everything.",
                         u"Select object to extend",
                         u"The object does not reach a boundary edge from there.", extendAt};

bool isCurve(OdDbObjectId id) {
  const OdDbObjectPtr object = id.openObject();
  return odrxCast<OdDbCurve>(object.get()) != nullptr;
}

Task<void> changeMany(CommandContext& context, const Way& way) {
  OdDbDatabase& database = context.database();
  context.print(translated(way.edges));
  const Selection chosen = co_await selectObjects(context);
  std::vector<OdDbUndoMark> marks;
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, way.object, u"Undo");
    if (picked.keyword == QLatin1String("Undo")) {
      takeBackStep(context, marks);
      continue;
    }
    if (picked.id.isNull()) co_return;
    // Pieces that are made on the way cut as well.
    const Selection edges = chosen.empty() ? SelectionPicker(context.document()).all() : chosen;
    const OdDbUndoMark mark = database.undoMark();
    if (isCurve(picked.id) && way.change(picked.id, edges, picked.point))
      marks.push_back(mark);
    else
      context.print(translated(way.refusal));
  }
}

} // namespace

Task<void> trim(CommandContext& context) { co_await changeMany(context, kTrim); }

Task<void> extend(CommandContext& context) { co_await changeMany(context, kExtend); }

} // namespace drafton
