// What a leader looks like.
#include "drawing/checks.h"
#include "drawing/database.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"
#include "drawing/entities/leader.h"
#include "drawing/entities/line.h"
#include "drawing/entities/solid.h"
#include "drawing/entities/spline.h"
#include "drawing/graphics/world_draw.h"

namespace {

/// What a leader takes from its dimension style, or from its own data in place of that.
struct Look {
  double arrow = 0.18, scale = 1, gap = 0.09;
  int color = 0, textPlace = 0;
  OdDbObjectId arrowBlock;
};

constexpr int kAsz = 41, kScale = 40, kGap = 147, kColor = 176, kTextPlace = 77, kArrowBlock = 341;

/// Values of the dimension style that an entity has for itself: pairs of a code and a value in its
/// extended data.
std::vector<OdDbKeptTags::Tag> overridesOf(const OdDbEntity& entity) {
  std::vector<OdDbKeptTags::Tag> all;
  if (!entity.residue()) return all;
  bool inStyle = false;
  int code = -1;
  for (const auto& tag : OdDbKeptTags(entity.residue()->xdata).tags) {
    if (tag.code == 1000) {
      inStyle = tag.value == "DSTYLE";
    } else if (inStyle && tag.code == 1070 && code < 0) {
      code = tag.value.trimmed().toInt();
    } else if (inStyle && code >= 0) {
      all.push_back({code, tag.value});
      code = -1;
    } else if (tag.code == 1001 || (tag.code == 1002 && tag.value == "}")) {
      inStyle = false;
    }
  }
  return all;
}

Look lookOf(const OdDbLeader& leader) {
  Look look;
  const auto style = odrxCast<OdDbDimStyleTableRecord>(leader.dimensionStyle().openObject().get());
  const auto blockNamed = [&](const OdString& name) {
    if (name.isEmpty() || !leader.database()) return OdDbObjectId();
    const OdDbBlockTablePtr blocks = leader.database()->getBlockTableId().safeOpenObject();
    return blocks->getAt(name);
  };
  if (style) {
    const auto number = [&](const char* name, double otherwise) {
      const auto value = style->variable(QLatin1String(name));
      if (!value) return otherwise;
      if (const auto* real = std::get_if<double>(&*value)) return *real;
      if (const auto* whole = std::get_if<std::int64_t>(&*value))
        return static_cast<double>(*whole);
      return otherwise;
    };
    look.arrow = number("DIMASZ", look.arrow);
    look.scale = number("DIMSCALE", look.scale);
    look.gap = number("DIMGAP", look.gap);
    look.color = static_cast<int>(number("DIMCLRD", look.color));
    look.textPlace = static_cast<int>(number("DIMTAD", look.textPlace));
    if (const auto name = style->variable(QStringLiteral("DIMLDRBLK")))
      if (const auto* text = std::get_if<OdString>(&*name)) look.arrowBlock = blockNamed(*text);
  }
  for (const auto& [code, value] : overridesOf(leader)) {
    const double number = value.trimmed().toDouble();
    if (code == kAsz) look.arrow = number;
    if (code == kScale) look.scale = number;
    if (code == kGap) look.gap = number;
    if (code == kColor) look.color = static_cast<int>(number);
    if (code == kTextPlace) look.textPlace = static_cast<int>(number);
    if (code == kArrowBlock && leader.database()) {
      const auto handle = OdDbHandle::fromText(value.trimmed().toStdString());
      look.arrowBlock = handle ? leader.database()->getOdDbObjectId(*handle) : OdDbObjectId();
    }
  }
  // A scale of 0 is for layouts; there it is 1.
  if (!(look.scale > 0)) look.scale = 1;
  return look;
}

/// The filled arrow head that stands for no block: its length, and half its width by that.
constexpr double kArrowHalfWidth = 1.0 / 6.0;

} // namespace

OdGeNurbs OdDbLeader::spline() const {
  return isSplined() && numVertices() > 2 ? OdGeNurbs::through(m_leader.vertices, {}, {})
                                          : OdGeNurbs();
}

void OdDbLeader::appendSegments(OdGeCurveSegments& segments, double deviation) const {
  std::vector<OdGePoint3d> points = m_leader.vertices;
  if (const OdGeNurbs curve = spline(); curve.isValid()) {
    OdGeExtents3d box;
    for (const OdGePoint3d& p : points) box.addPoint(p);
    points.clear();
    curve.appendChords(
        deviation > 0 ? deviation : 1e-4 * (box.maxPoint() - box.minPoint()).length(), points);
  }
  for (std::size_t i = 0; i + 1 < points.size(); ++i)
    segments.push_back(OdGeCurveSegment::line(points[i], points[i + 1]));
}

double OdDbLeader::getEndParam() const { return static_cast<double>(segments().size()); }

OdGePoint3d OdDbLeader::getPointAtParam(double param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) throw OdError(eInvalidInput, QStringLiteral("The leader has no pieces"));
  const double at = checkedParam(param);
  const auto index = std::min(static_cast<std::size_t>(at), all.size() - 1);
  return all[index].pointAt(at - static_cast<double>(index));
}

