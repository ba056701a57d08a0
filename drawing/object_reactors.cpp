#include "drawing/object_reactors.h"

#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

namespace {

constexpr int kGroup = 102;
constexpr char kReactors[] = "{ACAD_REACTORS";
constexpr char kExtension[] = "{ACAD_XDICTIONARY";
constexpr int kSoftPointer = 330;

using Tags = std::vector<OdDbKeptTags::Tag>;

/// The tags of one group: from its beginning to behind its end; both `end()` if there is none.
std::pair<Tags::iterator, Tags::iterator> groupIn(Tags& tags, const char* name) {
  const auto isGroup = [&](const auto& tag) {
    return tag.code == kGroup && tag.value.trimmed() == name;
  };
  const auto isEnd = [](const auto& tag) {
    return tag.code == kGroup && tag.value.trimmed() == "}";
  };
  const auto begin = std::find_if(tags.begin(), tags.end(), isGroup);
  const auto end = std::find_if(begin, tags.end(), isEnd);
  return {begin, end == tags.end() ? end : end + 1};
}

} // namespace

void oddb::addPersistentReactor(OdDbObject& object, OdDbObjectId reactor) {
  OdDbKeptTags kept(object.residue() ? object.residue()->groups : QByteArray());
  const QByteArray handle = reactor.getHandle().ascii().toLatin1();
  auto [begin, end] = groupIn(kept.tags, kReactors);
  if (std::any_of(begin, end, [&](const auto& tag) {
        return tag.code == kSoftPointer && tag.value.trimmed().toUpper() == handle;
      }))
    return;
  if (begin == kept.tags.end()) {
    const Tags group{{kGroup, kReactors}, {kSoftPointer, handle}, {kGroup, "}"}};
    kept.tags.insert(kept.tags.begin(), group.begin(), group.end());
  } else {
    kept.tags.insert(end - 1, {kSoftPointer, handle});
  }
  object.editResidue().groups = kept.lines();
}

void oddb::removePersistentReactor(OdDbObject& object, OdDbObjectId reactor) {
  if (!object.residue()) return;
  OdDbKeptTags kept(object.residue()->groups);
  const QByteArray handle = reactor.getHandle().ascii().toLatin1();
  const auto [begin, end] = groupIn(kept.tags, kReactors);
  const auto at = std::find_if(begin, end, [&](const auto& tag) {
    return tag.code == kSoftPointer && tag.value.trimmed().toUpper() == handle;
  });
  if (at == end) return;
  const bool isLast = end - begin <= 3;
  kept.tags.erase(isLast ? begin : at, isLast ? end : at + 1);
  object.editResidue().groups = kept.lines();
}

OdDbObjectId oddb::extensionDictionary(const OdDbObject& object) {
  if (!object.residue() || !object.database()) return {};
  OdDbKeptTags kept(object.residue()->groups);
  const auto [begin, end] = groupIn(kept.tags, kExtension);
  for (auto at = begin; at != end; ++at) {
    if (at->code != 360) continue;
    const QByteArray text = at->value.trimmed();
    const auto handle =
        OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
    return handle ? object.database()->getOdDbObjectId(*handle) : OdDbObjectId();
  }
  return {};
}
