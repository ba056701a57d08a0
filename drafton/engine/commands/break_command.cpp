// BREAK.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"

namespace drafton {
namespace {

bool canBreak(const OdDbEntity& entity) {
  const auto* const curve = odrxCast<OdDbCurve>(&entity);
  return curve && curve->hasShape() && curve->length() > 0 &&
         (odrxCast<OdDbLine>(&entity) || odrxCast<OdDbArc>(&entity) ||
          odrxCast<OdDbCircle>(&entity) || odrxCast<OdDbPolyline>(&entity));
}

double paramAt(const OdDbCurve& curve, const OdGePoint3d& point) {
  double param = 0;
  curve.getClosestPointTo(point, &param);
  return param;
}

/// Parameters that differ by less, measured by the whole curve, are one.
constexpr double kNear = 1e-9;

/// What is left when all between two places goes; nothing goes if they are one. None if the curve
/// cannot be broken there, or if nothing would be left.
std::optional<std::vector<OdDbEntityPtr>> broken(const OdDbCurve& curve, const OdGePoint3d& from,
                                                 const OdGePoint3d& to) {
  const double start = curve.getStartParam(), end = curve.getEndParam();
  const double near = kNear * (end - start);
  const double first = paramAt(curve, from), second = paramAt(curve, to);
  const double low = std::min(first, second), high = std::max(first, second);
  const bool isOne = high - low <= near;
  // Split at one point, a whole circle would be as it was.
  if (isOne && odrxCast<OdDbCircle>(&curve)) return std::nullopt;
  const bool fromStart = !curve.isClosed() && low - start <= near;
  const bool toEnd = !curve.isClosed() && end - high <= near;
  std::vector<double> cuts;
  if (!fromStart) cuts.push_back(low);
  if (!toEnd && !(isOne && !cuts.empty())) cuts.push_back(high);
  if (cuts.empty() || (isOne && (fromStart || toEnd))) return std::nullopt;
  std::vector<OdDbEntityPtr> pieces;
  if (!curve.getSplitCurves(cuts, pieces)) return std::nullopt;
  if (isOne || pieces.size() < 2) return pieces;
  // Of a closed curve all goes that lies onward from the first place to the second.
  std::size_t gone = fromStart ? 0 : 1;
  if (curve.isClosed()) gone = first < second ? 0 : 1;
  pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(gone));
  return pieces;
}

/// The curve that is to be broken, and where it was pointed at; null if Enter is given.
Task<PickedEntity> askCurve(CommandContext& context) {
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select object to break");
    if (picked.id.isNull() || canBreak(*picked.id.openAs<OdDbEntity>())) co_return picked;
    context.print(translated(u"Only lines, arcs, circles and polylines can be broken."));
  }
}

struct Places {
  OdGePoint3d first, second;
};

Task<Places> askPlaces(CommandContext& context, OdGePoint3d picked) {
  CommandInput& input = context.input();
  const Answer<OdGePoint3d> second = co_await input.point(
      {.text = u"Specify second break point, or @ for the same", .keywords = u"First Split"});
  if (second.isValue()) co_return Places{picked, second.value};
  if (second.is(u"Split")) {
    const Answer<OdGePoint3d> at = co_await input.point({.text = u"Specify break point"});
    co_return Places{at.value, at.value};
  }
  const Answer<OdGePoint3d> first = co_await input.point({.text = u"Specify first break point"});
  const Answer<OdGePoint3d> other =
      co_await input.point({.text = u"Specify second break point, or @ for the same"});
  co_return Places{first.value, other.value};
}

} // namespace

Task<void> breakCurve(CommandContext& context) {
  const PickedEntity picked = co_await askCurve(context);
  if (picked.id.isNull()) co_return;
  const Places places = co_await askPlaces(context, picked.point);
  const OdDbCurvePtr curve = picked.id.openObject(OdDb::kForWrite);
  const auto pieces = broken(*curve, places.first, places.second);
  if (!pieces) {
    context.print(translated(u"The object cannot be broken there."));
    co_return;
  }
  const auto owner = curve->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  for (const OdDbEntityPtr& piece : *pieces) owner->appendOdDbEntity(piece);
  curve->erase();
}

} // namespace drafton
