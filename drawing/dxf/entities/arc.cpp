// How ARC stands in files.
#include "drawing/entities/arc.h"
#include "drawing/dxf/fields.h"

namespace {

using ArcField = OdDbDxfField<OdDbArc::Data>;
constexpr ArcField kArcCircleFields[] = {
    {39, &OdDbArc::Data::extrusion, ArcField::kUnlessPreset},
    {10, &OdDbArc::Data::center},
    {40, &OdDbArc::Data::radius},
    {210, &OdDbArc::Data::extrusion, ArcField::kUnlessPreset},
};
constexpr ArcField kArcFields[] = {
    {50, &OdDbArc::Data::startAngle, ArcField::kAngle},
    {51, &OdDbArc::Data::endAngle, ArcField::kAngle},
};

} // namespace

bool OdDbArc::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (in.in("AcDbCircle") &&
      (tag.code == 100 || oddxf::takeTag<Data>(kArcCircleFields, m_arc, tag, in)))
    return true;
  if (!in.in("AcDbArc")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kArcFields, m_arc, tag, in);
}

void OdDbArc::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_arc.extrusion, in);
}

void OdDbArc::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbCircle");
  oddxf::putFields<Data>(kArcCircleFields, m_arc, out);
  out.subclass("AcDbArc");
  oddxf::putFields<Data>(kArcFields, m_arc, out);
}
