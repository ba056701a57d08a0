// How POLYLINE stands in files.
#include "drawing/entities/polyline2d.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDb2dPolyline::Data>;
constexpr Field kFields[] = {
    {10, &OdDb2dPolyline::Data::elevation},
    {39, &OdDb2dPolyline::Data::extrusion, Field::kUnlessPreset},
    {40, &OdDb2dPolyline::Data::startWidth, Field::kUnlessPreset},
    {41, &OdDb2dPolyline::Data::endWidth, Field::kUnlessPreset},
    {71, &OdDb2dPolyline::Data::mCount, Field::kUnlessPreset},
    {72, &OdDb2dPolyline::Data::nCount, Field::kUnlessPreset},
    {73, &OdDb2dPolyline::Data::mDensity, Field::kUnlessPreset},
    {74, &OdDb2dPolyline::Data::nDensity, Field::kUnlessPreset},
    {75, &OdDb2dPolyline::Data::smoothType, Field::kUnlessPreset},
    {210, &OdDb2dPolyline::Data::extrusion, Field::kUnlessPreset},
};
constexpr Field kFlags = {70, &OdDb2dPolyline::Data::flags};
constexpr std::size_t kBeforeFlags = 2;
/// By kind.
constexpr const char* kSubclasses[] = {"AcDb2dPolyline", "AcDb3dPolyline", "AcDbPolygonMesh",
                                       "AcDbPolyFaceMesh"};
constexpr const char* kVertexSubclasses[] = {"AcDb2dVertex", "AcDb3dPolylineVertex",
                                             "AcDbPolygonMeshVertex", "AcDbPolyFaceMeshVertex"};

} // namespace

const char* OdDb2dPolyline::dxfSubclass() const { return kSubclasses[kind()]; }

const char* OdDb2dPolyline::vertexSubclass(const Vertex& vertex) const {
  return kind() == kPolyface && vertex.isFace() ? "AcDbFaceRecord" : kVertexSubclasses[kind()];
}

bool OdDb2dPolyline::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  const bool known = std::any_of(std::begin(kSubclasses), std::end(kSubclasses),
                                 [&](const char* name) { return in.in(name); });
  if (!known) return false;
  if (tag.code == kFlags.code) m_polyline.tellsFlags = true;
  // Code 66 says that corners follow, which they always do.
  return tag.code == 100 || tag.code == 66 ||
         oddxf::takeTag<Data>({&kFlags, 1}, m_polyline, tag, in) ||
         oddxf::takeTag<Data>(kFields, m_polyline, tag, in);
}

void OdDb2dPolyline::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_polyline.extrusion, in);
}

void OdDb2dPolyline::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass(dxfSubclass());
  out.integer(66, 1);
  const std::span<const Field> fields(kFields);
  oddxf::putFields<Data>(fields.first(kBeforeFlags), m_polyline, out);
  if (m_polyline.tellsFlags || m_polyline.flags != 0) oddxf::putField(kFlags, m_polyline, out);
  oddxf::putFields<Data>(fields.subspan(kBeforeFlags), m_polyline, out);
}

void OdDb2dPolyline::dxfOutFollowers(OdDbDxfOut& out) const {
  for (const Vertex& v : m_polyline.vertices) {
    const OdSmartPtr<OdDbVertex> entry = v.entry.openObject();
    if (!entry) continue;
    entry->show(v, vertexSubclass(v), m_polyline.startWidth, m_polyline.endWidth);
    out.object(*entry);
  }
  if (const OdDbObjectPtr end = m_polyline.end.openObject()) {
    out.object(*end);
    return;
  }
  // A file that lacks the end mark gets one, as nothing ends the corners otherwise.
  out.raw(0, "SEQEND");
  out.raw(100, "AcDbEntity");
  out.recordName(8, layerId(), "0");
}
