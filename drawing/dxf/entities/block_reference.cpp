// How INSERT stands in files.
#include "drawing/entities/block_reference.h"
#include "drawing/dxf/fields.h"

namespace {

constexpr std::string_view kOne = "AcDbBlockReference";
constexpr std::string_view kMany = "AcDbMInsertBlock";

using InsertField = OdDbDxfField<OdDbBlockReference::Data>;
constexpr InsertField kTurn = {50, &OdDbBlockReference::Data::rotation,
                               InsertField::kAngleUnlessPreset};
constexpr InsertField kArray[] = {
    {70, &OdDbBlockReference::Data::columns, InsertField::kUnlessPreset},
    {71, &OdDbBlockReference::Data::rows, InsertField::kUnlessPreset},
    {44, &OdDbBlockReference::Data::columnSpacing, InsertField::kUnlessPreset},
    {45, &OdDbBlockReference::Data::rowSpacing, InsertField::kUnlessPreset},
};
constexpr InsertField kNormal = {210, &OdDbBlockReference::Data::normal,
                                 InsertField::kUnlessPreset};
constexpr InsertField kPosition = {10, &OdDbBlockReference::Data::position};

} // namespace

bool OdDbBlockReference::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in(kOne) && !in.in(kMany)) return false;
  switch (tag.code) {
  case 100:
  case 66: // whether attributes follow is told by what follows
    return true;
  case 2:
    m_insert.block = in.block(tag.text);
    return true;
  case 41:
    m_insert.scale.sx = in.real(tag, 1);
    return true;
  case 42:
    m_insert.scale.sy = in.real(tag, 1);
    return true;
  case 43:
    m_insert.scale.sz = in.real(tag, 1);
    return true;
  default:
    return oddxf::takeTag<Data>({&kPosition, 1}, m_insert, tag, in) ||
           oddxf::takeTag<Data>({&kTurn, 1}, m_insert, tag, in) ||
           oddxf::takeTag<Data>(kArray, m_insert, tag, in) ||
           oddxf::takeTag<Data>({&kNormal, 1}, m_insert, tag, in);
  }
}

void OdDbBlockReference::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_insert.normal, in);
  // Programs write 0 for a factor that they do not know, and for no array.
  OdGeScale3d& s = m_insert.scale;
  for (double* const factor : {&s.sx, &s.sy, &s.sz})
    if (*factor == 0) *factor = 1;
  m_insert.columns = std::max(m_insert.columns, 1);
  m_insert.rows = std::max(m_insert.rows, 1);
}

void OdDbBlockReference::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass(isMInsert() ? "AcDbMInsertBlock" : "AcDbBlockReference");
  const bool hasAttributes = std::any_of(m_insert.attributes.begin(), m_insert.attributes.end(),
                                         [](OdDbObjectId id) { return id.isValid(); });
  if (hasAttributes) out.integer(66, 1);
  out.recordName(2, m_insert.block, "");
  oddxf::putField(kPosition, m_insert, out);
  const OdGeScale3d& s = m_insert.scale;
  if (s.sx != 1) out.real(41, s.sx);
  if (s.sy != 1) out.real(42, s.sy);
  if (s.sz != 1) out.real(43, s.sz);
  oddxf::putField(kTurn, m_insert, out);
  oddxf::putFields<Data>(kArray, m_insert, out);
  oddxf::putField(kNormal, m_insert, out);
}

void OdDbBlockReference::dxfOutFollowers(OdDbDxfOut& out) const {
  bool any = false;
  for (const OdDbObjectId id : m_insert.attributes) {
    if (const OdDbObjectPtr attribute = id.openObject()) {
      out.object(*attribute);
      any = true;
    }
  }
  if (const OdDbObjectPtr end = m_insert.end.openObject(); any && end) out.object(*end);
}
