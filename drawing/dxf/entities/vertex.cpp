// How VERTEX stands in files.
#include "drawing/entities/vertex.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbVertexData>;
constexpr Field kPoint = {10, &OdDbVertexData::point};
constexpr Field kFlags = {70, &OdDbVertexData::flags};
constexpr Field kStart = {40, &OdDbVertexData::startWidth};
constexpr Field kEnd = {41, &OdDbVertexData::endWidth};
constexpr Field kFlatFields[] = {
    {42, &OdDbVertexData::bulge, Field::kUnlessPreset},
    {50, &OdDbVertexData::tangent, Field::kAngleUnlessPreset},
};
constexpr int kFirstFaceCode = 71;

constexpr const char* kSubclasses[] = {"AcDbVertex",
                                       "AcDb2dVertex",
                                       "AcDb3dPolylineVertex",
                                       "AcDbPolygonMeshVertex",
                                       "AcDbPolyFaceMeshVertex",
                                       "AcDbFaceRecord"};

} // namespace

bool OdDbVertex::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  const bool known = std::any_of(std::begin(kSubclasses), std::end(kSubclasses),
                                 [&](const char* name) { return in.in(name); });
  if (!known) return false;
  if (tag.code == 100) {
    // The first one is that of all kinds.
    for (const char* name : std::span(kSubclasses).subspan(1))
      if (tag.text == name) m_subclass = name;
    return true;
  }
  if (tag.code == 40) m_hasStart = true;
  if (tag.code == 41) m_hasEnd = true;
  if (tag.code == 91) {
    m_vertex.identifier = in.integer(tag, 0);
    return true;
  }
  if (tag.code >= kFirstFaceCode && tag.code < kFirstFaceCode + 4) {
    m_vertex.face[static_cast<std::size_t>(tag.code - kFirstFaceCode)] = in.integer(tag, 0);
    return true;
  }
  return oddxf::takeTag<OdDbVertexData>({&kPoint, 1}, m_vertex, tag, in) ||
         oddxf::takeTag<OdDbVertexData>({&kFlags, 1}, m_vertex, tag, in) ||
         oddxf::takeTag<OdDbVertexData>({&kStart, 1}, m_vertex, tag, in) ||
         oddxf::takeTag<OdDbVertexData>({&kEnd, 1}, m_vertex, tag, in) ||
         oddxf::takeTag<OdDbVertexData>(kFlatFields, m_vertex, tag, in);
}

void OdDbVertex::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  const bool face = m_vertex.isFace();
  if (!face) out.subclass("AcDbVertex");
  if (m_subclass) out.subclass(m_subclass);
  oddxf::putField(kPoint, m_vertex, out);
  if (m_subclass && std::string_view(m_subclass) == "AcDb2dVertex") {
    if (m_hasStart) oddxf::putField(kStart, m_vertex, out);
    if (m_hasEnd) oddxf::putField(kEnd, m_vertex, out);
    oddxf::putFields<OdDbVertexData>(kFlatFields, m_vertex, out);
    if (m_vertex.identifier != 0 && out.version() >= OdDb::kR2010)
      out.integer(91, m_vertex.identifier);
  }
  oddxf::putField(kFlags, m_vertex, out);
  for (std::size_t i = 0; i < m_vertex.face.size(); ++i)
    if (face && m_vertex.face[i] != 0)
      out.integer(kFirstFaceCode + static_cast<int>(i), m_vertex.face[i]);
}
