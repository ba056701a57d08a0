// How 3DFACE stands in files.
#include "drawing/entities/face.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbFace::Data>;
constexpr Field kFields[] = {
    {10, &OdDbFace::Data::p0},
    {11, &OdDbFace::Data::p1},
    {12, &OdDbFace::Data::p2},
    {13, &OdDbFace::Data::p3},
    {70, &OdDbFace::Data::invisibleEdges, Field::kUnlessPreset},
};

} // namespace

bool OdDbFace::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbFace")) return false;
  if (tag.code == 13) m_hasFourth = true;
  return tag.code == 100 || oddxf::takeTag<Data>(kFields, m_face, tag, in);
}

void OdDbFace::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  if (!m_hasFourth) m_face.p3 = m_face.p2;
}

void OdDbFace::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbFace");
  oddxf::putFields<Data>(kFields, m_face, out);
}
