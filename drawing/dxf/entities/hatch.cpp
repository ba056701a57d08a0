// How HATCH stands in files.
#include "drawing/entities/hatch.h"
#include "drawing/dxf/colors.h"
#include "drawing/dxf/fields.h"

namespace {

using namespace OdHatchEdge;
constexpr std::string_view kSubclass = "AcDbHatch";

using Hatch = OdDbHatch::Data;
using HatchField = OdDbDxfField<Hatch>;
constexpr HatchField kHead[] = {
    {10, &Hatch::elevation}, {210, &Hatch::normal},     {2, &Hatch::patternName},
    {70, &Hatch::solid},     {71, &Hatch::associative},
};
constexpr HatchField kPattern[] = {
    {75, &Hatch::style},
    {76, &Hatch::patternType},
};
constexpr HatchField kLines[] = {
    {52, &Hatch::patternAngle, HatchField::kAngle},
    {41, &Hatch::patternScale},
    {77, &Hatch::patternDouble},
};
constexpr HatchField kPixelSize = {47, &Hatch::pixelSize, HatchField::kUnlessPreset};
constexpr HatchField kGradient[] = {
    {450, &Hatch::gradient},      {451, &Hatch::gradientReserved}, {460, &Hatch::gradientAngle},
    {461, &Hatch::gradientShift}, {452, &Hatch::oneColor},         {462, &Hatch::tint},
    {453, &Hatch::colorCount},
};
constexpr HatchField kGradientName = {470, &Hatch::gradientName};

/// Takes x or y of the last point of a list; x begins a new one.
bool takeInto(std::vector<OdGePoint2d>& points, int code, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code == code)
    points.push_back({in.real(tag, 0), 0});
  else if (tag.code == code + 10 && !points.empty())
    points.back().y = in.real(tag, 0);
  else
    return false;
  return true;
}

bool takePoint(OdGePoint2d& p, int code, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code != code && tag.code != code + 10) return false;
  (tag.code == code ? p.x : p.y) = in.real(tag, 0);
  return true;
}

bool takeEdgeTag(Line& line, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  return takePoint(line.start, 10, tag, in) || takePoint(line.end, 11, tag, in);
}

/// What arcs of circles and of ellipses have in common.
template <class A>
bool takeArcTag(A& arc, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 50:
    arc.startAngle = in.angle(tag, 0);
    return true;
  case 51:
    arc.endAngle = in.angle(tag, 0);
    return true;
  case 73:
    arc.counterclockwise = in.integer(tag, 1) != 0;
    return true;
  default:
    return takePoint(arc.center, 10, tag, in);
  }
}

bool takeEdgeTag(Arc& arc, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code != 40) return takeArcTag(arc, tag, in);
  arc.radius = in.real(tag, 1);
  return true;
}

bool takeEdgeTag(Ellipse& ellipse, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code != 40)
    return takePoint(ellipse.majorAxis, 11, tag, in) || takeArcTag(ellipse, tag, in);
  ellipse.ratio = in.real(tag, 1);
  return true;
}

bool takeEdgeTag(Spline& spline, const OdDbDxfTag& tag, OdDbDxfIn& in) {
  switch (tag.code) {
  case 94:
    spline.degree = in.integer(tag, 3);
    return true;
  case 73:
    spline.rational = in.integer(tag, 0) != 0;
    return true;
  case 74:
    spline.periodic = in.integer(tag, 0) != 0;
    return true;
  case 95: // the lists tell their lengths
  case 96:
    return true;
  case 40:
    spline.knots.push_back(in.real(tag, 0));
    return true;
  case 42:
    spline.weights.push_back(in.real(tag, 1));
    return true;
  default:
    return takeInto(spline.controlPoints, 10, tag, in) || takeInto(spline.fitPoints, 11, tag, in) ||
           takePoint(spline.startTangent, 12, tag, in) || takePoint(spline.endTangent, 13, tag, in);
  }
}

void putEdge(const Line& line, bool, OdDbDxfOut& out) {
  out.integer(72, 1);
  out.point2d(10, line.start);
  out.point2d(11, line.end);
}

template <class A>
void putAngles(const A& arc, OdDbDxfOut& out) {
  out.angle(50, arc.startAngle);
  out.angle(51, arc.endAngle);
  out.integer(73, arc.counterclockwise);
}

void putEdge(const Arc& arc, bool, OdDbDxfOut& out) {
  out.integer(72, 2);
  out.point2d(10, arc.center);
  out.real(40, arc.radius);
  putAngles(arc, out);
}

void putEdge(const Ellipse& ellipse, bool, OdDbDxfOut& out) {
  out.integer(72, 3);
  out.point2d(10, ellipse.center);
  out.point2d(11, ellipse.majorAxis);
  out.real(40, ellipse.ratio);
  putAngles(ellipse, out);
}