OdGeVector3d OdDbLeader::getFirstDeriv(double param) const {
  const OdGeCurveSegments all = segments();
  if (all.empty()) throw OdError(eInvalidInput, QStringLiteral("The leader has no pieces"));
  const double at = checkedParam(param);
  return all[std::min(static_cast<std::size_t>(at), all.size() - 1)].derivAt(0);
}

std::vector<OdDbEntityPtr> OdDbLeader::getOffsetCurves(double) const { return {}; }

bool OdDbLeader::getGeomExtents(OdGeExtents3d& extents) const {
  return OdDbEntity::getGeomExtents(extents);
}

std::vector<OdGePoint3d> OdDbLeader::arrowHead(OdDbObjectId& block,
                                               OdGeMatrix3d& blockToWorld) const {
  block = {};
  const OdGeCurveSegments all = segments();
  if (!hasArrowHead() || all.empty()) return {};
  const Look look = lookOf(*this);
  const double size = look.arrow * look.scale;
  const OdGePoint3d& tip = m_leader.vertices.front();
  // The head looks against the running direction.
  const OdGeVector3d back = (all.front().end - tip).normal();
  if (!(size > 0) || back.isZeroLength()) return {};
  const OdGeVector3d aside = m_leader.normal.crossProduct(back).normal();
  if (const auto record = odrxCast<OdDbBlockTableRecord>(look.arrowBlock.openObject().get())) {
    block = look.arrowBlock;
    blockToWorld =
        OdGeMatrix3d::coordSystem(tip, -back * size, -aside * size, m_leader.normal * size) *
        OdGeMatrix3d::translation(-record->origin().asVector());
    return {};
  }
  const OdGePoint3d foot = tip + back * size;
  const OdGeVector3d half = aside * (size * kArrowHalfWidth);
  return {tip, foot + half, foot - half};
}

std::vector<OdGePoint3d> OdDbLeader::underline() const {
  const Look look = lookOf(*this);
  if (!hasHookLine() || annoType() != kMText || look.textPlace == 0 || m_leader.textWidth <= 0 ||
      m_leader.vertices.empty())
    return {};
  const double reach = look.gap * look.scale + m_leader.textWidth;
  const OdGePoint3d& from = m_leader.vertices.back();
  return {from, from + m_leader.horizontal * (m_leader.hookDirection == 1 ? -reach : reach)};
}

void OdDbLeader::worldDraw(OdGiWorldDraw& draw) const {
  const int color = lookOf(*this).color;
  if (color != OdCmColor::kACIbyBlock) draw.setPieceColor(OdCmColor::fromColorIndex(color));
  std::vector<OdGePoint3d> points;
  for (const OdGeCurveSegment& s : segments(draw.deviation())) {
    if (points.empty()) points.push_back(s.start);
    points.push_back(s.end);
  }
  OdDbObjectId block;
  OdGeMatrix3d blockToWorld;
  const std::vector<OdGePoint3d> head = arrowHead(block, blockToWorld);
  // The line ends where the filled head begins, unless the head is longer than the first piece.
  if (!head.empty() && points.size() > 1) {
    const double size = (head[0] - head[1]).length();
    if (points[0].distanceTo(points[1]) > size) {
      const OdGeVector3d half = (head[2] - head[1]) * 0.5;
      points[0] = head[1] + half;
    }
  }
  if (points.size() > 1) draw.polyline(points, false);
  if (const auto line = underline(); !line.empty()) draw.polyline(line, false);
  if (!head.empty()) draw.area({head});
  if (!block.isNull()) draw.block(block, blockToWorld, *this);
  if (color != OdCmColor::kACIbyBlock) draw.setPieceColor({});
}

bool OdDbLeader::explode(std::vector<OdDbEntityPtr>& pieces) const {
  const auto add = [&](const OdDbEntityPtr& piece) {
    piece->setPropertiesFrom(*this);
    pieces.push_back(piece);
  };
  if (const OdGeNurbs curve = spline(); curve.isValid()) {
    add(odrxMake<OdDbSpline>(m_leader.vertices));
  } else {
    for (const OdGeCurveSegment& s : segments()) add(odrxMake<OdDbLine>(s.start, s.end));
  }
  if (const auto line = underline(); !line.empty()) add(odrxMake<OdDbLine>(line[0], line[1]));
  OdDbObjectId block;
  OdGeMatrix3d blockToWorld;
  const std::vector<OdGePoint3d> head = arrowHead(block, blockToWorld);
  if (!head.empty()) add(odrxMake<OdDbSolid>(head[0], head[1], head[2], head[2], normal()));
  if (const auto record = odrxCast<OdDbBlockTableRecord>(block.openObject().get()))
    for (const auto it = record->newIterator(); !it->done(); it->step())
      if (const OdDbEntityPtr piece = it->entity()->getTransformedCopy(blockToWorld)) add(piece);
  return true;
}
