#include "drawing/dxf/missing_owners.h"

#include "drawing/objects/dictionary.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"

namespace {

constexpr int kGroup = 102, kSoftPointer = 330, kHardOwner = 360;

/// The first handle of a code within a group that an object keeps.
std::optional<OdDbHandle> handleIn(const OdDbObject& object, const char* group, int code) {
  if (!object.residue() || !object.residue()->groups.contains(group)) return std::nullopt;
  bool isInside = false;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(object.residue()->groups).tags) {
    const QByteArray text = tag.value.trimmed();
    if (tag.code == kGroup) isInside = text == group;
    if (isInside && tag.code == code)
      return OdDbHandle::fromText({text.constData(), static_cast<std::size_t>(text.size())});
  }
  return std::nullopt;
}

} // namespace

void OdDbDxfMissingOwners::note(const OdDbDictionary& dictionary) {
  for (const OdDbDictionary::Entry& entry : dictionary.entries())
    m_owners.emplace(entry.id, dictionary.objectId());
}

void OdDbDxfMissingOwners::gatherExtensions() {
  for (; m_looked < m_data.stubs.size(); ++m_looked) {
    const OdDbStub& stub = m_data.stubs[m_looked];
    if (!stub.object) continue;
    const auto handle = handleIn(*stub.object, "{ACAD_XDICTIONARY", kHardOwner);
    if (handle && !handle->isNull())
      m_owners.emplace(OdDbObjectId(&m_data.stubFor(*handle)), stub.object->objectId());
  }
}

OdDbObjectId OdDbDxfMissingOwners::of(const OdDbObject& object, OdDbHandle handle) {
  if (handle.isNull()) return {};
  const OdDbObjectId id(&m_data.stubFor(handle));
  auto at = m_owners.find(id);
  if (at == m_owners.end()) {
    gatherExtensions();
    at = m_owners.find(id);
  }
  if (at != m_owners.end()) return at->second;
  const auto reactor = handleIn(object, "{ACAD_REACTORS", kSoftPointer);
  return reactor && !reactor->isNull() ? OdDbObjectId(&m_data.stubFor(*reactor)) : OdDbObjectId();
}
