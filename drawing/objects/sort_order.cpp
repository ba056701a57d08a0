#include "drawing/objects/sort_order.h"

#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

#include <algorithm>

namespace {

constexpr int kSoftPointer = 331, kHandle = 5, kHardOwner = 360, kGroup = 102;
const OdString kTableName = QStringLiteral("ACAD_SORTENTS");

std::string_view viewOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

OdDbObjectId idOf(const OdDbDatabase& database, const QByteArray& text) {
  const auto handle = OdDbHandle::fromText(viewOf(text.trimmed()));
  return handle ? database.getOdDbObjectId(*handle) : OdDbObjectId();
}

/// The dictionary that stands beside an object.
OdDbObjectId extensionDictionary(const OdDbObject& object) {
  if (object.residue() == nullptr || object.database() == nullptr) return {};
  bool inside = false;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(object.residue()->groups).tags) {
    if (tag.code == kGroup) inside = tag.value.trimmed() == "{ACAD_XDICTIONARY";
    if (inside && tag.code == kHardOwner) return idOf(*object.database(), tag.value);
  }
  return {};
}

} // namespace

std::unordered_map<OdDbObjectId, OdDbHandle> oddbSortHandles(OdDbObjectId block) {
  std::unordered_map<OdDbObjectId, OdDbHandle> result;
  const OdDbObjectPtr object = block.openObject();
  if (!object) return result;
  const OdDbObjectPtr beside = extensionDictionary(*object).openObject();
  const auto* dictionary = odrxCast<OdDbDictionary>(beside);
  if (dictionary == nullptr) return result;
  const OdDbObjectPtr table = dictionary->getAt(kTableName).openObject();
  if (!table || table->residue() == nullptr) return result;
  QByteArray lines;
  for (const auto& [subclass, tags] : table->residue()->known) lines += tags;
  lines += table->residue()->tail;
  OdDbObjectId entity;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(lines).tags) {
    if (tag.code == kSoftPointer) entity = idOf(*object->database(), tag.value);
    if (tag.code != kHandle || entity.isNull()) continue;
    if (const auto handle = OdDbHandle::fromText(viewOf(tag.value.trimmed())))
      result[entity] = *handle;
    entity = {};
  }
  return result;
}