void putEdge(const Spline& spline, bool isLast, OdDbDxfOut& out) {
  out.integer(72, 4);
  out.integer(94, spline.degree);
  out.integer(73, spline.rational);
  out.integer(74, spline.periodic);
  out.integer(95, static_cast<std::int64_t>(spline.knots.size()));
  out.integer(96, static_cast<std::int64_t>(spline.controlPoints.size()));
  for (const double knot : spline.knots) out.real(40, knot);
  for (std::size_t i = 0; i < spline.controlPoints.size(); ++i) {
    out.point2d(10, spline.controlPoints[i]);
    if (spline.rational) out.real(42, i < spline.weights.size() ? spline.weights[i] : 1);
  }
  const bool hasTangents =
      spline.startTangent != OdGePoint2d() || spline.endTangent != OdGePoint2d();
  const bool fits = !spline.fitPoints.empty() || hasTangents;
  // Files before R2010 tell nothing of what a spline was laid through; some that do stay as they
  // are.
  const bool isOld = out.version() < OdDb::kR2010;
  if (isOld && (!fits || out.database().originalFileVersion() >= OdDb::kR2010)) return;
  if (!isOld || spline.countsBehind > (isLast ? 1 : 0))
    out.integer(97, static_cast<std::int64_t>(spline.fitPoints.size()));
  for (const OdGePoint2d& p : spline.fitPoints) out.point2d(11, p);
  if (!fits) return;
  out.point2d(12, spline.startTangent);
  out.point2d(13, spline.endTangent);
}

void putLoop(const OdDbHatchLoop& loop, OdDbDxfOut& out) {
  out.integer(92, loop.flags);
  if (loop.isPolyline()) {
    const bool curved = std::any_of(loop.vertices.begin(), loop.vertices.end(),
                                    [](const auto& v) { return v.bulge != 0; });
    out.integer(72, curved);
    out.integer(73, loop.closed);
    out.integer(93, static_cast<std::int64_t>(loop.vertices.size()));
    for (const OdDbHatchLoop::Vertex& v : loop.vertices) {
      out.point2d(10, v.point);
      if (curved) out.real(42, v.bulge);
    }
  } else {
    out.integer(93, static_cast<std::int64_t>(loop.edges.size()));
    for (const OdDbHatchEdge& edge : loop.edges)
      std::visit([&](const auto& e) { putEdge(e, &edge == &loop.edges.back(), out); }, edge);
  }
  const auto isThere = [](OdDbObjectId id) { return id.isValid(); };
  out.integer(97, std::count_if(loop.sources.begin(), loop.sources.end(), isThere));
  for (const OdDbObjectId id : loop.sources)
    if (isThere(id)) out.reference(330, id);
}

void putPatternLine(const OdHatchPatternLine& line, OdDbDxfOut& out) {
  out.angle(53, line.angle);
  out.point2d(43, line.base, 44);
  out.point2d(45, line.offset, 46);
  out.integer(79, static_cast<std::int64_t>(line.dashes.size()));
  for (const double dash : line.dashes) out.real(49, dash);
}

void putGradientColor(double value, const OdCmColor& color, int index, OdDbDxfOut& out) {
  out.real(463, value);
  if (index >= 0) out.integer(63, index);
  out.integer(421, color.rgb());
}

} // namespace

bool OdDbHatch::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (OdDbEntity::dxfInTag(tag, in)) return true;
  if (!in.in(kSubclass) || tag.code >= 1000) return false;
  switch (tag.code) {
  case 100:
  case 91: // the loops tell their number
    return true;
  case 92:
    m_stage = Stage::kLoops;
    m_hatch.loops.emplace_back().flags = in.integer(tag, 0);
    return true;
  case 75:
    m_stage = Stage::kPattern;
    break;
  case 98:
    m_stage = Stage::kSeeds;
    return true;
  case 450:
    m_stage = Stage::kGradient;
    break;
  default:
    break;
  }
  switch (m_stage) {
  case Stage::kHead:
    // Angle, scale and doubling have one meaning wherever they stand.
    return oddxf::takeTag<Data>(kHead, m_hatch, tag, in) ||
           oddxf::takeTag<Data>(kLines, m_hatch, tag, in);
  case Stage::kLoops:
    return readLoopTag(tag, in);
  case Stage::kPattern:
    return readPatternTag(tag, in);
  case Stage::kSeeds:
    return takeInto(m_hatch.seeds, 10, tag, in) || readPatternTag(tag, in);
  case Stage::kGradient:
    break;
  }
  return readGradientTag(tag, in);
}

bool OdDbHatch::readLoopTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  OdDbHatchLoop& loop = m_hatch.loops.back();
  switch (tag.code) {
  case 93: // the lists tell their lengths
    return true;
  case 97:
    if (Spline* const last = loop.edges.empty() ? nullptr : std::get_if<Spline>(&loop.edges.back()))
      ++last->countsBehind;
    return true;
  case 330:
    if (const OdDbObjectId id = in.reference(tag); !id.isNull()) loop.sources.push_back(id);
    return true;
  default:
    break;
  }
  if (!loop.isPolyline()) return readEdgeTag(tag, in);
  switch (tag.code) {
  case 72:
    return true;
  case 73:
    loop.closed = in.integer(tag, 1) != 0;
    return true;
  case 10:
    loop.vertices.push_back({{in.real(tag, 0), 0}, 0});
    return true;
  case 20:
  case 42:
    if (loop.vertices.empty()) return false;
    (tag.code == 20 ? loop.vertices.back().point.y : loop.vertices.back().bulge) = in.real(tag, 0);
    return true;
  default:
    return false;
  }
}

