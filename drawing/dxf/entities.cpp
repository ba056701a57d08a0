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
    {39, &OdDbLine::Data::thickness, LineField::kUnlessPreset},
    {10, &OdDbLine::Data::start},
    {11, &OdDbLine::Data::end},
    {210, &OdDbLine::Data::normal, LineField::kUnlessPreset},
};

using CircleField = OdDbDxfField<OdDbCircle::Data>;
constexpr CircleField kCircleFields[] = {
    {39, &OdDbCircle::Data::thickness, CircleField::kUnlessPreset},
    {10, &OdDbCircle::Data::center},
    {40, &OdDbCircle::Data::radius},
    {210, &OdDbCircle::Data::normal, CircleField::kUnlessPreset},
};

using ArcField = OdDbDxfField<OdDbArc::Data>;
constexpr ArcField kArcCircleFields[] = {
    {39, &OdDbArc::Data::thickness, ArcField::kUnlessPreset},
    {10, &OdDbArc::Data::center},
    {40, &OdDbArc::Data::radius},
    {210, &OdDbArc::Data::normal, ArcField::kUnlessPreset},
};
constexpr ArcField kArcFields[] = {
    {50, &OdDbArc::Data::startAngle, ArcField::kAngle},
    {51, &OdDbArc::Data::endAngle, ArcField::kAngle},
};

using TextField = OdDbDxfField<OdDbText::Data>;
constexpr TextField kTextFields[] = {
    {39, &OdDbText::Data::thickness, TextField::kUnlessPreset},
    {10, &OdDbText::Data::position},
    {40, &OdDbText::Data::height},
    {1, &OdDbText::Data::string},
    {50, &OdDbText::Data::rotation, TextField::kAngleUnlessPreset},
    {41, &OdDbText::Data::widthFactor, TextField::kUnlessPreset},
    {51, &OdDbText::Data::oblique, TextField::kAngleUnlessPreset},
    {71, &OdDbText::Data::generation, TextField::kUnlessPreset},
    {72, &OdDbText::Data::horizontal, TextField::kUnlessPreset},
    {11, &OdDbText::Data::alignment, TextField::kUnlessPreset},
    {210, &OdDbText::Data::normal, TextField::kUnlessPreset},
};
constexpr TextField kTextVertical = {73, &OdDbText::Data::vertical, TextField::kUnlessPreset};

using PolylineField = OdDbDxfField<OdDbPolyline::Data>;
constexpr PolylineField kPolylineFields[] = {
    {70, &OdDbPolyline::Data::flags},
    {43, &OdDbPolyline::Data::constantWidth, PolylineField::kUnlessPreset},
    {38, &OdDbPolyline::Data::elevation, PolylineField::kUnlessPreset},
    {39, &OdDbPolyline::Data::thickness, PolylineField::kUnlessPreset},
};
constexpr PolylineField kPolylineNormal = {210, &OdDbPolyline::Data::normal,
                                           PolylineField::kUnlessPreset};

/// A normal without length would leave the entity without a plane.
void mendNormal(OdGeVector3d& normal, OdDbDxfIn& in) {
  if (normal.isZeroLength()) {
    in.damage(QStringLiteral("the normal of an entity has no length"));
    normal = OdGeVector3d::zAxis();
  }
}

} // namespace

