// How LINE stands in files.
#include "drawing/entities/line.h"
#include "drawing/dxf/fields.h"

namespace {

using LineField = OdDbDxfField<OdDbLine::Data>;
constexpr LineField kLineFields[] = {
    {39, &OdDbLine::Data::extrusion, LineField::kUnlessPreset},
    {10, &OdDbLine::Data::start},
    {11, &OdDbLine::Data::end},
    {210, &OdDbLine::Data::extrusion, LineField::kUnlessPreset},
};

} // namespace

bool OdDbLine::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbLine")) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kLineFields, m_line, tag, in);
}

void OdDbLine::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbLine");
  oddxf::putFields<Data>(kLineFields, m_line, out);
}
