#include "drafton/engine/commands/modified_entities.h"

#include "drafton/engine/entity_groups.h"
#include "drafton/engine/translator.h"
#include "drawing/database.h"
#include "drawing/id_mapping.h"
#include "drawing/moved_xdata.h"
#include "drawing/objects/named_styles.h"

namespace drafton {
namespace {

void printRefusals(CommandContext& context, int refused, const char16_t* refusal) {
  if (refused > 0) context.print(translated(refusal).arg(refused));
}

/// Groups of the copies, under names of their own.
void copyGroups(OdDbDatabase& database, const std::vector<OdDbObjectId>& groups,
                OdDbIdMapping& mapping) {
  if (groups.empty()) return;
  database.deepCloneObjects(groups, oddb::namedDictionary(database, oddb::NamedKind::kGroup),
                            mapping);
}

} // namespace

EntityMover by(const OdGeMatrix3d& transform) {
  return [transform](OdDbEntity& entity) { return oddb::transformWithXData(entity, transform); };
}

void moveEntities(CommandContext& context, const Selection& entities, const EntityMover& mover,
                  const char16_t* refusal) {
  int refused = 0;
  for (const OdDbObjectId& id : entities)
    if (!mover(*id.openAs<OdDbEntity>(OdDb::kForWrite))) ++refused;
  printRefusals(context, refused, refusal);
}

Selection copyEntities(CommandContext& context, const Selection& entities, const EntityMover& mover,
                       const char16_t* refusal) {
  OdDbDatabase& database = context.database();
  Selection made;
  int refused = 0;
  OdDbIdMapping mapping;
  // All of one space at once: what refers to each other among them does so among the copies.
  std::vector<std::pair<OdDbObjectId, Selection>> bySpace;
  for (const OdDbObjectId& id : entities) {
    const OdDbObjectId space = id.openAs<OdDbEntity>()->ownerId();
    auto at = std::find_if(bySpace.begin(), bySpace.end(),
                           [&](const auto& entry) { return entry.first == space; });
    if (at == bySpace.end()) at = bySpace.insert(at, {space, {}});
    at->second.push_back(id);
  }
  for (const auto& [space, ids] : bySpace) database.deepCloneObjects(ids, space, mapping);
  for (const OdDbObjectId& id : entities) {
    const auto copy = mapping.find(id).openAs<OdDbEntity>(OdDb::kForWrite);
    if (mover(*copy)) {
      made.push_back(copy->objectId());
    } else {
      copy->erase();
      ++refused;
    }
  }
  copyGroups(database, wholeGroups(database, entities), mapping);
  printRefusals(context, refused, refusal);
  return made;
}

} // namespace drafton
