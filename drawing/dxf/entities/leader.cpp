// How LEADER stands in files.
#include "drawing/entities/leader.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbLeader::Data>;
constexpr Field kFields[] = {
    {71, &OdDbLeader::Data::arrowHead, Field::kUnlessPreset},
    {72, &OdDbLeader::Data::splined, Field::kUnlessPreset},
    {73, &OdDbLeader::Data::annoType, Field::kUnlessPreset},
    {74, &OdDbLeader::Data::hookDirection, Field::kUnlessPreset},
    {75, &OdDbLeader::Data::hookLine, Field::kUnlessPreset},
    {40, &OdDbLeader::Data::textHeight, Field::kUnlessPreset},
    {41, &OdDbLeader::Data::textWidth, Field::kUnlessPreset},
};
constexpr Field kTail[] = {
    {77, &OdDbLeader::Data::color, Field::kUnlessPreset},
    {210, &OdDbLeader::Data::normal, Field::kUnlessPreset},
    {211, &OdDbLeader::Data::horizontal, Field::kUnlessPreset},
    {212, &OdDbLeader::Data::blockOffset, Field::kUnlessPreset},
    {213, &OdDbLeader::Data::annotationOffset, Field::kUnlessPreset},
};

} // namespace

bool OdDbLeader::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbLeader")) return false;
  auto& vertices = m_leader.vertices;
  switch (tag.code) {
  case 100:
  case 76: // the count: what follows tells how many there are
    return true;
  case 3:
    m_leader.dimStyle = in.dimStyle(tag.text);
    return true;
  case 340:
    m_leader.annotation = in.reference(tag);
    return true;
  case 10:
    vertices.emplace_back().x = in.real(tag, 0);
    return true;
  case 20:
  case 30:
    if (vertices.empty()) return false;
    (tag.code == 20 ? vertices.back().y : vertices.back().z) = in.real(tag, 0);
    return true;
  default:
    return oddxf::takeTag<Data>(kFields, m_leader, tag, in) ||
           oddxf::takeTag<Data>(kTail, m_leader, tag, in);
  }
}

void OdDbLeader::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_leader.normal, in);
  m_leader.vertices.shrink_to_fit();
}

void OdDbLeader::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbLeader");
  out.recordName(3, m_leader.dimStyle, "Standard");
  oddxf::putFields<Data>(kFields, m_leader, out);
  out.integer(76, numVertices());
  for (const OdGePoint3d& p : m_leader.vertices) out.point(10, p);
  if (!m_leader.annotation.isNull()) out.reference(340, m_leader.annotation);
  oddxf::putFields<Data>(kTail, m_leader, out);
}
