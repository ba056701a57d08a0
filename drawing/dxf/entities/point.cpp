// How POINT stands in files.
#include "drawing/entities/point.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbPoint::Data>;
constexpr Field kFields[] = {
    {10, &OdDbPoint::Data::position},
    {39, &OdDbPoint::Data::extrusion, Field::kUnlessPreset},
    {210, &OdDbPoint::Data::extrusion, Field::kUnlessPreset},
    {50, &OdDbPoint::Data::rotation, Field::kAngleUnlessPreset},
};

} // namespace

bool OdDbPoint::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbPoint")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kFields, m_point, tag, in);
}

void OdDbPoint::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_point.extrusion, in);
}

void OdDbPoint::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbPoint");
  oddxf::putFields<Data>(kFields, m_point, out);
}
