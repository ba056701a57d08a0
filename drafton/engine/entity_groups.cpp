#include "drafton/engine/entity_groups.h"

#include "drawing/database.h"
#include "drawing/objects/group.h"
#include "drawing/objects/named_styles.h"

#include <algorithm>
#include <unordered_set>

namespace drafton {
namespace {

std::vector<OdDbGroupPtr> groupsOf(const OdDbDatabase& database) {
  std::vector<OdDbGroupPtr> groups;
  const OdDbDictionaryPtr dictionary =
      oddb::namedDictionary(database, oddb::NamedKind::kGroup).openObject();
  if (!dictionary) return groups;
  for (const OdDbDictionary::Entry& entry : dictionary->entries()) {
    const OdDbObjectPtr object = entry.id.openObject();
    if (auto* const group = odrxCast<OdDbGroup>(object.get())) groups.emplace_back(group);
  }
  return groups;
}

} // namespace

Selection withGroups(const OdDbDatabase& database, const Selection& entities) {
  const std::unordered_set<OdDbObjectId> given(entities.begin(), entities.end());
  std::unordered_set<OdDbObjectId> known = given;
  Selection all = entities;
  for (const OdDbGroupPtr& group : groupsOf(database)) {
    if (!group->isSelectable()) continue;
    const std::vector<OdDbObjectId> members = group->allEntityIds();
    if (std::none_of(members.begin(), members.end(),
                     [&](const OdDbObjectId& id) { return given.contains(id); }))
      continue;
    for (const OdDbObjectId& id : members)
      if (known.insert(id).second) all.push_back(id);
  }
  return all;
}

std::vector<OdDbObjectId> wholeGroups(const OdDbDatabase& database, const Selection& entities) {
  const std::unordered_set<OdDbObjectId> known(entities.begin(), entities.end());
  std::vector<OdDbObjectId> whole;
  for (const OdDbGroupPtr& group : groupsOf(database)) {
    const std::vector<OdDbObjectId> members = group->allEntityIds();
    if (!members.empty() && std::all_of(members.begin(), members.end(),
                                        [&](const OdDbObjectId& id) { return known.contains(id); }))
      whole.push_back(group->objectId());
  }
  return whole;
}

} // namespace drafton
