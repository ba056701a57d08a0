// How CIRCLE stands in files.
#include "drawing/entities/circle.h"
#include "drawing/dxf/fields.h"

namespace {

using CircleField = OdDbDxfField<OdDbCircle::Data>;
constexpr CircleField kCircleFields[] = {
    {39, &OdDbCircle::Data::extrusion, CircleField::kUnlessPreset},
    {10, &OdDbCircle::Data::center},
    {40, &OdDbCircle::Data::radius},
    {210, &OdDbCircle::Data::extrusion, CircleField::kUnlessPreset},
};

} // namespace

bool OdDbCircle::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbCircle")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kCircleFields, m_circle, tag, in);
}

void OdDbCircle::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_circle.extrusion, in);
}

void OdDbCircle::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbCircle");
  oddxf::putFields<Data>(kCircleFields, m_circle, out);
}