bool OdDbHatch::readEdgeTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  OdDbHatchLoop& loop = m_hatch.loops.back();
  if (tag.code == 72) {
    switch (in.integer(tag, 1)) {
    case 2:
      loop.edges.emplace_back(Arc());
      return true;
    case 3:
      loop.edges.emplace_back(Ellipse());
      return true;
    case 4:
      loop.edges.emplace_back(Spline());
      return true;
    default:
      loop.edges.emplace_back(Line());
      return true;
    }
  }
  if (loop.edges.empty()) return false;
  return std::visit([&](auto& edge) { return takeEdgeTag(edge, tag, in); }, loop.edges.back());
}

bool OdDbHatch::readPatternTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (oddxf::takeTag<Data>(kPattern, m_hatch, tag, in) ||
      oddxf::takeTag<Data>(kLines, m_hatch, tag, in) ||
      oddxf::takeTag<Data>({&kPixelSize, 1}, m_hatch, tag, in))
    return true;
  auto& lines = m_hatch.lines;
  if (tag.code == 78) return true;
  if (tag.code == 53) {
    lines.emplace_back().angle = in.angle(tag, 0);
    return true;
  }
  if (lines.empty()) return false;
  OdHatchPatternLine& line = lines.back();
  switch (tag.code) {
  case 43:
    line.base.x = in.real(tag, 0);
    return true;
  case 44:
    line.base.y = in.real(tag, 0);
    return true;
  case 45:
    line.offset.x = in.real(tag, 0);
    return true;
  case 46:
    line.offset.y = in.real(tag, 0);
    return true;
  case 79:
    return true;
  case 49:
    line.dashes.push_back(in.real(tag, 0));
    return true;
  default:
    return false;
  }
}

bool OdDbHatch::readGradientTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  OdCmColor& color = m_secondColor ? m_hatch.color2 : m_hatch.color1;
  switch (tag.code) {
  case 463: {
    const double value = in.real(tag, 0);
    m_secondColor = m_colorsRead++ > 0;
    (m_secondColor ? m_hatch.colorValue2 : m_hatch.colorValue1) = value;
    return true;
  }
  case 63: {
    const int index = std::abs(in.integer(tag, 7));
    if (index > OdCmColor::kACInone) return true;
    color.setColorIndex(index);
    (m_secondColor ? m_hatch.colorIndex2 : m_hatch.colorIndex1) = index;
    return true;
  }
  case 421:
    oddxf::setTrueColor(color, in.longInteger(tag, 0));
    return true;
  default:
    return oddxf::takeTag<Data>(kGradient, m_hatch, tag, in) ||
           oddxf::takeTag<Data>({&kGradientName, 1}, m_hatch, tag, in);
  }
}

void OdDbHatch::dxfInEnd(OdDbDxfIn& in) {
  OdDbEntity::dxfInEnd(in);
  oddxf::mendNormal(m_hatch.normal, in);
  readXData();
  m_stage = Stage::kHead;
  m_secondColor = false;
  m_colorsRead = 0;
}

void OdDbHatch::dxfOut(OdDbDxfOut& out) const {
  OdDbEntity::dxfOut(out);
  out.subclass("AcDbHatch");
  oddxf::putFields<Data>(kHead, m_hatch, out);
  out.integer(91, numLoops());
  for (const OdDbHatchLoop& loop : m_hatch.loops) putLoop(loop, out);
  oddxf::putFields<Data>(kPattern, m_hatch, out);
  const Data preset;
  const bool hasLineValues = m_hatch.patternAngle != preset.patternAngle ||
                             m_hatch.patternScale != preset.patternScale ||
                             m_hatch.patternDouble != preset.patternDouble;
  // A solid one needs them for nothing, but keeps what it was given.
  if (!isSolidFill() || hasLineValues) oddxf::putFields<Data>(kLines, m_hatch, out);
  if (!isSolidFill()) {
    out.integer(78, static_cast<std::int64_t>(m_hatch.lines.size()));
    for (const OdHatchPatternLine& line : m_hatch.lines) putPatternLine(line, out);
  }
  oddxf::putField(kPixelSize, m_hatch, out);
  out.integer(98, static_cast<std::int64_t>(m_hatch.seeds.size()));
  for (const OdGePoint2d& p : m_hatch.seeds) out.point2d(10, p);
  if (!isGradient() || out.version() < OdDb::kR2004) return;
  oddxf::putFields<Data>(kGradient, m_hatch, out);
  putGradientColor(m_hatch.colorValue1, m_hatch.color1, m_hatch.colorIndex1, out);
  if (m_hatch.colorCount > 1)
    putGradientColor(m_hatch.colorValue2, m_hatch.color2, m_hatch.colorIndex2, out);
  oddxf::putField(kGradientName, m_hatch, out);
}
