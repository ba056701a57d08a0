// How entities stand in files.
#include "drawing/dxf/fields.h"
#include "drawing/entities/arc.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "drawing/entities/polyline.h"
#include "drawing/entities/text.h"

namespace {

using LineField = OdDbDxfField<OdDbLine::Data>;
constexpr LineField kLineFields[] = {
    {39, &OdDbLine::Data::extrusion, LineField::kUnlessPreset},
    {10, &OdDbLine::Data::start},
    {11, &OdDbLine::Data::end},
    {210, &OdDbLine::Data::extrusion, LineField::kUnlessPreset},
};

using CircleField = OdDbDxfField<OdDbCircle::Data>;
constexpr CircleField kCircleFields[] = {
    {39, &OdDbCircle::Data::extrusion, CircleField::kUnlessPreset},
    {10, &OdDbCircle::Data::center},
    {40, &OdDbCircle::Data::radius},
    {210, &OdDbCircle::Data::extrusion, CircleField::kUnlessPreset},
};

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

using TextField = OdDbDxfField<OdDbText::Data>;
constexpr TextField kTextFields[] = {
    {39, &OdDbText::Data::extrusion, TextField::kUnlessPreset},
    {10, &OdDbText::Data::position},
    {40, &OdDbText::Data::height},
    {1, &OdDbText::Data::string},
    {50, &OdDbText::Data::rotation, TextField::kAngleUnlessPreset},
    {41, &OdDbText::Data::widthFactor, TextField::kUnlessPreset},
    {51, &OdDbText::Data::oblique, TextField::kAngleUnlessPreset},
    {71, &OdDbText::Data::generation, TextField::kUnlessPreset},
    {72, &OdDbText::Data::horizontal, TextField::kUnlessPreset},
    {11, &OdDbText::Data::alignment, TextField::kUnlessPreset},
    {210, &OdDbText::Data::extrusion, TextField::kUnlessPreset},
};
constexpr TextField kTextVertical = {73, &OdDbText::Data::vertical, TextField::kUnlessPreset};

using PolylineField = OdDbDxfField<OdDbPolyline::Data>;
constexpr PolylineField kPolylineFields[] = {
    {70, &OdDbPolyline::Data::flags},
    {43, &OdDbPolyline::Data::constantWidth, PolylineField::kUnlessPreset},
    {38, &OdDbPolyline::Data::elevation, PolylineField::kUnlessPreset},
    {39, &OdDbPolyline::Data::extrusion, PolylineField::kUnlessPreset},
};
constexpr PolylineField kPolylineNormal = {210, &OdDbPolyline::Data::extrusion,
                                           PolylineField::kUnlessPreset};

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

bool OdDbText::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbText")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 7:
    m_text.style = in.textStyle(tag.text);
    return true;
  default:
    return oddxf::takeTag<Data>(kTextFields, m_text, tag, in) ||
           oddxf::takeTag<Data>({&kTextVertical, 1}, m_text, tag, in);
  }
}

void OdDbText::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_text.extrusion, in);
}

void OdDbText::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbText");
  for (const TextField& field : kTextFields) {
    // A fastened text has its second point even where that is the origin.
    if (field.code == 11 && !isDefaultAlignment())
      out.point(11, m_text.alignment);
    else
      oddxf::putField(field, m_text, out);
    if (field.code == 51 && !m_text.style.isNull() &&
        m_text.style != out.database().data().textStyleStandard)
      out.recordName(7, m_text.style, "Standard");
  }
  // The marker stands twice. What is kept of the subclass belongs before the second one.
  out.subclass("AcDbText");
  oddxf::putField(kTextVertical, m_text, out);
}

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
  default:
    return oddxf::takeTag<Data>(kPolylineFields, m_polyline, tag, in) ||
           oddxf::takeTag<Data>({&kPolylineNormal, 1}, m_polyline, tag, in);
  }
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
  oddxf::putFields<Data>(kPolylineFields, m_polyline, out);
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