bool OdDbEntity::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (!in.in("AcDbEntity")) return false;
  switch (tag.code) {
  case 100:
    return true;
  case 8:
    m_common.layer = in.layer(tag.text);
    return true;
  case 6:
    m_common.linetype = in.linetype(tag.text);
    return true;
  case 62: {
    // A true colour comes with the nearest index before it.
    const int index = std::abs(in.integer(tag, OdCmColor::kACIbyLayer));
    if (index > OdCmColor::kACInone) return false;
    if (!m_common.color.isByColor()) m_common.color.setColorIndex(index);
    return true;
  }
  case 420: {
    const auto rgb = static_cast<std::uint32_t>(in.longInteger(tag, 0));
    m_common.color.setRGB(static_cast<std::uint8_t>(rgb >> 16), static_cast<std::uint8_t>(rgb >> 8),
                          static_cast<std::uint8_t>(rgb));
    return true;
  }
  case 430: {
    const OdString names = in.text(tag.text);
    const qsizetype at = names.indexOf(QLatin1Char('$'));
    m_common.color.setNames(names.mid(at + 1), at < 0 ? OdString() : names.left(at));
    return true;
  }
  case 48:
    m_common.linetypeScale = in.real(tag, m_common.linetypeScale);
    return true;
  case 60:
    m_common.visible = in.integer(tag, 0) == 0;
    return true;
  case 67:
    if (in.integer(tag, 0) != 0) in.setPaperSpace();
    return true;
  case 370: {
    const int weight = in.integer(tag, OdDb::kLnWtByLayer);
    if (!OdDb::isValidLineWeight(weight)) return false;
    m_common.lineWeight = static_cast<OdDb::LineWeight>(weight);
    return true;
  }
  case 440:
    m_common.transparency =
        OdCmTransparency::fromValue(static_cast<std::uint32_t>(in.longInteger(tag, 0)));
    return true;
  case 380: {
    const int type = in.integer(tag, 0);
    if (type < OdDb::kPlotStyleNameByLayer || type > OdDb::kPlotStyleNameById) return false;
    m_common.plotStyleType = static_cast<OdDb::PlotStyleNameType>(type);
    return true;
  }
  case 390:
    m_common.plotStyle = in.reference(tag);
    return true;
  default:
    return false;
  }
}

void OdDbEntity::dxfInEnd(OdDbDxfIn&) {
  if (!m_common.plotStyle.isNull()) m_common.plotStyleType = OdDb::kPlotStyleNameById;
}

void OdDbEntity::dxfOut(OdDbDxfOut& out) const {
  const Common& c = m_common;
  out.subclass("AcDbEntity");
  if (out.isPaperSpace()) out.integer(67, 1);
  out.recordName(8, c.layer, "0");
  if (!c.linetype.isNull() && c.linetype != out.database().getLinetypeByLayerId())
    out.recordName(6, c.linetype, "ByLayer");
  if (!c.color.isByLayer()) out.integer(62, c.color.colorIndex());
  if (c.linetypeScale != 1) out.real(48, c.linetypeScale);
  if (!c.visible) out.integer(60, 1);
  if (c.lineWeight != OdDb::kLnWtByLayer) out.integer(370, c.lineWeight);
  if (c.color.isByColor() && out.version() >= OdDb::kR2004)
    out.integer(420, c.color.color() & 0xFFFFFF);
  if (c.color.hasNames() && out.version() >= OdDb::kR2004)
    out.text(430, c.color.bookName() + QLatin1Char('$') + c.color.colorName());
  if (c.transparency.value() != 0 && out.version() >= OdDb::kR2004)
    out.integer(440, c.transparency.value());
  if (c.plotStyleType == OdDb::kPlotStyleNameById)
    out.reference(390, c.plotStyle);
  else if (c.plotStyleType != OdDb::kPlotStyleNameByLayer)
    out.integer(380, c.plotStyleType);
}

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
  mendNormal(m_circle.normal, in);
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
  mendNormal(m_arc.normal, in);
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
  mendNormal(m_text.normal, in);
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
  const auto last = [&]() -> Vertex& {
    if (vertices.empty()) vertices.emplace_back();
    return vertices.back();
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
    vertices.emplace_back();
    last().point.x = in.real(tag, 0);
    return true;
  case 20:
    last().point.y = in.real(tag, 0);
    return true;
  case 40:
    last().startWidth = in.real(tag, 0);
    return true;
  case 41:
    last().endWidth = in.real(tag, 0);
    return true;
  case 42:
    last().bulge = in.real(tag, 0);
    return true;
  case 91:
    last().identifier = in.integer(tag, 0);
    return true;
  default:
    return oddxf::takeTag<Data>(kPolylineFields, m_polyline, tag, in) ||
           oddxf::takeTag<Data>({&kPolylineNormal, 1}, m_polyline, tag, in);
  }
}

void OdDbPolyline::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  mendNormal(m_polyline.normal, in);
  m_polyline.vertices.shrink_to_fit();
}

void OdDbPolyline::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbPolyline");
  out.integer(90, numVerts());
  oddxf::putFields<Data>(kPolylineFields, m_polyline, out);
  for (const Vertex& v : m_polyline.vertices) {
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
