// How XLINE and RAY stand in files.
#include "drawing/entities/xline.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbXline::Data>;
constexpr Field kFields[] = {
    {10, &OdDbXline::Data::base},
    {11, &OdDbXline::Data::direction},
};

} // namespace

bool OdDbXline::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in(dxfSubclass())) return false;
  return tag.code == 100 || oddxf::takeTag<Data>(kFields, m_line, tag, in);
}

void OdDbXline::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  if (m_line.direction.length() > 0 && std::isfinite(m_line.direction.length())) return;
  in.damage(QStringLiteral("a line without end has no direction"));
  m_line.direction = OdGeVector3d::xAxis();
}

void OdDbXline::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass(dxfSubclass());
  oddxf::putFields<Data>(kFields, m_line, out);
}
