#include "drawing/cloning/object_tags.h"

#include "drawing/dxf/out.h"

namespace {

constexpr int kGroup = 102;
constexpr int kSubclass = 100;
constexpr int kOwnerCode = 330;

using Data = OdDbDatabaseData;

/// Where names of records stand: an empty class name is any class.
struct NameRow {
  std::string_view dxfName, subclass;
  int code;
  oddb::NameReference reference;
};
constexpr NameRow kNames[] = {
    {"", "AcDbEntity", 8, {Data::kLayers}},
    {"", "AcDbEntity", 6, {Data::kLinetypes}},
    {"LAYER", "AcDbLayerTableRecord", 6, {Data::kLinetypes}},
    {"MLINESTYLE", "AcDbMlineStyle", 6, {Data::kLinetypes}},
    {"", "AcDbText", 7, {Data::kTextStyles}},
    {"", "AcDbMText", 7, {Data::kTextStyles}},
    {"", "AcDbTable", 7, {Data::kTextStyles}},
    {"", "AcDbBlockReference", 2, {Data::kBlocks}},
    {"", "AcDbMInsertBlock", 2, {Data::kBlocks}},
    {"", "AcDbDimension", 2, {Data::kBlocks, true}},
    {"", "AcDbDimension", 3, {Data::kDimStyles}},
    {"", "AcDbLeader", 3, {Data::kDimStyles}},
    {"", "AcDbFcf", 3, {Data::kDimStyles}},
};
// In extended data.
constexpr int kApplicationCode = 1001;
constexpr int kLayerCode = 1003;
constexpr int kHandleCode = 1005;

std::string_view view(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

oddb::ReferenceKind oddb::referenceKind(int code) {
  if (code >= 330 && code <= 339) return ReferenceKind::kSoftPointer;
  if (code >= 340 && code <= 349) return ReferenceKind::kHardPointer;
  if (code >= 350 && code <= 369) return ReferenceKind::kOwner;
  if ((code >= 390 && code <= 399) || code == 480 || code == 481)
    return ReferenceKind::kHardPointer;
  return code == kHandleCode ? ReferenceKind::kSoftPointer : ReferenceKind::kNone;
}

std::vector<oddb::ObjectEntry> oddb::entriesOf(const OdDbObject& object) {
  QByteArray bytes;
  OdDbDxfOut out(*object.database(), OdDb::kR2018,
                 [&](const QByteArray& piece) { bytes += piece; });
  out.object(object);
  if (const auto* const entity = odrxCast<OdDbEntity>(&object)) entity->dxfOutFollowers(out);
  out.flush();
  std::vector<ObjectEntry> entries;
  bool ownerSeen = false;
  bool inGroup = false;
  bool atHead = true;
  int handleCode = object.dxfHandleCode();
  for (OdDbKeptTags::Tag& tag : OdDbKeptTags(bytes).tags) {
    if (tag.code == 0) {
      entries.push_back({tag.value, {}, {}});
      ownerSeen = inGroup = false;
      atHead = true;
      if (entries.size() > 1) handleCode = 5;
      continue;
    }
    ObjectEntry& entry = entries.back();
    if (tag.code == kSubclass) atHead = false;
    if (atHead && tag.code == handleCode && entry.handle.isNull()) {
      entry.handle = OdDbHandle::fromText(view(tag.value)).value_or(OdDbHandle());
      continue;
    }
    if (atHead && tag.code == kGroup) inGroup = tag.value.startsWith('{');
    if (atHead && tag.code == kOwnerCode && !inGroup && !ownerSeen) {
      ownerSeen = true;
      continue;
    }
    entry.tags.push_back(std::move(tag));
  }
  return entries;
}

void oddb::TagWalk::step() {
  const OdDbKeptTags::Tag& tag = m_entry.tags[m_at];
  if (tag.code == kSubclass) m_subclass = tag.value.trimmed();
  if (tag.code == kGroup) m_group = tag.value.startsWith('{') ? tag.value.trimmed() : QByteArray();
  ++m_at;
}

oddb::ReferenceKind oddb::TagWalk::handleReference() const {
  const int code = tag().code;
  // In this one the handles by which entities are sorted have the code of an object's own.
  if (m_entry.dxfName == "SORTENTSTABLE" && code == 5) return ReferenceKind::kSoftPointer;
  return referenceKind(code);
}

std::optional<oddb::NameReference> oddb::TagWalk::nameReference() const {
  const int code = tag().code;
  if (code == kApplicationCode) return NameReference{Data::kRegApps};
  if (code == kLayerCode) return NameReference{Data::kLayers};
  for (const NameRow& row : kNames)
    if (row.code == code && view(m_subclass) == row.subclass &&
        (row.dxfName.empty() || view(m_entry.dxfName) == row.dxfName))
      return row.reference;
  return std::nullopt;
}

OdDbDxfSource::Result oddb::EntrySource::next(OdDbDxfTag& tag) {
  if (m_at > m_tags.size()) return kEnd;
  if (m_at == m_tags.size()) {
    ++m_at;
    tag = {0, "EOF"};
    return kTag;
  }
  const OdDbKeptTags::Tag& kept = m_tags[m_at++];
  tag = {kept.code, view(kept.value)};
  return kTag;
}
