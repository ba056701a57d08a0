// How ATTDEF and ATTRIB stand in files.
#include "drawing/entities/attribute.h"
#include "drawing/dxf/fields.h"
#include "drawing/dxf/text.h"

namespace {

using Field = OdDbDxfField<OdDbAttributeText::Data>;
constexpr Field kVersion = {280, &OdDbAttributeText::Data::version};
constexpr Field kPrompt = {3, &OdDbAttributeText::Data::prompt};
constexpr Field kFields[] = {
    {2, &OdDbAttributeText::Data::tag},
    {70, &OdDbAttributeText::Data::flags},
    {73, &OdDbAttributeText::Data::fieldLength, Field::kUnlessPreset},
};
constexpr Field kLock = {280, &OdDbAttributeText::Data::lockPosition};
constexpr int kEmbedded = 101;
constexpr int kOneLine = 1, kMTextAttribute = 2, kMTextDefinition = 4;
constexpr const char* kRecord = "AcDbXrecord";

} // namespace

bool OdDbAttributeText::takeOwnTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 100:
    return true;
  case kEmbedded:
    m_embedded = true;
    m_mtext = odrxMake<OdDbMText>();
    return true;
  case 280:
    // The first one is the version of the record, the second one the lock.
    if (++m_locksRead == 1)
      m_attribute.version = in.integer(tag, 0);
    else
      m_attribute.lockPosition = in.integer(tag, 0);
    return true;
  case 74:
    setVerticalField(in.integer(tag, 0));
    return true;
  case 3:
    return hasPrompt() && oddxf::takeTag<Data>({&kPrompt, 1}, m_attribute, tag, in);
  case 71: // the kind of text, an unknown number, and the alignment point once more
  case 72:
  case 11:
  case 21:
  case 31:
    // Old files have no subclasses: these are the text's own.
    if (in.isPlain()) return false;
    m_attribute.hasKind = true;
    return true;
  default:
    return oddxf::takeTag<Data>(kFields, m_attribute, tag, in);
  }
}

bool OdDbAttributeText::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code >= 1000) return OdDbText::dxfInTag(tag, in);
  if (m_embedded) {
    // What nobody knows of the embedded text stays with it.
    if (!m_mtext->takeField(tag, in))
      oddxf::addLines(m_mtext->editResidue().edit({}), tag.code, tag.text);
    return true;
  }
  // Newer files have a record between the attribute and its text of several lines.
  if (tag.is(100, kRecord)) return true;
  if (!in.isPlain() && in.in(kRecord)) return tag.code == kEmbedded && takeOwnTag(tag, in);
  if (in.in(dxfSubclass()) && takeOwnTag(tag, in)) return true;
  return OdDbText::dxfInTag(tag, in);
}

void OdDbAttributeText::dxfInEnd(OdDbDxfIn& in) {
  OdDbText::dxfInEnd(in);
  // Before there were versions, the lock stood alone.
  if (m_locksRead == 1 && in.data().version < OdDb::kR2010)
    m_attribute.lockPosition = std::exchange(m_attribute.version, 0);
  m_embedded = false;
  m_locksRead = 0;
}

void OdDbAttributeText::dxfOut(OdDbDxfOut& out) const {
  textOut(out);
  out.subclass(dxfSubclass());
  if (out.version() >= OdDb::kR2010) oddxf::putField(kVersion, m_attribute, out);
  if (hasPrompt()) oddxf::putField(kPrompt, m_attribute, out);
  oddxf::putFields<Data>(kFields, m_attribute, out);
  if (verticalMode() != OdDb::kTextBase) out.integer(74, verticalMode());
  if (out.version() >= OdDb::kR2010 ||
      (out.version() == OdDb::kR2007 && m_attribute.lockPosition != 0))
    oddxf::putField(kLock, m_attribute, out);
  if (out.version() >= OdDb::kR2018 && (m_attribute.hasKind || m_mtext)) {
    out.integer(71, m_mtext ? (hasPrompt() ? kMTextDefinition : kMTextAttribute) : kOneLine);
    out.integer(72, 0);
    if (!isDefaultAlignment()) putAlignment(out);
  }
  if (residue() && residue()->of(kRecord)) out.subclass(kRecord);
  if (!m_mtext || out.version() < OdDb::kR2018) return;
  out.endSubclassHere();
  out.raw(kEmbedded, "Embedded Object");
  m_mtext->putFields(out);
  if (m_mtext->residue() && m_mtext->residue()->of({})) out.kept(*m_mtext->residue()->of({}));
}
