// How SPLINE stands in files.
#include "drawing/entities/spline.h"
#include "drawing/dxf/fields.h"

namespace {

using Field = OdDbDxfField<OdDbSpline::Data>;
constexpr Field kNormal = {210, &OdDbSpline::Data::normal};
constexpr Field kFields[] = {
    {70, &OdDbSpline::Data::flags},
    {71, &OdDbSpline::Data::degree},
};
constexpr Field kTolerances[] = {
    {42, &OdDbSpline::Data::knotTolerance, Field::kUnlessPreset},
    {43, &OdDbSpline::Data::controlTolerance, Field::kUnlessPreset},
    {44, &OdDbSpline::Data::fitTolerance, Field::kUnlessPreset},
};
constexpr Field kTangents[] = {
    {12, &OdDbSpline::Data::startTangent, Field::kUnlessPreset},
    {13, &OdDbSpline::Data::endTangent, Field::kUnlessPreset},
};
constexpr int kPlanar = 8;

/// Takes a coordinate of the last point of a list; that of x begins a new one.
bool takePoint(std::vector<OdGePoint3d>& points, int code, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code == code) points.emplace_back();
  if (points.empty()) return false;
  if (tag.code == code)
    points.back().x = in.real(tag, 0);
  else if (tag.code == code + 10)
    points.back().y = in.real(tag, 0);
  else if (tag.code == code + 20)
    points.back().z = in.real(tag, 0);
  else
    return false;
  return true;
}

} // namespace

bool OdDbSpline::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in("AcDbSpline")) return false;
  switch (tag.code) {
  case 100:
  case 72: // counts: what follows tells how many there are
  case 73:
  case 74:
    return true;
  case 40:
    m_spline.knots.push_back(in.real(tag, 0));
    return true;
  case 41:
    m_spline.weights.push_back(in.real(tag, 1));
    return true;
  default:
    return takePoint(m_spline.controlPoints, 10, tag, in) ||
           takePoint(m_spline.fitPoints, 11, tag, in) ||
           oddxf::takeTag<Data>(kFields, m_spline, tag, in) ||
           oddxf::takeTag<Data>(kTolerances, m_spline, tag, in) ||
           oddxf::takeTag<Data>(kTangents, m_spline, tag, in) ||
           oddxf::takeTag<Data>({&kNormal, 1}, m_spline, tag, in);
  }
}

void OdDbSpline::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_spline.normal, in);
  m_spline.knots.shrink_to_fit();
  m_spline.weights.shrink_to_fit();
  m_spline.controlPoints.shrink_to_fit();
  m_spline.fitPoints.shrink_to_fit();
  m_curveMade = false;
}

void OdDbSpline::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbSpline");
  if (m_spline.flags & kPlanar) oddxf::putField(kNormal, m_spline, out);
  oddxf::putFields<Data>(kFields, m_spline, out);
  out.integer(72, static_cast<std::int64_t>(m_spline.knots.size()));
  out.integer(73, static_cast<std::int64_t>(m_spline.controlPoints.size()));
  out.integer(74, static_cast<std::int64_t>(m_spline.fitPoints.size()));
  oddxf::putFields<Data>(kTolerances, m_spline, out);
  oddxf::putFields<Data>(kTangents, m_spline, out);
  for (const double knot : m_spline.knots) out.real(40, knot);
  // A weight stands behind its point where all points have one.
  const bool rational = m_spline.weights.size() == m_spline.controlPoints.size();
  for (std::size_t i = 0; i < m_spline.controlPoints.size(); ++i) {
    out.point(10, m_spline.controlPoints[i]);
    if (rational) out.real(41, m_spline.weights[i]);
  }
  if (!rational)
    for (const double weight : m_spline.weights) out.real(41, weight);
  for (const OdGePoint3d& p : m_spline.fitPoints) out.point(11, p);
}
