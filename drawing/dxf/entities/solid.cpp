// How SOLID and TRACE stand in files.
#include "drawing/entities/solid.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbSolid::Data>;
constexpr Field kFields[] = {
    {10, &OdDbSolid::Data::p0},
    {11, &OdDbSolid::Data::p1},
    {12, &OdDbSolid::Data::p2},
    {13, &OdDbSolid::Data::p3},
    {39, &OdDbSolid::Data::extrusion, Field::kUnlessPreset},
    {210, &OdDbSolid::Data::extrusion, Field::kUnlessPreset},
};

} // namespace

bool OdDbSolid::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbTrace")) return false;
  if (tag.code == 13) m_hasFourth = true;
  return tag.code == 100 || oddxf::takeTag<Data>(kFields, m_solid, tag, in);
}

void OdDbSolid::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  if (!m_hasFourth) m_solid.p3 = m_solid.p2;
  oddxf::mendNormal(m_solid.extrusion, in);
}

void OdDbSolid::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbTrace");
  oddxf::putFields<Data>(kFields, m_solid, out);
}
