// How ELLIPSE stands in files.
#include "drawing/entities/ellipse.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbEllipse::Data>;
constexpr Field kFields[] = {
    {10, &OdDbEllipse::Data::center},
    {11, &OdDbEllipse::Data::majorAxis},
    {210, &OdDbEllipse::Data::normal, Field::kUnlessPreset},
    {40, &OdDbEllipse::Data::ratio},
    {41, &OdDbEllipse::Data::startParam},
    {42, &OdDbEllipse::Data::endParam},
};

} // namespace

bool OdDbEllipse::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbEllipse")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kFields, m_ellipse, tag, in);
}

void OdDbEllipse::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_ellipse.normal, in);
}

void OdDbEllipse::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbEllipse");
  oddxf::putFields<Data>(kFields, m_ellipse, out);
}
