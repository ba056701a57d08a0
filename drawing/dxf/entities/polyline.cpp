// How LWPOLYLINE stands in files.
#include "drawing/entities/polyline.h"
#include "drawing/dxf/fields.h"

namespace {

using PolylineField = OdDbDxfField<OdDbPolyline::Data>;
constexpr int kFlags = 70;
constexpr PolylineField kPolylineFields[] = {
    {kFlags, &OdDbPolyline::Data::flags},
    {43, &OdDbPolyline::Data::constantWidth, PolylineField::kUnlessPreset},
    {38, &OdDbPolyline::Data::elevation, PolylineField::kUnlessPreset},
    {39, &OdDbPolyline::Data::extrusion, PolylineField::kUnlessPreset},
};
constexpr PolylineField kPolylineNormal = {210, &OdDbPolyline::Data::extrusion,
                                           PolylineField::kUnlessPreset};

} // namespace

bool OdDbPolyline::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbPolyline")) return false;
  auto& vertices = m_polyline.vertices;
  const auto last = [&] {
    if (vertices.empty()) vertices.push_back({});
    return vertices.size() - 1;
  };
  switch (tag.code) {
  case 100:
    m_polyline.tellsFlags = false;
    return true;
  case 90: {
    // The count is only a hint: what follows tells how many there are.
    constexpr int kTrusted = 4096;
    const int count = in.integer(tag, 0);
    if (count > 0) vertices.reserve(static_cast<std::size_t>(std::min(count, kTrusted)));
    return true;
  }
  case 10:
    vertices.push_back({});
    vertices.editPoint(last()).x = in.real(tag, 0);
    return true;
  case 20:
    vertices.editPoint(last()).y = in.real(tag, 0);
    return true;
  case 40:
    vertices.setStartWidth(last(), in.real(tag, 0));
    return true;
  case 41:
    vertices.setEndWidth(last(), in.real(tag, 0));
    return true;
  case 42:
    vertices.setBulge(last(), in.real(tag, 0));
    return true;
  case 91:
    vertices.setIdentifier(last(), in.integer(tag, 0));
    return true;
  case kFlags:
    m_polyline.tellsFlags = true;
    break;
  default:
    break;
  }
  return oddxf::takeTag<Data>(kPolylineFields, m_polyline, tag, in) ||
         oddxf::takeTag<Data>({&kPolylineNormal, 1}, m_polyline, tag, in);
}

void OdDbPolyline::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_polyline.extrusion, in);
  m_polyline.vertices.shrinkToFit();
}

void OdDbPolyline::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbPolyline");
  out.integer(90, numVerts());
  for (const PolylineField& field : kPolylineFields)
    if (field.code != kFlags || m_polyline.flags != 0 || m_polyline.tellsFlags)
      oddxf::putField(field, m_polyline, out);
  for (const Vertex v : m_polyline.vertices) {
    out.point2d(10, v.point);
    if (v.startWidth != 0 || v.endWidth != 0) {
      out.real(40, v.startWidth);
      out.real(41, v.endWidth);
    }
    if (v.bulge != 0) out.real(42, v.bulge);
    if (v.identifier != 0 && out.version() >= OdDb::kR2010) out.integer(91, v.identifier);
  }
  oddxf::putField(kPolylineNormal, m_polyline, out);
}
