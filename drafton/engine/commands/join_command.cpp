// JOIN.

#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/joined_curves.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"

namespace drafton {
namespace {

std::vector<JoinedCurve> joinedOf(const Selection& chosen) {
  if (std::optional<JoinedCurve> line = joinedLine(chosen)) return {*line};
  if (std::optional<JoinedCurve> arc = joinedArc(chosen)) return {*arc};
  return joinedPolylines(chosen);
}

void replace(const JoinedCurve& joined) {
  const auto first = joined.from.front().openAs<OdDbEntity>();
  first->ownerId().openAs<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(joined.curve);
  for (const OdDbObjectId& id : joined.from) id.safeOpenObject(OdDb::kForWrite)->erase();
}

} // namespace

Task<void> join(CommandContext& context) {
  const Selection chosen = co_await selectObjects(context);
  if (chosen.empty()) co_return;
  std::size_t used = 0;
  const std::vector<JoinedCurve> all = joinedOf(chosen);
  for (const JoinedCurve& joined : all) {
    replace(joined);
    used += joined.from.size();
  }
  if (used > 0) context.print(translated(u"%1 joined into %2").arg(used).arg(all.size()));
  if (used < chosen.size())
    context.print(translated(u"%1 could not be joined.").arg(chosen.size() - used));
}

} // namespace drafton
